#include "desktop/export/report_notes.h"

#include <QStringList>

#include "desktop/export/pages.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

// A step, its words in a column behind its number.
QStringList Step(const QString& line) {
  const QString step = line.trimmed();
  const auto words = step.indexOf(' ') + 1;
  QString before = QString(4, ' ') + step.left(words);
  QStringList rows =
      FoldedByWords(step.mid(words), kReportColumns - static_cast<int>(before.size()));
  for (QString& row : rows) {
    row.prepend(before);
    before.fill(' ');
  }
  return rows;
}

}  // namespace

ReportNotes NotesOf(const std::map<std::size_t, Spiegazione>& righe) {
  ReportNotes notes;
  QStringList lines;
  for (const auto& [line, spiegazione] : righe) {
    const auto number = static_cast<int>(notes.numbers.size()) + 1;
    notes.numbers[static_cast<int>(line) - 1] = number;
    if (lines.isEmpty())
      lines = {
          QStringLiteral("====================== SPIEGAZIONE DELLE CIFRE ======================="),
          QString()};
    const QStringList said = ToQt(TestoSpiegazione(spiegazione)).split('\n', Qt::SkipEmptyParts);
    lines += QStringLiteral("(%1) ").arg(number) + ToQt(spiegazione.testo);
    for (const QString& step : said.mid(1)) lines += Step(step);
    lines += QString();
  }
  notes.text = lines.join('\n');
  return notes;
}

}  // namespace orm
