#include "platform/qt/Style.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr QSize buttonPadding(34, 12);
constexpr int leastTextHeight = 18;
constexpr int leastTextLetters = 7;
constexpr QSize menuBarItemPadding(20, 10);
constexpr QSize menuEntryPadding(28, 10);
constexpr int menuShortcutGap = 24;
constexpr int separatorHeight = 9;
constexpr int boxIconSize = 44;
constexpr int scrollBarWidth = 14;
constexpr double buttonRadius = 5;
constexpr double panelRadius = 7;

struct Metric {
  QStyle::PixelMetric metric;
  int pixels;
};

constexpr int padding = 16;  // of every window
constexpr int gap = 12;      // between controls
/// What does not grow with the letters, in pixels.
constexpr Metric fixedMetrics[] = {
    {QStyle::PM_MenuBarItemSpacing, 0},
    {QStyle::PM_MenuBarHMargin, 0},
    {QStyle::PM_MenuBarVMargin, 0},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
    {QStyle::PM_MenuHMargin, 5},
    {QStyle::PM_MenuVMargin, 5},
    {QStyle::PM_LayoutLeftMargin, padding},
    {QStyle::PM_LayoutTopMargin, padding},
    {QStyle::PM_LayoutRightMargin, padding},
    {QStyle::PM_LayoutBottomMargin, padding},
    {QStyle::PM_LayoutHorizontalSpacing, gap},
    {QStyle::PM_LayoutVerticalSpacing, gap},
    {QStyle::PM_RadioButtonLabelSpacing, 8},
    {QStyle::PM_CheckBoxLabelSpacing, 8},
};

/// The colours of a button in one of its states, from above to below, and of its edge.
struct ButtonColours {
  unsigned top, bottom, edge;
};

ButtonColours coloursOf(QStyle::State state, bool isPrimary) {
  if ((state & QStyle::State_Enabled) == 0) return {look::faded, look::faded, look::brass};
  if ((state & (QStyle::State_Sunken | QStyle::State_On)) != 0) {
    return isPrimary ? ButtonColours{look::deepPetrol, look::deepPetrol, look::deepPetrol}
                     : ButtonColours{0xFFE2CFA5, 0xFFE2CFA5, look::brass};
  }
  if ((state & QStyle::State_MouseOver) != 0) {
    return isPrimary ? ButtonColours{0xFF3A8D93, look::petrol, look::deepPetrol}
                     : ButtonColours{0xFFFFFDF8, 0xFFF4E8CD, look::brass};
  }
  return isPrimary ? ButtonColours{0xFF2F7D83, 0xFF174A50, look::deepPetrol}
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

void drawButton(const QStyleOption& option, QPainter& painter, bool isPrimary) {
  const ButtonColours colours = coloursOf(option.state, isPrimary);
  QLinearGradient ground(option.rect.topLeft(), option.rect.bottomLeft());
  ground.setColorAt(0, QColor(colours.top));
  ground.setColorAt(1, QColor(colours.bottom));
  QPen edge(QColor(colours.edge), 1);
  if ((option.state & QStyle::State_HasFocus) != 0) {
    edge = isPrimary ? QPen(QColor(look::amber), 3) : QPen(QColor(look::petrol), 2);
  }
  drawBox(painter, option.rect, isPrimary ? panelRadius : buttonRadius, edge, ground);
}

void drawMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter, const QStyle& style) {
  painter.fillRect(item.rect, QColor(look::sand));
  const bool chosen = (item.state & QStyle::State_Selected) != 0;
  if (chosen) drawBox(painter, item.rect, 3, QPen(Qt::NoPen), QColor(look::petrol));
  style.drawItemText(&painter, item.rect, Qt::AlignCenter | Qt::TextShowMnemonic, item.palette,
                     true, item.text, chosen ? QPalette::HighlightedText : QPalette::WindowText);
}

/// A separator, or an entry with its words and, at the right, its shortcut.
void drawMenuEntry(const QStyleOptionMenuItem& entry, QPainter& painter, const QStyle& style) {
  const QRect inside =
      entry.rect.adjusted(menuEntryPadding.width() / 2, 0, -menuEntryPadding.width() / 2, 0);
  if (entry.menuItemType == QStyleOptionMenuItem::Separator) {
    painter.setPen(QColor(look::edge));
    return painter.drawLine(inside.left(), inside.center().y(), inside.right(),
                            inside.center().y());
  }
  const bool enabled = (entry.state & QStyle::State_Enabled) != 0;
  const bool chosen = enabled && (entry.state & QStyle::State_Selected) != 0;
  if (chosen) drawBox(painter, entry.rect, 3, QPen(Qt::NoPen), QColor(look::petrol));
  const auto colour = chosen ? QPalette::HighlightedText : QPalette::WindowText;
  const auto draw = [&](int alignment, const QString& words) {
    style.drawItemText(&painter, inside, alignment | Qt::AlignVCenter | Qt::TextShowMnemonic,
                       entry.palette, enabled, words, colour);
  };
  draw(Qt::AlignLeft, entry.text.section(u'\t', 0, 0));
  draw(Qt::AlignRight, entry.text.section(u'\t', 1));
}

QSize menuEntrySize(const QStyleOptionMenuItem& entry, QSize words) {
  if (entry.menuItemType == QStyleOptionMenuItem::Separator) return {1, separatorHeight};
  if (entry.text.contains(u'\t')) {
    words.rwidth() += menuShortcutGap + entry.reservedShortcutWidth;
  }
  return QSize(words.width(), entry.fontMetrics.height()) + menuEntryPadding;
}

/// The arrow at the end of menus that do not fit is drawn here: to read it from its file loads
/// every picture format that the toolkit knows.
QIcon moreMenusArrow() {
  QPixmap arrow(9, 9);
  arrow.fill(Qt::transparent);
  QPainter painter(&arrow);
  painter.setPen(QPen(QColor(look::ink), 2));
  painter.drawPolyline(QPolygon({{2, 1}, {6, 4}, {2, 7}}));
  painter.end();
  return arrow;
}

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
  switch (type) {
    case CT_PushButton:
      return contents.expandedTo(
                 {leastTextLetters * option->fontMetrics.averageCharWidth(), leastTextHeight}) +
             buttonPadding;
    case CT_MenuBarItem:
      return contents + menuBarItemPadding;
    case CT_MenuItem:
      return menuEntrySize(*static_cast<const QStyleOptionMenuItem*>(option), contents);
    default:
      return QProxyStyle::sizeFromContents(type, option, contents, widget);
  }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  const auto* const own = std::ranges::find(fixedMetrics, metric, &Metric::metric);
  if (own != std::end(fixedMetrics)) return own->pixels;
  switch (metric) {
    case PM_MessageBoxIconSize:
      return qRound(boxIconSize * letterGrowth());
    case PM_ScrollBarExtent:
      return qRound(scrollBarWidth * letterGrowth());
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

/// The accepting button stands first on every desktop, and no button has an icon.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
  switch (icon) {
    case SP_MessageBoxQuestion:
      return boxIcon(u"question"_s, widget);
    case SP_MessageBoxWarning:
      return boxIcon(u"warning"_s, widget);
    case SP_MessageBoxCritical:
      return boxIcon(u"critical"_s, widget);
    case SP_ToolBarHorizontalExtensionButton:
      return moreMenusArrow();
    default:
      return QProxyStyle::standardIcon(icon, option, widget);
  }
}

/// Rendered for the device pixels of the screen that `widget` is on.
QIcon Style::boxIcon(const QString& part, const QWidget* widget) const {
  const int size = pixelMetric(PM_MessageBoxIconSize, nullptr, widget);
  const qreal ratio = widget == nullptr ? qApp->devicePixelRatio() : widget->devicePixelRatioF();
  return artwork_.pixmap(u"boxes.svg"_s, part, {size, size}, ratio);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  switch (element) {
    case CE_PushButtonBevel:
      return drawButton(*option, *painter,
                        widget != nullptr && widget->property(primaryButton).toBool());
    case CE_MenuBarItem:
      return drawMenuBarItem(*static_cast<const QStyleOptionMenuItem*>(option), *painter, *this);
    case CE_MenuItem:
      return drawMenuEntry(*static_cast<const QStyleOptionMenuItem*>(option), *painter, *this);
    case CE_MenuBarEmptyArea:
      return painter->fillRect(option->rect, QColor(look::sand));
    default:
      return QProxyStyle::drawControl(element, option, painter, widget);
  }
}

/// The slider of a scroll bar has a colour of its own, so that the user sees that there is more.
void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control != CC_ScrollBar) return;
  const QRect slider = subControlRect(control, option, SC_ScrollBarSlider, widget);
  drawBox(*painter, slider.adjusted(2, 2, -2, -2), 3, QPen(Qt::NoPen), QColor(look::petrol));
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
    case PE_PanelMenu:
      painter->fillRect(option->rect, QColor(look::brass));
      return painter->fillRect(option->rect.adjusted(1, 1, -1, -1), QColor(look::ground));
    case PE_FrameMenu:
      return;  // its panel has a frame
    case PE_PanelTipLabel:
      painter->fillRect(option->rect, QColor(look::brass));
      return painter->fillRect(option->rect.adjusted(1, 1, -1, -1), QColor(look::paper));
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace karvenis
