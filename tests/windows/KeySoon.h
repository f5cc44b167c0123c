#pragma once

#include <qpa/qwindowsysteminterface.h>

#include "platform/qt/Form.h"

namespace karvenis {

/// A key for the window as the desktop sends it, served in its turn behind what came before.
inline void pressSoon(const Form* form, Qt::Key key) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        form->windowHandle(), type, key, Qt::NoModifier);
  }
}

}  // namespace karvenis
