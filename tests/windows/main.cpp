#include <gtest/gtest.h>

#include <QTemporaryFile>
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

/// The smallest screen that the program is made for, 1024 x 768 device independent pixels; returns
/// the file that tells the offscreen platform so.
std::unique_ptr<QTemporaryFile> smallScreen() {
  const double scale = std::max(qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(), 1.0);
  auto file = std::make_unique<QTemporaryFile>();
  if (!file->open()) std::abort();
  file->write(QStringLiteral("{\"screens\": [{\"name\": \"small\", \"x\": 0, \"y\": 0, "
                             "\"width\": %1, \"height\": %2, \"logicalDpi\": 96, "
                             "\"logicalBaseDpi\": 96, \"dpr\": 1}]}")
                  .arg(1024 * scale)
                  .arg(768 * scale)
                  .toUtf8());
  file->close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file->fileName().toUtf8());
  return file;
}

}  // namespace

int main(int argc, char** argv) {
  const auto screen = smallScreen();
  testing::InitGoogleTest(&argc, argv);
  karvenis::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  karvenis::applyLook();
  qInstallMessageHandler(onComplaint);
  testing::UnitTest::GetInstance()->listeners().Append(new QuitCleared);
  return RUN_ALL_TESTS();
}
