#pragma once

class QAccessibleInterface;
class QLineEdit;

namespace karvenis {

/// What a box to type into is to assistive technology. It stands in for the toolkit's own, which
/// tells the attributes of no character: a screen reader that asks for them then leaves out the
/// last character and speaks 3276 for 32767.
QAccessibleInterface* makeTypedTextAccessible(QLineEdit* box);

}  // namespace karvenis
