#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/Look.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  karvenis::applyLook();
  return RUN_ALL_TESTS();
}
