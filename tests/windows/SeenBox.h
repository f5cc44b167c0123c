#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <functional>

namespace karvenis {

/// Opens a real box with `open`, lets `look` see it, and refuses it if `look` has not answered it.
template <typename Box>
void seeing(const std::function<void()>& open, const std::function<void(Box&)>& look) {
  QTimer timer;
  timer.setInterval(0);
  bool seen = false;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    timer.stop();
    look(*box);
    seen = true;
    if (box->isVisible()) box->reject();
  });
  timer.start();
  QTimer::singleShot(20000, &timer, [] {  // a box of another kind, which would wait for ever
    if (QWidget* stuck = QApplication::activeModalWidget()) stuck->close();
  });
  open();
  EXPECT_TRUE(seen);
}

}  // namespace karvenis
