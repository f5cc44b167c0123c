#pragma once

#include <string>

namespace karvenis {

/// The system's words for the error number `error` (an errno); in Turkish for the errors that a
/// user can meet.
[[nodiscard]] std::string systemWords(int error);

}  // namespace karvenis
