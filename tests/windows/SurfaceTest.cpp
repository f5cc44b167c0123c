#include "platform/qt/Surface.h"

#include <QAccessible>
#include <QImage>

#include "platform/qt/Accessibles.h"
#include "platform/qt/Letters.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

std::set<QRgb> coloursOf(const QPixmap& picture) {
  const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
  std::set<QRgb> all;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) all.insert(image.pixel(x, y));
  }
  return all;
}

/// The colours that stand on a surface after a text has been printed in `colour`.
std::set<QRgb> colours(QBColor colour) {
  Surface surface(nullptr, 1);
  surface.resize(400, 60);
  surface.currentX(200);
  surface.currentY(200);
  surface.foreColor(colour);
  surface.print("Kolon - 1 : [ 139 ]");
  return coloursOf(surface.grab());
}

TEST(SurfaceColours, AreThoseOfThePaletteOnWhite) {
  const std::vector<std::pair<QBColor, QRgb>> table = {{QBColor::blue, qRgb(0, 0, 128)},
                                                       {QBColor::red, qRgb(128, 0, 0)},
                                                       {QBColor::lightBlue, qRgb(0, 0, 255)},
                                                       {QBColor::lightRed, qRgb(255, 0, 0)}};
  for (const auto& [colour, painted] : table) {
    const std::set<QRgb> seen = colours(colour);
    EXPECT_TRUE(seen.contains(painted)) << static_cast<int>(colour);
    EXPECT_TRUE(seen.contains(qRgb(255, 255, 255)));
    for (const auto& [other, foreign] : table) {
      EXPECT_EQ(seen.contains(foreign), other == colour) << static_cast<int>(other);
    }
  }
}

TEST(SurfaceColours, LeaveTheScreenWhenThePageIsCleared) {
  Surface surface(nullptr, 1);
  surface.print("Kolon - 1 : [ 139 ]");
  surface.show();
  const auto onScreen = [&] {
    return coloursOf(surface.screen()->grabWindow(surface.winId())).size();
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return onScreen() > 1; }, 20000));
  surface.cls();
  EXPECT_TRUE(QTest::qWaitFor([&] { return onScreen() == 1; }, 20000));
}

/// The size of the letters of a page, which has margins as high as two lines.
int lettersOf(int lines) { return Surface(nullptr, lines).font().pixelSize(); }

TEST(SurfaceLetters, AreSmallerOnAPageThatWouldBeHigherThanTheScreen) {
  QFont designed = QWidget().font();
  designed.setPixelSize(designedLetters);
  const int lines = static_cast<int>(roomOnScreen().height() / QFontMetricsF(designed).height());
  EXPECT_EQ(lettersOf(lines - 2), designedLetters);
  EXPECT_EQ(lettersOf(lines - 1), designedLetters - 1);
  EXPECT_EQ(lettersOf(10 * lines), 10) << "smaller ones cannot be read";
}

/// A printed line as assistive technology knows it.
QAccessibleInterface* line(Surface& surface, int index) {
  return QAccessible::queryAccessibleInterface(&surface)->child(index);
}

QString spoken(Surface& surface, int index) {
  return line(surface, index)->text(QAccessible::Name);
}

void printPage(Surface& surface, int page) {
  surface.cls();
  surface.printLine("Kolon -  1 :   7  49  [ 056 ]");
  surface.printLine("Kolon -  2 :   8  49  [ 057 ]");
  surface.setPage(page);
}

TEST(SurfaceLines, AreItemsOfAListThatIsSpokenPageByPage) {
  installAccessibles();
  Surface surface(nullptr, 25);
  printPage(surface, 1);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&surface)->role(), QAccessible::List);
  EXPECT_EQ(line(surface, 0)->role(), QAccessible::ListItem);
  EXPECT_EQ(spoken(surface, 0), "Kolon -  1 :   7  49  [ 056 ]")
      << "the title tells the first page";
  EXPECT_EQ(spoken(surface, 1), "Kolon -  2 :   8  49  [ 057 ]");
  printPage(surface, 2);
  EXPECT_EQ(spoken(surface, 0), "Sayfa 2. Kolon -  1 :   7  49  [ 056 ]");
  EXPECT_EQ(spoken(surface, 1), "Kolon -  2 :   8  49  [ 057 ]");
  printPage(surface, 2);
  EXPECT_EQ(spoken(surface, 0), "Kolon -  1 :   7  49  [ 056 ]");
}

TEST(SurfaceLines, AreOtherObjectsAfterEachRedraw) {
  installAccessibles();
  Surface surface(nullptr, 25);
  printPage(surface, 1);
  const QAccessible::Id before = QAccessible::uniqueId(line(surface, 0));
  EXPECT_EQ(QAccessible::uniqueId(line(surface, 0)), before);
  printPage(surface, 1);
  EXPECT_NE(QAccessible::uniqueId(line(surface, 0)), before);
}

TEST(SurfaceLines, GoWithTheirSurface) {
  installAccessibles();
  auto surface = std::make_unique<Surface>(nullptr, 25);
  printPage(*surface, 1);
  const QAccessible::Id first = QAccessible::uniqueId(line(*surface, 0));
  surface.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(first), nullptr);
}

}  // namespace
}  // namespace karvenis
