#include "desktop/pictures.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QResource>

// The pictures lie in a static library, from which only what is called for is linked.
static void LoadPictures() { Q_INIT_RESOURCE(resources); }

namespace orm {

namespace {

// The bar and the point of "!" and "i".
void PaintSign(QPainter& painter, const QColor& colour, const QRectF& bar, const QPointF& point) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(bar, 2, 2);
  painter.drawEllipse(point, 2.9, 2.9);
}

}  // namespace

QIcon ProgramIcon() {
  LoadPictures();
  QIcon icon;
  for (const int side : {16, 32, 48, 128}) icon.addFile(QStringLiteral(":/icona-%1.png").arg(side));
  return icon;
}

QPixmap MainPicture(double pixelRatio) {
  LoadPictures();
  if (pixelRatio <= 1) {
    const QResource points(QStringLiteral(":/immagine-1.argb"));
    constexpr int kWidth = 560;
    return QPixmap::fromImage({points.data(), kWidth,
                               static_cast<int>(points.size()) / (4 * kWidth),
                               QImage::Format_ARGB32_Premultiplied});
  }
  // Twice as many points serve every greater ratio.
  QPixmap picture(QStringLiteral(":/immagine-2.png"));
  picture.setDevicePixelRatio(2);
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

QPixmap MessageMark(Mark mark, int side, double pixelRatio) {
  QPixmap picture(QSize(side, side) * pixelRatio);
  picture.setDevicePixelRatio(pixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / 48.0, side / 48.0);
  painter.setPen(Qt::NoPen);
  if (mark == Mark::Warning) {
    painter.setPen(QPen(QColor(242, 169, 0), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(242, 169, 0));
    painter.drawPolygon(QPolygonF({QPointF(24, 6), QPointF(44, 41), QPointF(4, 41)}));
    PaintSign(painter, QColor(50, 36, 0), QRectF(21.5, 15, 5, 15), QPointF(24, 36));
  } else if (mark == Mark::Critical) {
    painter.setBrush(QColor(198, 40, 40));
    painter.drawEllipse(QRectF(3, 3, 42, 42));
    painter.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(16, 16), QPointF(32, 32));
    painter.drawLine(QPointF(32, 16), QPointF(16, 32));
  } else {
    painter.setBrush(QColor(38, 103, 163));
    painter.drawEllipse(QRectF(3, 3, 42, 42));
    if (mark == Mark::Information) {
      PaintSign(painter, Qt::white, QRectF(21.5, 20, 5, 16), QPointF(24, 14));
    } else {
      QPainterPath hook;
      hook.moveTo(17, 19);
      hook.cubicTo(17, 9, 32, 10, 31, 19);
      hook.cubicTo(30.5, 24, 24, 23, 24, 29);
      painter.setPen(QPen(Qt::white, 4.5, Qt::SolidLine, Qt::RoundCap));
      painter.setBrush(Qt::NoBrush);
      painter.drawPath(hook);
      PaintSign(painter, Qt::white, {}, QPointF(24, 36));
    }
  }
  return picture;
}

}  // namespace orm
