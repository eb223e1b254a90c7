// Paints the operations of a Lavagna: the same on the screen, in a picture file and on paper.
#pragma once

#include <QRectF>
#include <QSizeF>

#include "dialogs/lavagna.h"

class QPainter;

namespace orm {

// The size at which lines and letters have the pixels and points that the operations name. Other
// sizes keep the proportions.
QSizeF DrawingSize(const Lavagna& lavagna);

// Fills as much of `room` as the proportions allow, in its middle.
void PaintDrawing(QPainter& painter, const Lavagna& lavagna, const QRectF& room);

}  // namespace orm
