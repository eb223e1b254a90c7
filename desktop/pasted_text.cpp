#include "desktop/pasted_text.h"

#include <QTextDocument>
#include <QToolTip>
#include <QWidget>
#include <algorithm>

namespace orm {
namespace {

void Say(QWidget* at, const QString& text) {
  QToolTip::showText(at->mapToGlobal(at->rect().center()), text, at, {}, 6000);
}

// Characters: what those of several bytes add is found at the save.
qsizetype LongestLine(const QString& text) {
  qsizetype longest = 0, length = 0;
  for (const QChar c : text) {
    length = c == '\n' || c == '\r' ? 0 : length + 1;
    longest = std::max(longest, length);
  }
  return longest;
}

bool IsControl(QChar c) {
  return (c < QChar(' ') && c != '\t' && c != '\n' && c != '\r') || c == QChar(0x7F);
}

}  // namespace

bool HasRoom(const QTextDocument& document, qsizetype more, const TextRoom& room, QWidget* at) {
  // Two bytes at a line's end; what characters of several bytes add is found at the save.
  const qsizetype now = document.characterCount() + document.blockCount();
  if (now + more <= static_cast<qsizetype>(room.whole)) return true;
  Say(at, QStringLiteral("Il testo sarebbe troppo grande per il suo file."));
  return false;
}

QString FitForPasting(QString text, const QTextDocument& document, const TextRoom& room,
                      QWidget* at) {
  const qsizetype before = text.size();
  text.removeIf(IsControl);
  if (!HasRoom(document, text.size(), room, at)) return {};
  if (LongestLine(text) > static_cast<qsizetype>(room.line)) {
    Say(at, QStringLiteral("Il testo incollato ha una riga troppo lunga per il suo file."));
    return {};
  }
  if (text.size() < before)
    Say(at, QStringLiteral("Dal testo incollato sono stati tolti i caratteri di controllo."));
  return text;
}

}  // namespace orm
