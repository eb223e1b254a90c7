#include "desktop/pictures.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>

// The pictures lie in a static library, from which only what is called for is linked.
static void LoadPictures() { Q_INIT_RESOURCE(pictures); }

namespace orm {

QIcon ProgramIcon() {
  LoadPictures();
  QIcon icon;
  for (const int side : {16, 32, 48, 128}) icon.addFile(QStringLiteral(":/icona-%1.png").arg(side));
  return icon;
}

QPixmap MainPicture(double pixelRatio) {
  LoadPictures();
  // Twice as many points serve every greater ratio.
  QPixmap picture(pixelRatio > 1 ? ":/immagine-2.png" : ":/immagine-1.png");
  if (pixelRatio > 1) picture.setDevicePixelRatio(2);
  return picture;
}

void PaintEuro(QPainter& painter, double side) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / 100, side / 100);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(28, 63, 136));
  painter.drawRoundedRect(QRectF(2, 2, 96, 96), 18, 18);
  QPen pen(QColor(255, 204, 51), 9);
  pen.setCapStyle(Qt::FlatCap);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  QPainterPath bow;
  const QRectF round(30, 22, 56, 56);
  bow.arcMoveTo(round, 48);
  bow.arcTo(round, 48, 264);
  painter.drawPath(bow);
  pen.setWidthF(7);
  painter.setPen(pen);
  painter.drawLine(QPointF(18, 44), QPointF(64, 44));
  painter.drawLine(QPointF(18, 56), QPointF(61, 56));
  painter.restore();
}

}  // namespace orm
