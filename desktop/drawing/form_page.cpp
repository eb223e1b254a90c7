// What a form shows, beside its drawing on one sheet.
#include <QPainter>
#include <QTextDocument>
#include <algorithm>

#include "desktop/drawing/drawing_files.h"
#include "desktop/drawing/form_text.h"
#include "desktop/drawing/paint_drawing.h"
#include "desktop/qt_text.h"
#include "dialogs/form.h"

namespace orm {
namespace {

constexpr double kUpright = 700;        // pixels: a wider drawing wants a sheet that lies
constexpr double kGap = 14;             // pixels between title, drawing and data
constexpr double kMostOfThePage = 0.5;  // that the drawing takes
constexpr double kTitlePoints = 11, kTextPoints = 9;

QFont FontOf(const QPainter& painter, double points) {
  QFont font = painter.font();
  font.setPixelSize(qRound(points * 96 / 72));
  return font;
}

// Fills `room` from its upper edge, smaller where the text needs more.
void PaintText(QPainter& painter, const QString& html, const QFont& font, const QRectF& room) {
  QTextDocument document;
  SetUpSheetText(document, font);
  document.setHtml(html);
  document.setTextWidth(room.width());
  const QSizeF size(std::max(document.idealWidth(), 1.0), std::max(document.size().height(), 1.0));
  const double zoom = std::min({1.0, room.width() / size.width(), room.height() / size.height()});
  painter.save();
  painter.translate(room.topLeft());
  painter.scale(zoom, zoom);
  document.drawContents(&painter);
  painter.restore();
}

}  // namespace

QPageLayout::Orientation SheetOf(const Lavagna& drawing) {
  return DrawingSize(drawing).width() > kUpright ? QPageLayout::Landscape : QPageLayout::Portrait;
}

void PaintFormPage(QPainter& painter, const QSizeF& page, const Lavagna& drawing) {
  const Form& form = drawing.Owner();
  const double title = 2.4 * kTitlePoints * 96 / 72;
  PaintText(painter, "<b>" + ToQt(form.Title()).toHtmlEscaped() + "</b>",
            FontOf(painter, kTitlePoints), {0, 0, page.width(), title});
  const QSizeF size = DrawingSize(drawing).scaled(page.width(), kMostOfThePage * page.height(),
                                                  Qt::KeepAspectRatio);
  const QRectF picture(QPointF(0, title), size);
  PaintDrawing(painter, drawing, picture);
  painter.setPen(QPen(Qt::gray, 1));
  painter.drawRect(picture);
  painter.setPen(Qt::black);
  const double top = picture.bottom() + kGap;
  const QFont font = FontOf(painter, kTextPoints);
  PaintText(painter, FormAsHtml(form, drawing.OtherViews(), font, page.width()), font,
            {0, top, page.width(), page.height() - top});
}

}  // namespace orm
