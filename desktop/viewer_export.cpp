// PDF, ODT and UTF-8 copies of a report.
#include "desktop/viewer_export.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QTextFrame>
#include <algorithm>

#include "desktop/viewer_pages.h"
#include "runtime/failure.h"

namespace orm {
namespace {

// Text documents are measured in pixels of 1/96 inch.
constexpr qreal kPixelsPerMillimetre = 96 / 25.4;
constexpr qreal kPageWidth = 210, kPageHeight = 297, kMargin = 20;
constexpr qreal kLetterWidth = 0.602;  // of the report's font, in parts of its size

// Size in points at which so many columns fill the page between its margins, 11 at most.
qreal OdtPointSize(int columns) {
  const qreal points = (kPageWidth - 2 * kMargin) / 25.4 * 72 / columns / kLetterWidth;
  return std::min<qreal>(11, static_cast<int>(points * 2) / 2.0);
}

}  // namespace

std::string PdfOf(const QString& text, const QString& title) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("ORM2002"));
    writer.setResolution(600);
    ReportPages::PrepareA4(writer);
    const ReportPages pages(text, writer);
    if (!PaintPages(pages, writer, 0, pages.Count() - 1))
      throw RuntimeFailure("Il documento PDF non può essere composto.");
  }
  return bytes.toStdString();
}

std::string OdtOf(const QString& text) {
  const QStringList lines = VisibleLines(text);
  QTextDocument document;
  document.setPageSize(QSizeF(kPageWidth, kPageHeight) * kPixelsPerMillimetre);
  QTextFrameFormat frame = document.rootFrame()->frameFormat();
  frame.setMargin(kMargin * kPixelsPerMillimetre);
  document.rootFrame()->setFrameFormat(frame);

  QTextCharFormat letters;
  const QFont font = ReportFont(OdtPointSize(ColumnsOf(lines)));
  letters.setFontFamilies({font.family()});
  letters.setFontFixedPitch(true);
  letters.setFontPointSize(font.pointSizeF());
  QTextCursor cursor(&document);
  cursor.setCharFormat(letters);
  cursor.insertText(lines.join('\n'), letters);

  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!QTextDocumentWriter(&buffer, "ODF").write(&document))
    throw RuntimeFailure("Il documento ODT non può essere composto.");
  return bytes.toStdString();
}

std::string Utf8Of(const QString& text) {
  QString plain = text;
  plain.replace(QChar::LineSeparator, '\n');
  plain.replace(QChar(0x240D), '\n');
  return plain.toStdString();
}

}  // namespace orm
