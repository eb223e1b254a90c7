#include "desktop/pasted_text.h"

#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace orm {
namespace {

void Say(QWidget* at, const QString& text) {
  QToolTip::showText(at->mapToGlobal(at->rect().center()), text, at, {}, 6000);
}

bool IsControl(QChar c) {
  return (c < QChar(' ') && c != '\t' && c != '\n' && c != '\r') || c == QChar(0x7F);
}

}  // namespace

bool HasRoom(const QTextDocument& document, qsizetype more, std::size_t most, QWidget* at) {
  // Two bytes at a line's end; what characters of several bytes add is found at the save.
  const qsizetype now = document.characterCount() + document.blockCount();
  if (now + more <= static_cast<qsizetype>(most)) return true;
  Say(at, QStringLiteral("Il testo sarebbe troppo grande per il suo file."));
  return false;
}

QString FitForPasting(QString text, const QTextDocument& document, std::size_t most, QWidget* at) {
  const qsizetype before = text.size();
  text.removeIf(IsControl);
  if (!HasRoom(document, text.size(), most, at)) return {};
  if (text.size() < before)
    Say(at, QStringLiteral("Dal testo incollato sono stati tolti i caratteri di controllo."));
  return text;
}

}  // namespace orm
