#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quorvel::qt {

/// A model's text as the toolkit takes it.
inline QString Shown(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// The same for places where the toolkit reads "&" as the mark of a shortcut key.
inline QString Captioned(std::string_view utf8) {
  return Shown(utf8).replace(QLatin1Char('&'), QLatin1String("&&"));
}

inline std::string Stored(const QString& text) { return text.toStdString(); }

}  // namespace quorvel::qt
