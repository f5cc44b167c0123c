#pragma once

namespace karvenis {

/// Makes the lines of every Surface known to assistive technology. Calling it again changes
/// nothing.
void installSurfaceAccessible();

}  // namespace karvenis
