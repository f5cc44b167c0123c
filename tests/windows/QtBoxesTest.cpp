#include "platform/qt/QtBoxes.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextLayout>
#include <QTimer>

#include "bag/Texts.h"
#include "main/Texts.h"
#include "platform/qt/Look.h"
#include "platform/qt/Text.h"
#include "windows/BigLetters.h"
#include "windows/SeenBox.h"

// Real boxes on the screen.

namespace karvenis {
namespace {

void message(const QString& text, Icon icon, const std::function<void(QMessageBox&)>& look) {
  seeing<QMessageBox>([&] { QtBoxes().message(fromQt(text), "KARVENIS 2005 Randomizer", icon); },
                      look);
}
void question(const QString& text, const std::function<void(QMessageBox&)>& look) {
  seeing<QMessageBox>([&] { QtBoxes().ask(fromQt(text), standardTitle); }, look);
}
void input(const QString& prompt, const std::function<void(QInputDialog&)>& look) {
  const auto open = [&] {
    EXPECT_EQ(QtBoxes().input(fromQt(prompt), "Kolon SİLME", "", "örnek: 7,20"), "");
  };
  seeing<QInputDialog>(open, look);
}

QLabel& textOf(const QMessageBox& box) { return *box.findChild<QLabel*>("qt_msgbox_label"); }
QScrollArea& scrollerOf(const QMessageBox& box) { return *box.findChild<QScrollArea*>(); }
bool scrolls(const QMessageBox& box) {
  return textOf(box).height() > scrollerOf(box).viewport()->height();
}

/// All of the text is shown or can be scrolled to, and the buttons are there.
void expectWhole(const QMessageBox& box) {
  SCOPED_TRACE(box.text().left(60).toStdString());
  EXPECT_TRUE(fitsOnScreen(box)) << box.width() << " x " << box.height();
  EXPECT_TRUE(box.screen()->availableGeometry().contains(box.geometry()));
  const QLabel& label = textOf(box);
  const QRect needed = label.fontMetrics().boundingRect(
      QRect(0, 0, label.width(), QWIDGETSIZE_MAX),
      Qt::AlignLeft | (label.wordWrap() ? Qt::TextWordWrap : 0), box.text());
  EXPECT_LE(needed.width(), label.width());
  EXPECT_LE(needed.height(), label.height());
  EXPECT_LE(label.width(), scrollerOf(box).viewport()->width());
  for (const QAbstractButton* button : box.buttons()) {
    EXPECT_TRUE(box.rect().contains(
        button->geometry().translated(button->parentWidget()->mapTo(&box, QPoint()))));
    EXPECT_GE(button->width(), button->minimumSizeHint().width());
  }
}

/// Every text of the program: the strings of its source, joined as the compiler joins them.
QStringList textsOfTheProgram() {
  static const QRegularExpression joint("\"(_s)?\\s*\\n\\s*u?\"");
  static const QRegularExpression string("\"((?:\\\\.|[^\"\\\\\\n])*)\"");
  static const QRegularExpression words(
      "[\\p{L}]{4}.*[ !çğıöşüÇĞİÖŞÜ]|[ !çğıöşüÇĞİÖŞÜ].*[\\p{L}]{4}");
  QStringList texts;
  QDirIterator files(KARVENIS_SOURCES, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    QFile file(files.next());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString code = QString::fromUtf8(file.readAll()).remove(joint);
    for (auto all = string.globalMatch(code); all.hasNext();) {
      const QString text = all.next().captured(1).replace("\\r", "\r").replace("\\\"", "\"");
      if (words.match(text).hasMatch()) texts.append(text);
    }
  }
  return texts;
}

/// The longest question: about every pair of numbers.
QString allPairs() {
  QStringList pairs;
  for (int a = 1; a < 49; ++a) {
    for (int b = a + 1; b <= 49; ++b) pairs.append(QStringLiteral("%1-%2").arg(a).arg(b));
  }
  return "'" + pairs.join(", ") +
         "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?";
}

class BoxFit : public testing::TestWithParam<std::tuple<const char*, double>> {};

TEST_P(BoxFit, EveryTextOfTheProgramHasRoom) {
  const auto& [family, growth] = GetParam();
  const BigLetters letters(family, growth);
  const QStringList texts = textsOfTheProgram();
  ASSERT_GT(texts.size(), 100);
  for (const QString& text : texts) question(text, expectWhole);
  const QString folder = QString("/home/a-long-name").repeated(12);
  for (const QString& text :
       {toQt(bagExplained), toQt(bankoExplained), toQt(aboutText(fromQt(folder))), allPairs()}) {
    message(text, Icon::critical, expectWhole);
  }
}

TEST_P(BoxFit, EveryBoxToTypeIntoHasRoom) {
  const auto& [family, growth] = GetParam();
  const BigLetters letters(family, growth);
  const auto prompts = textsOfTheProgram().filter("girin");
  ASSERT_GE(prompts.size(), 5);
  for (const QString& prompt : prompts) {
    input(prompt, [](const QInputDialog& box) {
      EXPECT_TRUE(fitsOnScreen(box)) << box.width() << " x " << box.height();
      const auto* label = box.findChild<QLabel*>();
      const QRect needed = label->fontMetrics().boundingRect(
          QRect(0, 0, label->width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, label->text());
      EXPECT_LE(needed.width(), label->width()) << label->text().toStdString();
      EXPECT_LE(needed.height(), label->height()) << label->text().toStdString();
      for (const auto* control : box.findChildren<QWidget*>()) {
        EXPECT_TRUE(box.rect().contains(QRect(control->mapTo(&box, QPoint()), control->size())));
      }
    });
  }
}

/// A question stands on one line as far as the screen has room; a broken one has no lonely word.
TEST_P(BoxFit, NoQuestionEndsInALonelyWord) {
  const double growth = std::get<1>(GetParam());
  const BigLetters letters(std::get<0>(GetParam()), growth);
  for (const QString& text : textsOfTheProgram()) {
    if (text.contains('\r') || !text.contains("istiyormusunuz")) continue;
    question(text, [&](const QMessageBox& box) {
      const QLabel& label = textOf(box);
      const int natural = label.fontMetrics().horizontalAdvance(box.text());
      if (natural <= 700 * growth && natural <= 850) {
        EXPECT_FALSE(label.wordWrap()) << text.toStdString();
      }
      QTextLayout layout(box.text(), label.font());
      layout.beginLayout();
      int words = 0;
      for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label.width());
        words = static_cast<int>(
                    box.text().mid(line.textStart(), line.textLength()).simplified().count(' ')) +
                1;
      }
      layout.endLayout();
      EXPECT_GT(words, 1) << text.toStdString();
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Letters, BoxFit,
                         testing::Combine(testing::Values("DejaVu Sans", "Noto Sans"),
                                          testing::Values(1.0, 2.0)),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param)).substr(0, 4) +
                                  std::to_string(static_cast<int>(std::get<1>(row.param)));
                         });

// A filter's question about 49 numbers, which have no blank among them, was cut off behind some
// thirty: the user agreed to a deletion that he could not read.
TEST(QtBoxes, ShowAListOfManyNumbersWhole) {
  QString text = "'1";
  for (int ball = 2; ball <= 49; ++ball) text += "," + QString::number(ball);
  text += "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?";
  question(text, [&](const QMessageBox& box) {
    expectWhole(box);
    EXPECT_EQ(box.text().remove(QChar(0x200B)), text);
  });
}

TEST(QtBoxes, ShowAnOrdinaryTextAsItIs) {
  const QString text = "'5,12' numaralı topların yer aldığı kolonları silmek istiyormusunuz?";
  question(text, [&](const QMessageBox& box) { EXPECT_EQ(box.text(), text); });
}

TEST(QtBoxes, ATextThatIsTooHighIsScrolledByKeys) {
  question(allPairs(), [](QMessageBox& box) {
    ASSERT_TRUE(scrolls(box));
    QScrollBar* bar = scrollerOf(box).verticalScrollBar();
    const QImage painted = bar->grab().toImage();
    EXPECT_EQ(painted.pixelColor(painted.width() / 2, painted.height() / 10), QColor(look::petrol));
    QTest::keyClick(box.windowHandle(), Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 0);
    QTest::keyClick(box.windowHandle(), Qt::Key_PageUp);
    EXPECT_EQ(bar->value(), 0);
    QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
    QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(scrollerOf(box).hasFocus());
    QTest::keyClick(box.windowHandle(), Qt::Key_Down);
    EXPECT_GT(bar->value(), 0);
  });
}

TEST(QtBoxes, ATextStandsClearOfItsScrollBar) {
  for (const double growth : {1.0, 2.0}) {
    const BigLetters letters("DejaVu Sans", growth);
    question(allPairs(), [&](QMessageBox& box) {
      ASSERT_TRUE(scrolls(box));
      const QImage text = scrollerOf(box).viewport()->grab().toImage();
      const int gap = qRound(8 * growth * text.devicePixelRatio());
      const QImage beside = text.copy(text.width() - gap, 0, gap, text.height());
      QImage ground(beside.size(), beside.format());
      ground.setDevicePixelRatio(beside.devicePixelRatio());
      ground.fill(QColor(look::ground));
      EXPECT_EQ(beside, ground) << growth;
    });
  }
}

TEST(QtBoxes, ATextThatFitsHasNoScrollBar) {
  question("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?", [](QMessageBox& box) {
    EXPECT_FALSE(scrolls(box));
    EXPECT_FALSE(scrollerOf(box).verticalScrollBar()->isVisible());
    EXPECT_EQ(scrollerOf(box).focusPolicy(), Qt::NoFocus);
  });
}

/// The colour of most of a box's icon that is neither light nor dark.
QColor bodyOf(const QMessageBox& box) {
  const QImage image = box.iconPixmap().toImage();
  return image.pixelColor(image.width() / 2, image.height() * 15 / 100);
}

TEST(QtBoxes, HaveIconsOfTheirOwnThatSayWhatTheyAre) {
  struct Row {
    Icon icon;
    QMessageBox::Icon kind;
    int hue;
  };
  for (const Row& row : {Row{Icon::exclamation, QMessageBox::Warning, 40},
                         Row{Icon::question, QMessageBox::Question, 180},
                         Row{Icon::critical, QMessageBox::Critical, 12}}) {
    message("X", row.icon, [&](const QMessageBox& box) {
      EXPECT_EQ(box.icon(), row.kind);
      EXPECT_NEAR(bodyOf(box).hue(), row.hue, 15);
      const QSizeF shown = box.iconPixmap().deviceIndependentSize();
      EXPECT_EQ(QSizeF(box.iconPixmap().size()), shown * box.devicePixelRatioF())
          << "each pixel of the screen is drawn";
    });
  }
}

TEST(QtBoxes, AQuestionHasItsIcon) {
  question("X", [](const QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Question); });
}

TEST(QtBoxes, HaveIconsThatGrowWithTheLetters) {
  const auto width = [](double growth) {
    const BigLetters letters("DejaVu Sans", growth);
    double found = 0;
    message("X", Icon::critical, [&](const QMessageBox& box) {
      found = box.iconPixmap().deviceIndependentSize().width();
    });
    return found;
  };
  EXPECT_NEAR(width(2), 2 * width(1), 4) << "sizes of letters are rounded";
}

TEST(QtBoxes, ShowMarkupAsTheTextThatItIs) {
  message("<b>X</b>", Icon::none, [](const QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(textOf(box).text(), "<b>X</b>");
    EXPECT_EQ(textOf(box).textFormat(), Qt::PlainText);
  });
}

TEST(QtBoxes, AnInputShowsItsPromptInLinesAndItsPresetSelected) {
  seeing<QInputDialog>([] { QtBoxes().input("<b>bir</b>\riki", "Kolon SİLME", "0", ""); },
                       [](const QInputDialog& box) {
                         const auto* label = box.findChild<QLabel*>();
                         EXPECT_EQ(label->text(), "<b>bir</b>\niki");
                         EXPECT_EQ(label->textFormat(), Qt::PlainText);
                         EXPECT_GE(label->height(), 2 * label->fontMetrics().height());
                         const auto* line = box.findChild<QLineEdit*>();
                         EXPECT_EQ(line->text(), "0");
                         EXPECT_EQ(line->selectedText(), "0");
                         EXPECT_EQ(box.focusWidget(), line);
                       });
}

TEST(QtBoxes, AnInputThatIsAcceptedGivesItsText) {
  seeing<QInputDialog>([] { EXPECT_EQ(QtBoxes().input("X", "Kolon SİLME", "0", ""), "12,ş"); },
                       [](QInputDialog& box) {
                         box.setTextValue("12,ş");
                         box.accept();
                       });
}

TEST(QtBoxes, AnInputIsNoWiderThanTheScreen) {
  const BigLetters letters("DejaVu Sans", 3);
  input("X", [](const QInputDialog& box) { EXPECT_TRUE(fitsOnScreen(box)) << box.width(); });
}

TEST(QtBoxes, CanBeClosedAndMovedAndNothingElse) {
  const auto look = [](const QDialog& box) {
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::CustomizeWindowHint))
        << "else the desktop adds its own";
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(box.windowFlags() & Qt::WindowMinMaxButtonsHint);
  };
  message("X", Icon::none, look);
  question("X", look);
  input("X", look);
}

TEST(QtBoxes, ThePointerIsTheHourglassUntilItIsSetBack) {
  QtBoxes boxes;
  boxes.pointer(Pointer::hourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  boxes.pointer(Pointer::hourglass);
  boxes.pointer(Pointer::normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "however often it was set";
}

TEST(QtBoxes, BreakAWordThatNoLineTakes) { message(QString(250, u'm'), Icon::none, expectWhole); }

TEST(QtBoxes, AreAsLargeAsTheirContent) {
  message("X", Icon::none, [](const QMessageBox& box) {
    EXPECT_EQ(box.minimumSize(), box.layout()->totalSizeHint());
    EXPECT_EQ(box.maximumSize(), box.minimumSize());
  });
}

TEST(QtBoxes, KeepNoColumnForAMissingIcon) {
  message("X", Icon::none, [](const QMessageBox& box) {
    EXPECT_EQ(scrollerOf(box).x(), box.layout()->contentsMargins().left());
  });
}

TEST(QtBoxes, AnInputShowsItsExampleOnlyWhileItIsEmpty) {
  input("X", [](const QInputDialog& box) {
    const auto* line = box.findChild<QLineEdit*>();
    EXPECT_EQ(line->placeholderText(), "örnek: 7,20");
    EXPECT_EQ(line->text(), "");
    EXPECT_EQ(line->palette().color(QPalette::PlaceholderText), QColor(look::pale));
    EXPECT_EQ(box.windowTitle(), "Kolon SİLME");
  });
}

// Those who have the screen read to them

/// Hears of all events, as assistive technology does, how often a box has lost the keyboard.
class Listener final : public QObject {
 public:
  Listener() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isBox = qobject_cast<QDialog*>(watched) != nullptr;
    if (isBox && event->type() == QEvent::WindowActivate) ++activated;
    if (isBox && event->type() == QEvent::WindowDeactivate) ++deactivated;
    return false;
  }

  int activated = 0;
  int deactivated = 0;
};

TEST(QtBoxes, ABoxIsReadEvenIfTheReaderIsStillBusyWithTheOneBeforeIt) {
  QWidget owner;
  owner.show();
  QtBoxes boxes;
  boxes.beforeOpening = [&] { return &owner; };
  Listener listener;
  QPointer<QMessageBox> shown;
  const auto open = [&] {
    seeing<QMessageBox>([&] { boxes.message("Merhaba", standardTitle, Icon::none); },
                        [&](QMessageBox& box) { shown = &box; });
  };
  open();
  const QPointer<QMessageBox> first = shown;
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_TRUE(first) << "what the reader still asks for has gone";
  EXPECT_TRUE(first->isHidden());
  EXPECT_EQ(first->windowHandle()->type(), Qt::Popup) << "which is in no list of windows";
  first->windowHandle()->destroy();
  first->windowHandle()->create();  // made once more, with the flags of the widget
  EXPECT_EQ(first->windowHandle()->type(), Qt::Popup);
  open();
  EXPECT_FALSE(first) << "it stays for ever";
  EXPECT_EQ(listener.activated, 2);
  EXPECT_EQ(listener.deactivated, 0) << "that a box has closed was told by itself";
}

}  // namespace
}  // namespace karvenis
