// Lavagna: a drawing panel. Operations in world units are kept as a list; a player paints them on
// the screen or on paper, `dialogs/drawing/` writes them to files, and they can be told as text,
// one operation a line.
#pragma once

#include <string>
#include <utility>
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
  // What of a text stands at its point: a corner, the middle of an edge, or its own middle.
  enum class Anchor { TopLeft, Left, Centre, Right, Above, Below };
  Kind kind = Kind::Line;
  std::vector<Point> points;  // ends, centre, vertices, or the point at which a text is anchored
  double radius = 0;          // of an arc
  double from = 0, to = 360;  // degrees, counter-clockwise from the x axis
  std::string text;
  Anchor anchor = Anchor::TopLeft;
  bool upright = false;  // a text that is read from the right
  bool halo = false;     // a text with a rim of the background, to be read on hatching
  Colour colour;
  Stroke stroke = Stroke::Solid;
  int width = 1;      // of lines, pixels at 100 %
  int fontSize = 10;  // points
  bool bold = false;
  bool filled = false;    // a polygon or a whole circle painted inside
  bool hatching = false;  // a line that fills something, on a layer of its own in a CAD file
  bool measure = false;   // of a dimension line, on a layer of its own too
  bool verdict = false;   // a text that says whether what is drawn holds
  int view = -1;          // the view to scale that it belongs to, -1 for none
};

// A part of the drawing in which things are drawn to scale.
struct DrawView {
  double unit = 1;  // cm of a unit of the panel
  Point anchor;     // keeps its place where views of different scales stand on one sheet
};

class Lavagna : public Control {
 public:
  // The panel is a plane of `width` by `height` units, origin at the lower left, y upward. At 100 %
  // it is `pixelsWide` wide, which is the least size at which its texts have room. Lines and
  // letters keep their pixels and points in a larger picture; a smaller one takes them along.
  Lavagna(Form& form, std::string name, double width, double height, int pixelsWide = 900);

  // Empties the panel and sets pen, font and background to their beginnings.
  void Clear();
  void SetScale(double left, double bottom, double right, double top);
  void SetBackground(const Colour& colour);
  void SetColour(const Colour& colour);
  void SetStroke(DrawOperation::Stroke stroke);
  void SetWidth(int pixels);
  void SetFont(int size, bool bold = false);
  bool SetHalo(bool halo);  // as it was before
  void SetHatching(bool hatching);
  bool SetMeasure(bool measure);  // likewise
  // What follows is drawn to scale in a view of its own.
  void BeginView(const DrawView& view);
  void EndView();
  void DrawLine(double x1, double y1, double x2, double y2);
  void DrawArc(double x, double y, double radius, double from = 0, double to = 360);
  void DrawDisc(double x, double y, double radius);
  void DrawPolygon(std::vector<Point> points, bool filled = false);
  void DrawText(double x, double y, std::string text,
                DrawOperation::Anchor anchor = DrawOperation::Anchor::TopLeft,
                bool upright = false);
  void DrawVerdict(double x, double y, std::string text,
                   DrawOperation::Anchor anchor = DrawOperation::Anchor::TopLeft);

  // A picture of results that are those of other data: the words stand over it and in the place of
  // its verdict, on the screen and wherever else it goes. Clear takes them away.
  void SetNotice(std::string words);
  const std::string& Notice() const { return notice_; }
  bool HasVerdict() const;
  const std::string& SeenText(const DrawOperation& text) const;

  const std::vector<DrawOperation>& Operations() const { return operations_; }
  const Colour& Background() const { return background_; }
  double LeftEdge() const { return left_; }
  double BottomEdge() const { return bottom_; }
  double RightEdge() const { return right_; }
  double TopEdge() const { return top_; }
  int PixelsWide() const { return pixelsWide_; }
  const std::vector<DrawView>& Views() const { return views_; }

  // A drawing whose heights are not to scale takes all the width that its place has.
  void SetStretches(bool stretches) { stretches_ = stretches; }
  bool Stretches() const { return stretches_; }

  // Frames that take the place of the drawing's on the screen and stand beside it on paper.
  void SetOtherViews(std::vector<const Frame*> frames) { otherViews_ = std::move(frames); }
  const std::vector<const Frame*>& OtherViews() const { return otherViews_; }

  // Units that a text of the font that is set takes at 100 %, rather more than less.
  double TextWidth(const std::string& text) const;
  double LineHeight() const;

  std::string AsText() const;

  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return AsText(); }

 private:
  DrawOperation Pen(DrawOperation::Kind kind) const;
  void Add(DrawOperation operation);
  double homeWidth_, homeHeight_;
  int pixelsWide_;
  double left_ = 0, bottom_ = 0, right_, top_;
  Colour background_{255, 255, 255};
  std::string notice_;
  DrawOperation pen_;
  std::vector<DrawOperation> operations_;
  std::vector<DrawView> views_;
  bool stretches_ = false;
  std::vector<const Frame*> otherViews_;
};

}  // namespace orm
