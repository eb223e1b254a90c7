// A drawing as the files and the sheet that leave the program.
#pragma once

#include <QImage>
#include <QPageLayout>
#include <QSizeF>
#include <string>

#include "dialogs/lavagna.h"

class QPainter;

namespace orm {

enum class DrawingKind { Svg, Png, Pdf, Dxf };

// The bytes of the file. SVG, PNG and PDF show the same picture, 190 mm wide or more; DXF has the
// measures in cm.
std::string FileOf(const Lavagna& drawing, DrawingKind kind);

// As a file shows it, 240 points to the inch.
QImage PictureOf(const Lavagna& drawing);

// How the sheet of a drawing lies.
QPageLayout::Orientation SheetOf(const Lavagna& drawing);

// On one sheet the drawing and what its form shows: data and results in their frames, the views
// that are not in front as well, buttons and empty lines left out. `page` in pixels of 1/96 inch;
// what would not fit is made smaller.
void PaintFormPage(QPainter& painter, const QSizeF& page, const Lavagna& drawing);

}  // namespace orm
