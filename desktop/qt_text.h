// Texts between the logic (UTF-8) and the widgets.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace orm {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

// A text for a widget that would take '&' as the mark of a key.
inline QString Literal(std::string_view text) { return ToQt(text).replace('&', "&&"); }

}  // namespace orm
