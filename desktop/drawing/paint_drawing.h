// Paints the operations of a Lavagna: the same on the screen, in a picture file and on paper.
#pragma once

#include <QColor>
#include <QRectF>
#include <QSizeF>

#include "dialogs/lavagna.h"

class QPainter;

namespace orm {

QColor InQt(const Colour& colour);

// Its size at 100 %, in pixels of 1/96 inch.
QSizeF DrawingSize(const Lavagna& lavagna);

// As large as `room` and its proportions allow (wider, where it stretches), in the middle, on the
// background of the drawing. A
// unit of `room` is a pixel of 1/96 inch: lines and letters keep their pixels and points where
// there is more room than at 100 %, and grow smaller with the drawing where there is less.
void PaintDrawing(QPainter& painter, const Lavagna& lavagna, const QRectF& room);

}  // namespace orm
