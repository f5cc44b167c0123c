#pragma once

class QAccessibleInterface;
class QLineEdit;

namespace karvenis {

/// How assistive technology sees the text field `field`. It replaces the toolkit's own interface,
/// which reports no attributes for the last character: a screen reader that asks for them leaves
/// that character out and says 3276 for 32767.
[[nodiscard]] QAccessibleInterface* makeTypedTextAccessible(QLineEdit* field);

}  // namespace karvenis
