#pragma once

namespace karvenis {

/// Makes the program's own widgets known to assistive technology as what they are to the user.
/// Calling it again changes nothing.
void installAccessibles();

}  // namespace karvenis
