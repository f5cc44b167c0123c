#pragma once

namespace karvenis {

/// The twip, 1/1440 inch, is the unit of lengths on paper, on a text surface and in the settings
/// file.
inline constexpr double twipsPerInch = 1440;
/// In a device independent pixel, which is 1/96 inch.
inline constexpr double twipsPerPixel = 15;

}  // namespace karvenis
