#pragma once

#include <string>

namespace karvenis {

/// What the error number `error` (an errno) means, as a sentence: in Turkish for the errors that a
/// user can meet, else in the system's own words.
[[nodiscard]] std::string systemErrorText(int error);

}  // namespace karvenis
