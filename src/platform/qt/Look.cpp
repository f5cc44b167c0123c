#include "platform/qt/Look.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QToolTip>

#include "platform/qt/Artwork.h"
#include "platform/qt/Style.h"
#include "prerendered/Sizes.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

QPalette palette() {
  QPalette colours(QColor{look::sand}, QColor{look::ground});
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    colours.setColor(role, QColor(look::ink));
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, QColor(look::pale));
  }
  colours.setColor(QPalette::Base, QColor(look::paper));
  colours.setColor(QPalette::ToolTipBase, QColor(look::paper));
  colours.setColor(QPalette::Highlight, QColor(look::petrol));
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::PlaceholderText, QColor(look::pale));
  colours.setColor(QPalette::Link, QColor(look::petrol));
  return colours;
}

/// In the sizes that a title bar and a list of windows show.
QIcon icon() {
  QIcon made;
  for (const QSize& size : {prerendered::smallIcon, prerendered::largeIcon}) {
    made.addPixmap(prerenderedDrawing(u"karvenis"_s, size));
  }
  return made;
}

}  // namespace

void applyLook() {
  QApplication::setStyle(new Style);
  QApplication::setPalette(palette());
  QToolTip::setPalette(palette());
  QApplication::setWindowIcon(icon());
}

}  // namespace karvenis
