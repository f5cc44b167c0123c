#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace karvenis {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A box's text for showing: character 13 becomes a line break.
inline QString toQtLines(std::string_view text) {
  return toQt(text).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

inline std::string fromQt(const QString& text) { return text.toStdString(); }

}  // namespace karvenis
