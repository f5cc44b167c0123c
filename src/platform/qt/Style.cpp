#include "platform/qt/Style.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "platform/qt/Look.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr QSize buttonPadding(34, 12);
constexpr int leastTextHeight = 18;
constexpr QSize menuHeadPadding(20, 10);
constexpr double buttonRadius = 5;
constexpr double panelRadius = 7;

/// The colours of a button in one of its states, from above to below, and of its edge.
struct ButtonColours {
  unsigned top, bottom, edge;
};

ButtonColours coloursOf(QStyle::State state, bool isMain) {
  if ((state & QStyle::State_Enabled) == 0) return {look::faded, look::faded, look::brass};
  if ((state & (QStyle::State_Sunken | QStyle::State_On)) != 0) {
    return isMain ? ButtonColours{look::deepPetrol, look::deepPetrol, look::deepPetrol}
                  : ButtonColours{0xFFE2CFA5, 0xFFE2CFA5, look::brass};
  }
  if ((state & QStyle::State_MouseOver) != 0) {
    return isMain ? ButtonColours{0xFF3A8D93, look::petrol, look::deepPetrol}
                  : ButtonColours{0xFFFFFDF8, 0xFFF4E8CD, look::brass};
  }
  return isMain ? ButtonColours{0xFF2F7D83, 0xFF174A50, look::deepPetrol}
                : ButtonColours{0xFFFFFAF0, 0xFFECDCB9, look::brass};
}

/// A rounded box whose edge lies wholly inside `area`.
void drawBox(QPainter& painter, const QRect& area, double radius, const QPen& edge,
             const QBrush& ground) {
  const double inset = edge.widthF() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(edge);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

void drawButton(const QStyleOption& option, QPainter& painter, bool isMain) {
  const ButtonColours colours = coloursOf(option.state, isMain);
  QLinearGradient ground(option.rect.topLeft(), option.rect.bottomLeft());
  ground.setColorAt(0, QColor(colours.top));
  ground.setColorAt(1, QColor(colours.bottom));
  QPen edge(QColor(colours.edge), 1);
  if ((option.state & QStyle::State_HasFocus) != 0) {
    edge = isMain ? QPen(QColor(look::amber), 3) : QPen(QColor(look::petrol), 2);
  }
  drawBox(painter, option.rect, isMain ? panelRadius : buttonRadius, edge, ground);
}

void drawMenuHead(const QStyleOptionMenuItem& head, QPainter& painter, const QStyle& style) {
  painter.fillRect(head.rect, QColor(look::sand));
  const bool chosen = (head.state & QStyle::State_Selected) != 0;
  if (chosen) drawBox(painter, head.rect, 3, QPen(Qt::NoPen), QColor(look::petrol));
  style.drawItemText(&painter, head.rect, Qt::AlignCenter | Qt::TextShowMnemonic, head.palette,
                     true, head.text, chosen ? QPalette::HighlightedText : QPalette::WindowText);
}

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
  switch (type) {
    case CT_PushButton:
      return contents.expandedTo({0, leastTextHeight}) + buttonPadding;
    case CT_MenuBarItem:
      return contents + menuHeadPadding;
    default:
      return QProxyStyle::sizeFromContents(type, option, contents, widget);
  }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  switch (metric) {
    case PM_MenuBarItemSpacing:
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: {
      const int usual = QProxyStyle::pixelMetric(metric, option, widget);
      return widget == nullptr ? usual : std::max(usual, widget->fontMetrics().ascent());
    }
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

/// The accepting button stands first on every desktop.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

/// The arrow at the end of menus that do not fit is drawn here: to read it from its file loads
/// every picture format that the toolkit knows.
QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
  if (icon != SP_ToolBarHorizontalExtensionButton) {
    return QProxyStyle::standardIcon(icon, option, widget);
  }
  QPixmap arrow(9, 9);
  arrow.fill(Qt::transparent);
  QPainter painter(&arrow);
  painter.setPen(QPen(QColor(look::ink), 2));
  painter.drawPolyline(QPolygon({{2, 1}, {6, 4}, {2, 7}}));
  painter.end();
  return arrow;
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  switch (element) {
    case CE_PushButtonBevel:
      return drawButton(*option, *painter,
                        widget != nullptr && widget->property(mainButton).toBool());
    case CE_MenuBarItem:
      return drawMenuHead(*static_cast<const QStyleOptionMenuItem*>(option), *painter, *this);
    case CE_MenuBarEmptyArea:
      return painter->fillRect(option->rect, QColor(look::sand));
    default:
      return QProxyStyle::drawControl(element, option, painter, widget);
  }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_Frame:
      return drawBox(*painter, option->rect, panelRadius, QPen(QColor(look::edge), 1),
                     QColor(look::paper));
    case PE_FrameFocusRect:
      if (qobject_cast<const QPushButton*>(widget) != nullptr) return;  // its bevel shows the focus
      return drawBox(*painter, option->rect, 4, QPen(QColor(look::petrol), 1), Qt::NoBrush);
    case PE_PanelMenuBar:
      return painter->fillRect(option->rect, QColor(look::sand));
    case PE_PanelTipLabel:
      painter->fillRect(option->rect, QColor(look::brass));
      return painter->fillRect(option->rect.adjusted(1, 1, -1, -1), QColor(look::paper));
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace karvenis
