#include "platform/qt/QtBoxes.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QTimer>

namespace karvenis {
namespace {

/// Answers the box that opens and tells what it showed.
struct Shown {
  QString text;
  int missingHeight = 0;  // pixels that the text lacks
  int missingWidth = 0;
};

Shown answered(const std::string& text) {
  Shown shown;
  QTimer look;
  look.setInterval(0);
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    look.stop();
    auto* label = box->findChild<QLabel*>("qt_msgbox_label");
    const QRect room = label->contentsRect();
    const QRect needed = label->fontMetrics().boundingRect(
        QRect(0, 0, room.width(), 10000), Qt::TextWordWrap | Qt::AlignLeft, box->text());
    shown = {box->text(), needed.height() - room.height(), needed.width() - room.width()};
    box->reject();
  });
  look.start();
  QtBoxes().message(text, "KARVENIS 2005 Randomizer", Icon::none);
  return shown;
}

// A filter's question about 49 numbers, which have no blank among them, was cut off behind some
// thirty: the user agreed to a deletion that he could not read.
TEST(QtBoxes, ShowAListOfManyNumbersWhole) {
  QString text = "'1";
  for (int ball = 2; ball <= 49; ++ball) text += "," + QString::number(ball);
  text += "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?";
  Shown shown = answered(text.toStdString());
  EXPECT_LE(shown.missingWidth, 0);
  EXPECT_LE(shown.missingHeight, 0);
  EXPECT_EQ(shown.text.remove(QChar(0x200B)), text);
}

TEST(QtBoxes, ShowAnOrdinaryTextAsItIs) {
  const std::string text = "'5,12' numaralı topların yer aldığı kolonları silmek istiyormusunuz?";
  EXPECT_EQ(answered(text).text.toStdString(), text);
}

}  // namespace
}  // namespace karvenis
