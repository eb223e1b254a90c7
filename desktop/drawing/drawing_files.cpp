#include "desktop/drawing/drawing_files.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>

#include "desktop/drawing/paint_drawing.h"
#include "desktop/qt_text.h"
#include "dialogs/drawing/dxf.h"
#include "dialogs/drawing/svg.h"
#include "dialogs/form.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr double kLeastWidth = 720;   // pixels of 1/96 inch: 190 mm
constexpr double kPictureZoom = 2.5;  // pixels of a PNG for one of these
constexpr double kInch = 96, kMillimetres = 25.4 / kInch;

QSizeF SizeOf(const Lavagna& drawing) {
  const QSizeF size = DrawingSize(drawing);
  return size * std::max(1.0, kLeastWidth / size.width());
}

std::string PngOf(const Lavagna& drawing) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!PictureOf(drawing).save(&buffer, "PNG"))  // no memory for it, say
    throw RuntimeFailure("Non è stato possibile comporre l'immagine.");
  return bytes.toStdString();
}

std::string PdfOf(const Lavagna& drawing) {
  const QSizeF size = SizeOf(drawing);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(ToQt(drawing.Owner().Title()).trimmed());
  writer.setCreator(QStringLiteral("ORM2002"));
  writer.setPageSize(
      QPageSize(size * kMillimetres, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.scale(writer.resolution() / kInch, writer.resolution() / kInch);
  PaintDrawing(painter, drawing, {QPointF(0, 0), size});
  painter.end();
  return bytes.toStdString();
}

}  // namespace

QImage PictureOf(const Lavagna& drawing) {
  const QSizeF size = SizeOf(drawing);
  QImage picture((size * kPictureZoom).toSize(), QImage::Format_RGB32);
  picture.setDotsPerMeterX(qRound(1000 * kPictureZoom / kMillimetres));
  picture.setDotsPerMeterY(qRound(1000 * kPictureZoom / kMillimetres));
  picture.fill(InQt(drawing.Background()));  // its edges may lie within a pixel
  QPainter painter(&picture);
  painter.scale(kPictureZoom, kPictureZoom);
  PaintDrawing(painter, drawing, {QPointF(0, 0), size});
  return picture;
}

std::string FileOf(const Lavagna& drawing, DrawingKind kind) {
  switch (kind) {
    case DrawingKind::Svg:
      return SvgOf(drawing, qRound(SizeOf(drawing).width()));
    case DrawingKind::Png:
      return PngOf(drawing);
    case DrawingKind::Pdf:
      return PdfOf(drawing);
    case DrawingKind::Dxf:
      return DxfOf(drawing);
  }
  return {};
}

}  // namespace orm
