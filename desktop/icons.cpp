// The line drawings of the viewer's commands, on a grid of 24 by 24.
#include "desktop/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace orm {
namespace {

void Lines(QPainterPath& path, std::initializer_list<QPointF> points) {
  path.moveTo(*points.begin());
  for (const QPointF& point : points) path.lineTo(point);
}

void Sheet(QPainterPath& path, qreal left, qreal top, qreal right, qreal bottom) {
  Lines(path, {{right - 5, top},
               {left, top},
               {left, bottom},
               {right, bottom},
               {right, top + 5},
               {right - 5, top},
               {right - 5, top + 5},
               {right, top + 5}});
}

void Lens(QPainterPath& path, qreal x, qreal y, qreal radius) {
  path.addEllipse(QPointF(x, y), radius, radius);
  Lines(path, {{x + radius * 0.72, y + radius * 0.72}, {21, 21}});
}

// Lines of text, each from one place to another.
void TextLines(QPainterPath& path, std::initializer_list<std::pair<qreal, qreal>> lines) {
  qreal y = 5;
  for (const auto& [from, to] : lines) {
    Lines(path, {{from, y}, {to, y}});
    y += 14.0 / static_cast<qreal>(lines.size() - 1);
  }
}

QPainterPath PathOf(LineIcon shape) {
  QPainterPath path;
  switch (shape) {
    case LineIcon::Left:
      TextLines(path, {{4, 20}, {4, 14}, {4, 20}, {4, 12}});
      break;
    case LineIcon::Centre:
      TextLines(path, {{4, 20}, {7, 17}, {4, 20}, {8, 16}});
      break;
    case LineIcon::Right:
      TextLines(path, {{4, 20}, {10, 20}, {4, 20}, {12, 20}});
      break;
    case LineIcon::Justified:
      TextLines(path, {{4, 20}, {4, 20}, {4, 20}, {4, 20}});
      break;
    case LineIcon::Bullets:
      TextLines(path, {{9, 20}, {9, 20}, {9, 20}});
      for (const qreal y : {5, 12, 19}) path.addEllipse(QPointF(4.5, y), 1, 1);
      break;
    case LineIcon::Colour:
      Lines(path, {{6, 16}, {12, 3}, {18, 16}});
      Lines(path, {{8.3, 11}, {15.7, 11}});
      path.addRect(QRectF(4, 19.5, 16, 1.5));
      break;
    case LineIcon::Save:
      Lines(path, {{4, 4}, {16, 4}, {20, 8}, {20, 20}, {4, 20}, {4, 4}});
      Lines(path, {{7.5, 20}, {7.5, 13.5}, {16.5, 13.5}, {16.5, 20}});
      Lines(path, {{8, 4}, {8, 8.5}, {14.5, 8.5}, {14.5, 4}});
      break;
    case LineIcon::Print:
      Lines(path, {{7, 9}, {7, 3.5}, {17, 3.5}, {17, 9}});
      Lines(path, {{7, 17}, {3.5, 17}, {3.5, 9}, {20.5, 9}, {20.5, 17}, {17, 17}});
      Lines(path, {{7, 14}, {17, 14}, {17, 20.5}, {7, 20.5}, {7, 14}});
      break;
    case LineIcon::Preview:
      Lines(path,
            {{10, 20.5}, {4.5, 20.5}, {4.5, 3.5}, {13, 3.5}, {18, 8.5}, {13, 8.5}, {13, 3.5}});
      Lens(path, 14.5, 14.5, 4.5);
      break;
    case LineIcon::Pdf:
      Sheet(path, 5, 3, 19, 21);
      Lines(path, {{12, 10}, {12, 17.5}});
      Lines(path, {{8.8, 14.5}, {12, 17.7}, {15.2, 14.5}});
      break;
    case LineIcon::Back:
      Lines(path, {{20, 12}, {4, 12}});
      Lines(path, {{11, 5}, {4, 12}, {11, 19}});
      break;
    case LineIcon::Forward:
      Lines(path, {{4, 12}, {20, 12}});
      Lines(path, {{13, 5}, {20, 12}, {13, 19}});
      break;
    case LineIcon::Find:
      Lens(path, 10.5, 10.5, 6.5);
      break;
    case LineIcon::Edit:
      Lines(path, {{4, 20}, {5, 15.5}, {16.5, 4}, {20, 7.5}, {8.5, 19}, {4, 20}});
      Lines(path, {{13.5, 7}, {17, 10.5}});
      break;
    case LineIcon::Reload:
      path.arcMoveTo(QRectF(4, 4, 16, 16), 50);
      path.arcTo(QRectF(4, 4, 16, 16), 50, 280);
      Lines(path, {{17.5, 1.8}, {17.2, 6}, {13, 6.2}});
      break;
    case LineIcon::Larger:
      Lines(path, {{12, 5}, {12, 19}});
      [[fallthrough]];
    case LineIcon::Smaller:
      Lines(path, {{5, 12}, {19, 12}});
      break;
    case LineIcon::Up:
      Lines(path, {{5.5, 15}, {12, 8.5}, {18.5, 15}});
      break;
    case LineIcon::Down:
      Lines(path, {{5.5, 9}, {12, 15.5}, {18.5, 9}});
      break;
    case LineIcon::NewFolder:
      Lines(path, {{12, 10.5}, {12, 16.5}});
      Lines(path, {{9, 13.5}, {15, 13.5}});
      [[fallthrough]];
    case LineIcon::Folder:
      Lines(
          path,
          {{3.5, 19.5}, {3.5, 4.5}, {9.5, 4.5}, {12, 7.5}, {20.5, 7.5}, {20.5, 19.5}, {3.5, 19.5}});
      break;
    case LineIcon::Clock:
      path.addEllipse(QPointF(12, 12), 8.5, 8.5);
      Lines(path, {{12, 6.5}, {12, 12}, {16, 14.5}});
      break;
    case LineIcon::Close:
      Lines(path, {{6, 6}, {18, 18}});
      Lines(path, {{18, 6}, {6, 18}});
      break;
  }
  return path;
}

class LineIconEngine : public QIconEngine {
 public:
  explicit LineIconEngine(LineIcon shape) : shape_(shape) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor colour = QApplication::palette().color(group, QPalette::ButtonText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 24.0, rect.height() / 24.0);
    painter->strokePath(PathOf(shape_),
                        QPen(colour, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new LineIconEngine(shape_); }

 private:
  LineIcon shape_;
};

}  // namespace

QIcon IconOf(LineIcon shape) { return QIcon(new LineIconEngine(shape)); }

}  // namespace orm
