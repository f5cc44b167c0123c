#pragma once

class QAccessibleInterface;

namespace karvenis {

class Surface;

/// What assistive technology knows of a Surface: a list whose items are the printed lines.
[[nodiscard]] QAccessibleInterface* makeSurfaceAccessible(Surface* surface);

}  // namespace karvenis
