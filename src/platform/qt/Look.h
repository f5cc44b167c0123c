#pragma once

namespace karvenis {

/// Gives the program its own colours, which stay readable whatever the desktop's theme.
void applyLook();

namespace look {
// As 0xAARRGGBB.
inline constexpr unsigned ground = 0xFFF7F0E1;  // parchment behind everything
inline constexpr unsigned paper = 0xFFFFFDF7;   // fields, number plates
inline constexpr unsigned sand = 0xFFEFE3CA;    // menus, the toolkit's buttons
inline constexpr unsigned faded = 0xFFEFE6D3;   // disabled controls
inline constexpr unsigned ink = 0xFF2A2622;     // text
inline constexpr unsigned muted = 0xFF5B5244;   // secondary text
inline constexpr unsigned pale = 0xFF8C8272;    // text of disabled controls
inline constexpr unsigned petrol = 0xFF1F5A60;  // accents, focus
inline constexpr unsigned deepPetrol = 0xFF123F44;
inline constexpr unsigned amber = 0xFFE8A92C;  // the focus on petrol
inline constexpr unsigned edge = 0xFFC9B48C;   // quiet lines
inline constexpr unsigned brass = 0xFFB79F71;  // the edge of buttons
}  // namespace look

}  // namespace karvenis
