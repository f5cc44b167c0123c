#include "platform/qt/Surface.h"

#include <QImage>

#include "windows/WindowTest.h"

namespace karvenis {
namespace {

/// The colours that stand on a surface after `text` has been printed in `colour`.
std::set<QRgb> colours(QBColor colour) {
  Surface surface(nullptr);
  surface.resize(400, 60);
  surface.currentX(200);
  surface.currentY(200);
  surface.foreColor(colour);
  surface.print("Kolon - 1 : [ 139 ]");
  const QImage image = surface.grab().toImage().convertToFormat(QImage::Format_RGB32);
  std::set<QRgb> all;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) all.insert(image.pixel(x, y));
  }
  return all;
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

}  // namespace
}  // namespace karvenis
