// Lavagna: a drawing panel. Operations in world units are kept as a list; a player paints them on
// the screen or on paper, and they can be written as SVG or as text, one operation a line.
#pragma once

#include <string>
#include <vector>

#include "dialogs/control.h"

namespace orm {

struct Colour {
  int red = 0, green = 0, blue = 0;
  bool operator==(const Colour&) const = default;
};

struct Point {
  double x = 0, y = 0;
};

struct DrawOperation {
  enum class Kind { Line, Arc, Polygon, Text };
  enum class Stroke { Solid, Dashed, Dotted };
  Kind kind = Kind::Line;
  std::vector<Point> points;  // ends, centre, vertices, or the upper left corner of a text
  double radius = 0;          // of an arc
  double from = 0, to = 360;  // degrees, counter-clockwise from the x axis
  std::string text;
  Colour colour;
  Stroke stroke = Stroke::Solid;
  int width = 1;      // of lines, pixels at 100 %
  int fontSize = 10;  // points
  bool bold = false;
  bool filled = false;  // a polygon painted inside
};

class Lavagna : public Control {
 public:
  // The panel is a plane of `width` by `height` units, origin at the lower left, y upward. Widths
  // of lines and sizes of fonts are told for a panel that is `pixelsWide` wide (100 %); a larger or
  // smaller picture takes them along.
  Lavagna(Form& form, std::string name, double width, double height, int pixelsWide = 900);

  // Empties the panel and sets pen, font and background to their beginnings.
  void Clear();
  void SetScale(double left, double bottom, double right, double top);
  void SetBackground(const Colour& colour);
  void SetColour(const Colour& colour);
  void SetStroke(DrawOperation::Stroke stroke);
  void SetWidth(int pixels);
  void SetFont(int size, bool bold = false);
  void DrawLine(double x1, double y1, double x2, double y2);
  void DrawArc(double x, double y, double radius, double from = 0, double to = 360);
  void DrawPolygon(std::vector<Point> points, bool filled = false);
  // The position is the upper left corner of the text.
  void DrawText(double x, double y, std::string text);

  const std::vector<DrawOperation>& Operations() const { return operations_; }
  const Colour& Background() const { return background_; }
  double LeftEdge() const { return left_; }
  double BottomEdge() const { return bottom_; }
  double RightEdge() const { return right_; }
  double TopEdge() const { return top_; }
  int PixelsWide() const { return pixelsWide_; }

  std::string AsText() const;
  std::string AsSvg(int pixelsWide = 0) const;  // 0: at 100 %

  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return AsText(); }

 private:
  DrawOperation Pen(DrawOperation::Kind kind) const;
  void Add(DrawOperation operation);
  double homeWidth_, homeHeight_;
  int pixelsWide_;
  double left_ = 0, bottom_ = 0, right_, top_;
  Colour background_{255, 255, 255};
  DrawOperation pen_;
  std::vector<DrawOperation> operations_;
};

}  // namespace orm
