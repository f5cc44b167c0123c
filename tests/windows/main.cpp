#include <gtest/gtest.h>

#include <QMetaProperty>
#include <QTemporaryFile>
#include <QTimer>
#include <cstdio>

#include "doubles/Journal.h"
#include "platform/qt/Application.h"
#include "platform/qt/Look.h"
#include "platform/qt/Surface.h"
#include "platform/qt/Text.h"

namespace {

using karvenis::shownTexts;

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

/// Tells which texts the windows show: those of each widget that is shown or painted, and of the
/// menus of a menu bar.
class ShownByWindows final : public QObject, public testing::EmptyTestEventListener {
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    const bool isSeen = event->type() == QEvent::Show || event->type() == QEvent::Paint;
    if (listens_ && isSeen && widget != nullptr) tellOf(*widget);
    return false;
  }
  /// The tests of how boxes fit show every string of the program's source.
  void OnTestStart(const testing::TestInfo& test) override {
    const bool showsSource = std::string_view(test.test_suite_name()).ends_with("BoxFit");
    listens_ = shownTexts() != nullptr && !showsSource;
  }
  static void tell(const QString& text) { shownTexts()(karvenis::fromQt(text)); }
  static void tellOf(const QWidget& widget) {
    for (int i = 0; i < widget.metaObject()->propertyCount(); ++i) {
      const QMetaProperty property = widget.metaObject()->property(i);
      const std::string_view name = property.name();
      if (name == "objectName" || name == "styleSheet") continue;
      if (property.metaType() == QMetaType::fromType<QString>()) {
        tell(property.read(&widget).toString());
      }
    }
    for (const QAction* head : widget.actions()) {
      tell(head->text());
      if (head->menu() == nullptr) continue;
      for (const QAction* entry : head->menu()->actions()) tell(entry->text());
    }
    if (const auto* page = qobject_cast<const karvenis::Surface*>(&widget)) {
      for (const auto& line : page->lines()) tell(line.text);
    }
  }

  bool listens_ = false;
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
  auto& listeners = testing::UnitTest::GetInstance()->listeners();
  listeners.Append(new QuitCleared);
  auto* shown = new ShownByWindows;
  listeners.Append(shown);
  qApp->installEventFilter(shown);
  return RUN_ALL_TESTS();
}
