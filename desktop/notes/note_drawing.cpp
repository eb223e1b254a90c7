#include "desktop/notes/note_drawing.h"

#include <QPainter>

namespace orm {

QString DrawingName(const QTextFormat& format) {
  return format.toImageFormat().name().section(':', 1);
}

QSizeF DrawingObject::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
  const QSizeF size = drawings_.at(DrawingName(format)).boundingRect().size();
  return size * (width_ / size.width());
}

void DrawingObject::drawObject(QPainter* painter, const QRectF& room, QTextDocument*, int,
                               const QTextFormat& format) {
  const QPicture& picture = drawings_.at(DrawingName(format));
  // A picture is played at the dots of its paper unless told otherwise.
  const qreal dots = static_cast<qreal>(picture.logicalDpiX()) / painter->device()->logicalDpiX();
  const qreal zoom = room.width() / picture.boundingRect().width() * dots;
  painter->save();
  painter->translate(room.topLeft());
  painter->scale(zoom, zoom);
  painter->drawPicture(-picture.boundingRect().topLeft(), picture);
  painter->restore();
}

}  // namespace orm
