#pragma once

class QAccessibleEvent;

namespace karvenis {

/// Makes the program's own widgets known to assistive technology as what they are to the user.
/// Calling it again changes nothing.
void installAccessibles();

/// Whether assistive technology hears of `event`; asked once for each event, in their order. It
/// hears of the caret and the selection in a field only while the field has the focus and that has
/// been reported: a screen reader that hears of them earlier does not name the field, and a
/// selection that ends when the focus leaves is no news. A number that the program writes is
/// announced by the program itself.
bool isToBeReported(const QAccessibleEvent& event);

}  // namespace karvenis
