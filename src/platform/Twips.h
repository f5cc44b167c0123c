#pragma once

namespace karvenis {

/// The unit of lengths on paper, on a text surface and in the settings file is the twip.
inline constexpr double twipsPerInch = 1440;
/// ... of a pixel at 96 dpi.
inline constexpr double twipsPerPixel = 15;

}  // namespace karvenis
