#include "desktop/drawing/paint_drawing.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>

#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kHalo = 4;  // pixels, both sides of a stroke together

QPen PenOf(const DrawOperation& op) {
  QPen pen(InQt(op.colour), op.width);
  if (op.stroke == DrawOperation::Stroke::Dashed)
    pen.setDashPattern({8.0 / op.width, 5.0 / op.width});
  if (op.stroke == DrawOperation::Stroke::Dotted)
    pen.setDashPattern({2.0 / op.width, 4.0 / op.width});
  pen.setJoinStyle(Qt::MiterJoin);
  return pen;
}

// From the anchor to the left end of the base line.
QPointF TextStart(DrawOperation::Anchor anchor, const QFontMetricsF& metrics, double width) {
  using Anchor = DrawOperation::Anchor;
  const double middle = (metrics.ascent() - metrics.descent()) / 2;
  switch (anchor) {
    case Anchor::TopLeft:
      return {0, metrics.ascent()};
    case Anchor::Left:
      return {0, middle};
    case Anchor::Centre:
      return {-width / 2, middle};
    case Anchor::Right:
      return {-width, middle};
    case Anchor::Above:
      return {-width / 2, -metrics.descent()};
    case Anchor::Below:
      return {-width / 2, metrics.ascent()};
  }
  return {};
}

// Over a picture whose results are no longer those of the data.
void PaintNotice(QPainter& painter, const Lavagna& lavagna, const QSizeF& size) {
  QColor veil = InQt(lavagna.Background());
  veil.setAlphaF(0.6F);
  painter.fillRect(QRectF(QPointF(0, 0), size), veil);
  QFont font = painter.font();
  font.setPixelSize(static_cast<int>(std::lround(16 * kPixelsPerPoint)));
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(QColor(176, 32, 24));
  painter.drawText(QRectF(QPointF(0, 0), size), Qt::AlignCenter | Qt::TextWordWrap,
                   ToQt(lavagna.Notice()));
}

void PaintText(QPainter& painter, const DrawOperation& op, const QPointF& anchor,
               const Lavagna& lavagna) {
  QFont font = painter.font();
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(op.fontSize * kPixelsPerPoint))));
  font.setBold(op.bold);
  const QFontMetricsF metrics(font);
  const QString text = ToQt(lavagna.SeenText(op));
  const QPointF start = TextStart(op.anchor, metrics, metrics.horizontalAdvance(text));
  painter.save();
  painter.setFont(font);
  painter.translate(anchor);
  if (op.upright) painter.rotate(-90);
  if (op.halo) {
    QPainterPath rim;
    rim.addText(start, font, text);
    painter.strokePath(
        rim, QPen(InQt(lavagna.Background()), kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  painter.drawText(start, text);
  painter.restore();
}

void PaintArc(QPainter& painter, const QPointF& centre, double radius, const DrawOperation& op) {
  const QRectF box(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
  if (op.to - op.from >= 360) return painter.drawEllipse(box);
  QPainterPath path;
  path.arcMoveTo(box, op.from);
  path.arcTo(box, op.from, op.to - op.from);
  painter.drawPath(path);
}

}  // namespace

QColor InQt(const Colour& c) { return {c.red, c.green, c.blue}; }

QSizeF DrawingSize(const Lavagna& lavagna) {
  const double width = lavagna.PixelsWide();
  return {width, width * (lavagna.TopEdge() - lavagna.BottomEdge()) /
                     (lavagna.RightEdge() - lavagna.LeftEdge())};
}

void PaintDrawing(QPainter& painter, const Lavagna& lavagna, const QRectF& room) {
  const QSizeF least = DrawingSize(lavagna);
  const double zoom = std::min(room.width() / least.width(), room.height() / least.height());
  const double smaller = std::min(1.0, zoom);  // lines and letters
  QSizeF size = least * (zoom / smaller);
  const double scale = size.width() / (lavagna.RightEdge() - lavagna.LeftEdge());
  if (lavagna.Stretches()) size.setWidth(room.width() / smaller);
  const double along = size.width() / (lavagna.RightEdge() - lavagna.LeftEdge());
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(room, InQt(lavagna.Background()));
  painter.translate(room.center() - QPointF(size.width(), size.height()) * smaller / 2);
  painter.scale(smaller, smaller);
  painter.setClipRect(QRectF(QPointF(0, 0), size));
  const auto at = [&](const Point& p) {
    return QPointF((p.x - lavagna.LeftEdge()) * along, (lavagna.TopEdge() - p.y) * scale);
  };
  const bool stale = !lavagna.Notice().empty();
  for (const DrawOperation& op : lavagna.Operations()) {
    painter.setPen(PenOf(op));
    painter.setBrush(op.filled ? QBrush(InQt(op.colour)) : QBrush(Qt::NoBrush));
    switch (op.kind) {
      case DrawOperation::Kind::Line:
        painter.drawLine(at(op.points[0]), at(op.points[1]));
        break;
      case DrawOperation::Kind::Arc:
        PaintArc(painter, at(op.points[0]), op.radius * scale, op);
        break;
      case DrawOperation::Kind::Text:
        PaintText(painter, op, at(op.points[0]), lavagna);
        break;
      case DrawOperation::Kind::Polygon: {
        QPolygonF polygon;
        for (const Point& p : op.points) polygon << at(p);
        painter.drawPolygon(polygon);
        break;
      }
    }
  }
  if (stale) PaintNotice(painter, lavagna, size);
  painter.restore();
}

}  // namespace orm
