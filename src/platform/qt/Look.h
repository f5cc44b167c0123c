#pragma once

class QApplication;

namespace karvenis {

/// Gives the program its own colours, which stay readable whatever the desktop's theme.
void applyLook(QApplication& application);

namespace look {
inline constexpr unsigned ground = 0xFFF7F0E1;  // parchment behind everything
inline constexpr unsigned paper = 0xFFFFFDF7;   // fields, number plates
inline constexpr unsigned ink = 0xFF2A2622;     // text
inline constexpr unsigned petrol = 0xFF1F5A60;  // accents, focus
inline constexpr unsigned edge = 0xFFC9B48C;    // quiet lines
}  // namespace look

}  // namespace karvenis
