// A drawing of the program standing in the text of a technical note.
#pragma once

#include <QPicture>
#include <QString>
#include <QTextObjectInterface>
#include <map>

namespace orm {

// Drawings by the name under which a text asks for them: "![Le armature](picture:armature)".
using NoteDrawings = std::map<QString, QPicture>;
QString DrawingName(const QTextFormat& format);  // "armature"

// Lays out and paints the drawings, all as wide as the lines. Only names that are among the
// drawings may come.
class DrawingObject : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  DrawingObject(const NoteDrawings& drawings, qreal width) : drawings_(drawings), width_(width) {}
  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& room, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 private:
  const NoteDrawings& drawings_;
  qreal width_;
};

}  // namespace orm
