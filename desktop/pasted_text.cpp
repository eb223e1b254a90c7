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

struct Extent {
  qsizetype longest = 0;
  int ends = 0;
};

Extent ExtentOf(const QString& text) {
  Extent extent;
  qsizetype length = 0;
  for (const QChar c : text) {
    const bool end = c == '\n' || c == QChar::ParagraphSeparator;
    length = end ? 0 : length + 1;
    extent.longest = std::max(extent.longest, length);
    if (end) ++extent.ends;
  }
  return extent;
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
  const bool cleaned = text.size() < before;
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace('\r', '\n');
  if (!HasRoom(document, text.size(), room, at)) return {};
  const Extent extent = ExtentOf(text);
  if (extent.longest > static_cast<qsizetype>(room.line)) {
    Say(at, QStringLiteral("Il testo incollato ha una riga troppo lunga per il suo file."));
    return {};
  }
  if (document.blockCount() + extent.ends > room.lines) {
    Say(at, QStringLiteral("Il testo avrebbe troppe righe per il suo file."));
    return {};
  }
  if (cleaned)
    Say(at, QStringLiteral("Dal testo incollato sono stati tolti i caratteri di controllo."));
  return text;
}

}  // namespace orm
