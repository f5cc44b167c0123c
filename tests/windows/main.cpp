#include <gtest/gtest.h>

#include <QTimer>
#include <cstdio>

#include "platform/qt/Application.h"
#include "platform/qt/Look.h"

namespace {

/// Whatever the toolkit complains about fails the test, except for what the offscreen platform says
/// about itself.
void onComplaint(QtMsgType, const QMessageLogContext&, const QString& words) {
  if (words.startsWith(QLatin1String("This plugin does not support "))) return;
  std::fprintf(stderr, "%s\n", qPrintable(words));
  ADD_FAILURE() << words.toStdString();
}

/// A test that ends the program leaves the event loop's wish to quit behind, and the box of the
/// next test would close at once. A loop that has ended by itself clears it.
class QuitCleared final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
  }
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  karvenis::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  karvenis::applyLook();
  qInstallMessageHandler(onComplaint);
  testing::UnitTest::GetInstance()->listeners().Append(new QuitCleared);
  return RUN_ALL_TESTS();
}
