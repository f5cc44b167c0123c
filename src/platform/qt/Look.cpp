#include "platform/qt/Look.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

namespace karvenis {
namespace {

QPalette palette() {
  const QColor muted(0x8C, 0x82, 0x72);
  QPalette colours(QColor(0xEF, 0xE3, 0xCA), QColor(look::ground));
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    colours.setColor(role, QColor(look::ink));
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, muted);
  }
  colours.setColor(QPalette::Base, QColor(look::paper));
  colours.setColor(QPalette::ToolTipBase, QColor(look::paper));
  colours.setColor(QPalette::Highlight, QColor(look::petrol));
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::PlaceholderText, muted);
  colours.setColor(QPalette::Link, QColor(look::petrol));
  return colours;
}

/// Only what the style does not draw well enough by itself: raised warm buttons and a focus that
/// shows.
constexpr char sheet[] = R"(
QPushButton {
  background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #fffaf0, stop:1 #ecdcb9);
  border: 1px solid #b79f71; border-radius: 5px; padding: 5px 16px; min-height: 18px;
}
QPushButton:hover { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #fffdf8, stop:1 #f4e8cd); }
QPushButton:pressed { background: #e2cfa5; }
QPushButton:focus { border: 2px solid #1f5a60; padding: 4px 15px; }
QPushButton:disabled { color: #8c8272; background: #efe6d3; }
QRadioButton, QCheckBox { border: 1px solid transparent; border-radius: 4px; padding: 1px 4px 1px 2px; }
QRadioButton:focus, QCheckBox:focus { border-color: #1f5a60; }
QMenuBar { background: #efe3ca; color: #2a2622; border-bottom: 1px solid #d8c6a0; }
QMenuBar::item { padding: 5px 10px; background: transparent; }
QMenuBar::item:selected { background: #1f5a60; color: white; border-radius: 3px; }
QToolTip { background: #fffdf7; color: #2a2622; border: 1px solid #b79f71; padding: 2px; }
)";

}  // namespace

void applyLook(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(palette());
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/assets/karvenis.svg")));
  application.setStyleSheet(QLatin1String(sheet));
}

}  // namespace karvenis
