#pragma once

#include <QProxyStyle>

#include "platform/qt/Artwork.h"

namespace karvenis {

/// What the program's controls look like where the toolkit's plain style is not warm enough: raised
/// buttons, panels, menus, the icons of boxes, a focus that shows, and the room around them all.
class Style final : public QProxyStyle {
  Q_OBJECT

 public:
  Style();

  /// The property that tells the one button of a window that everything is about.
  static constexpr char mainButton[] = "mainButton";

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

 private:
  QIcon boxIcon(const QString& part, const QWidget* widget) const;

  mutable Artwork artwork_;
};

}  // namespace karvenis
