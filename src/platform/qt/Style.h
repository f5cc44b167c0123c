#pragma once

#include <QProxyStyle>

#include "platform/qt/Artwork.h"

namespace karvenis {

/// How the program's controls look: raised buttons, panels, menus, the icons of boxes, a visible
/// focus, and the room around them all. Everything else is the toolkit's plain style.
class Style final : public QProxyStyle {
  Q_OBJECT

 public:
  Style();

  /// The property that marks a window's primary button.
  static constexpr char primaryButton[] = "primaryButton";

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
