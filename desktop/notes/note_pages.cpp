#include "desktop/notes/note_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>

#include "desktop/dress/page_dress.h"
#include "desktop/notes/note_drawing.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr int kDotsPerInch = 96;  // the units in which a note is laid out
constexpr int kResolution = 600;
constexpr qreal kSides = 22, kTop = 20, kBottom = 24;  // margins, mm
constexpr qreal kBodyPoints = 9.5;
constexpr int kDrawing = QTextFormat::UserObject + 1;

qreal Units(qreal mm) { return mm / 25.4 * kDotsPerInch; }

// The places where the text asks for a drawing become objects of their own.
void PutDrawings(QTextDocument& document, const NoteDrawings& drawings) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      QTextCharFormat format = fragment.charFormat();
      if (!format.isImageFormat() || !format.toImageFormat().name().startsWith("picture:"))
        continue;
      const QString name = DrawingName(format);
      if (drawings.count(name) == 0)
        throw RuntimeFailure("Manca il disegno \"" + name.toStdString() + "\".");
      format.setObjectType(kDrawing);
      QTextCursor cursor(&document);
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      break;  // the fragments of the block are others now; one drawing stands in a block
    }
}

void Compose(QTextDocument& document, const QString& markdown, const NoteDrawings& drawings) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSizeF(kBodyPoints);
  document.setDefaultFont(font);
  document.setDocumentMargin(0);
  document.setUseDesignMetrics(true);
  document.setMarkdown(markdown);
  DressPage(document, ColoursOnPaper(), kBodyPoints);
  PutDrawings(document, drawings);
}

void PaintFoot(QPainter& painter, const QSizeF& text, const QString& title, int page, int pages) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(11);
  painter.setFont(font);
  painter.setPen(QColor(96, 96, 96));
  const QRectF foot(0, text.height() + Units(6), text.width(), Units(6));
  painter.drawLine(foot.topLeft(), foot.topRight());
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("ORM2002 - ") + title);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                   QStringLiteral("%1 / %2").arg(page).arg(pages));
}

}  // namespace

std::string NotePdf(const QString& markdown, const NoteDrawings& drawings) {
  const QSizeF text(Units(210 - 2 * kSides), Units(297 - kTop - kBottom));
  DrawingObject object(drawings, text.width());
  QTextDocument document;
  document.documentLayout()->registerHandler(kDrawing, &object);
  Compose(document, markdown, drawings);
  document.setPageSize(text);

  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    const QString title = document.begin().text();
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("ORM2002"));
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(kSides, kTop, kSides, 0), QPageLayout::Millimeter);
    QPainter painter(&writer);
    const qreal zoom = static_cast<qreal>(kResolution) / kDotsPerInch;
    painter.scale(zoom, zoom);
    for (int page = 0; page < document.pageCount(); ++page) {
      if (page > 0) writer.newPage();
      painter.save();
      painter.setClipRect(QRectF(QPointF(0, 0), text));  // a drawing of the next page begins early
      painter.translate(0, -page * text.height());
      document.drawContents(&painter, QRectF(QPointF(0, page * text.height()), text));
      painter.restore();
      PaintFoot(painter, text, title, page + 1, document.pageCount());
    }
  }
  return bytes.toStdString();
}

}  // namespace orm
