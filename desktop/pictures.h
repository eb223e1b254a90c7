// The pictures of the program: its mark, the main window's picture and the Euro mark.
#pragma once

#include <QIcon>
#include <QPixmap>

class QPainter;

namespace orm {

QIcon ProgramIcon();
// The main window's picture for a screen of that ratio of pixels.
QPixmap MainPicture(double pixelRatio);
// The Euro mark in a square of `side`, at the origin.
void PaintEuro(QPainter& painter, double side);

// The mark of a message: what it is, by form as well as by colour.
enum class Mark { Information, Question, Warning, Critical };
QPixmap MessageMark(Mark mark, int side, double pixelRatio);

}  // namespace orm
