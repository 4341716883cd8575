#pragma once

#include <QCoreApplication>
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

/// A text of the platform's own, which a host translates with a QTranslator, in context "Quorvel".
inline QString Tr(const char* english) { return QCoreApplication::translate("Quorvel", english); }

inline std::string Stored(const QString& text) { return text.toStdString(); }

}  // namespace quorvel::qt
