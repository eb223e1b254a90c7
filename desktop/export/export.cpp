// PDF, ODT and UTF-8 copies of a report, and its note for other programs.
#include "desktop/export/export.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QRawFont>

#include "desktop/export/odt.h"
#include "desktop/export/pages.h"
#include "interchange/interchange.h"
#include "interchange/report_facts.h"
#include "runtime/failure.h"

namespace orm {

std::string CopyOf(CopyKind kind, const QString& text, const QString& title,
                   const ReportNotes& notes) {
  if (kind == CopyKind::Pdf) return PdfOf(text, title, notes);
  return kind == CopyKind::Odt ? OdtOf(text, title) : Utf8Of(text);
}

bool IsOfTheNote(CopyKind kind) { return kind >= CopyKind::Json; }

std::string CopyOfNote(CopyKind kind, const WorkFolder& folder, const NotaDiCaso& note,
                       std::string_view report) {
  const Date day = GiornoDellaRelazione(report).value_or(SystemDate());
  if (kind == CopyKind::Json) return ParcellaInJson(folder, note.codice, note.lire, day);
  const MarchiCsv marks = kind == CopyKind::Csv ? MarchiCsv::Italiani : MarchiCsv::Semplici;
  return ParcellaInCsv(folder, note.codice, note.lire, marks, day);
}

std::string PdfOf(const QString& text, const QString& title, const ReportNotes& notes) {
  // What stands in for a missing font says of every character that it has it, but has no table.
  if (QRawFont::fromFont(ReportFont(11)).fontTable("cmap").isEmpty())
    throw RuntimeFailure("Sul sistema non c'è alcun carattere con cui comporre il documento PDF.");
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("ORM2002"));
    writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    writer.setResolution(600);
    ReportPages::PrepareA4(writer);
    const ReportPages pages(text, writer, notes);
    if (!PaintPages(pages, writer, 0, pages.Count() - 1))
      throw RuntimeFailure("Il documento PDF non può essere composto.");
  }
  return bytes.toStdString();
}

std::string OdtOf(const QString& text, const QString& title) {
  return OdtOf(VisibleLines(text), title, ReportFont(11).family());
}

std::string Utf8Of(const QString& text) {
  QString plain = text;
  plain.replace(QChar::LineSeparator, '\n');
  plain.replace(QChar(0x240D), '\n');
  return plain.toStdString();
}

}  // namespace orm
