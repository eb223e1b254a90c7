#include "dialogs/lavagna.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

// Drawings are compared as text: four decimals, as no eye sees more.
std::string Shown(double value) {
  std::string text = FormatPattern(value, "0.####");
  if (const auto comma = text.find(','); comma != std::string::npos) text[comma] = '.';
  return text;
}

std::string Shown(const Colour& c) {
  return NumberText(c.red) + "," + NumberText(c.green) + "," + NumberText(c.blue);
}

const char* NameOf(DrawOperation::Kind kind) {
  switch (kind) {
    case DrawOperation::Kind::Line:
      return "line";
    case DrawOperation::Kind::Arc:
      return "arc";
    case DrawOperation::Kind::Polygon:
      return "polygon";
    case DrawOperation::Kind::Text:
      return "text";
  }
  return "";
}

const char* NameOf(DrawOperation::Stroke stroke) {
  switch (stroke) {
    case DrawOperation::Stroke::Solid:
      return "";
    case DrawOperation::Stroke::Dashed:
      return " dashed";
    case DrawOperation::Stroke::Dotted:
      return " dotted";
  }
  return "";
}

const char* NameOf(DrawOperation::Anchor anchor) {
  switch (anchor) {
    case DrawOperation::Anchor::TopLeft:
      return "";
    case DrawOperation::Anchor::Left:
      return " left";
    case DrawOperation::Anchor::Centre:
      return " centre";
    case DrawOperation::Anchor::Right:
      return " right";
    case DrawOperation::Anchor::Above:
      return " above";
    case DrawOperation::Anchor::Below:
      return " below";
  }
  return "";
}

constexpr double kPixelsPerPoint = 96.0 / 72;

}  // namespace

Lavagna::Lavagna(Form& form, std::string name, double width, double height, int pixelsWide)
    : Control(form, Kind::Drawing, std::move(name), {}),
      homeWidth_(width),
      homeHeight_(height),
      pixelsWide_(pixelsWide),
      right_(width),
      top_(height) {}

void Lavagna::Clear() {
  operations_.clear();
  views_.clear();
  pen_ = {};
  background_ = {255, 255, 255};
  notice_.clear();
  left_ = bottom_ = 0;
  right_ = homeWidth_;
  top_ = homeHeight_;
  Refresh();
}

void Lavagna::SetScale(double left, double bottom, double right, double top) {
  left_ = left, bottom_ = bottom, right_ = right, top_ = top;
  Refresh();
}

void Lavagna::SetBackground(const Colour& colour) {
  background_ = colour;
  Refresh();
}

void Lavagna::SetColour(const Colour& colour) { pen_.colour = colour; }
void Lavagna::SetStroke(DrawOperation::Stroke stroke) { pen_.stroke = stroke; }
void Lavagna::SetWidth(int pixels) { pen_.width = pixels; }
void Lavagna::SetFont(int size, bool bold) { pen_.fontSize = size, pen_.bold = bold; }

bool Lavagna::SetHalo(bool halo) { return std::exchange(pen_.halo, halo); }
void Lavagna::SetHatching(bool hatching) { pen_.hatching = hatching; }
bool Lavagna::SetMeasure(bool measure) { return std::exchange(pen_.measure, measure); }

void Lavagna::BeginView(const DrawView& view) {
  pen_.view = static_cast<int>(views_.size());
  views_.push_back(view);
}
void Lavagna::EndView() { pen_.view = -1; }

DrawOperation Lavagna::Pen(DrawOperation::Kind kind) const {
  DrawOperation operation = pen_;
  operation.kind = kind;
  return operation;
}

void Lavagna::Add(DrawOperation operation) {
  // A point that is no number would spoil the whole picture on some screens: it is left out.
  for (const Point& p : operation.points)
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
  operations_.push_back(std::move(operation));
  Refresh();
}

void Lavagna::DrawLine(double x1, double y1, double x2, double y2) {
  DrawOperation operation = Pen(DrawOperation::Kind::Line);
  operation.points = {{x1, y1}, {x2, y2}};
  Add(std::move(operation));
}

void Lavagna::DrawArc(double x, double y, double radius, double from, double to) {
  DrawOperation operation = Pen(DrawOperation::Kind::Arc);
  operation.points = {{x, y}};
  operation.radius = radius, operation.from = from, operation.to = to;
  Add(std::move(operation));
}

void Lavagna::DrawPolygon(std::vector<Point> points, bool filled) {
  DrawOperation operation = Pen(DrawOperation::Kind::Polygon);
  operation.points = std::move(points);
  operation.filled = filled;
  Add(std::move(operation));
}

void Lavagna::DrawDisc(double x, double y, double radius) {
  DrawOperation operation = Pen(DrawOperation::Kind::Arc);
  operation.points = {{x, y}};
  operation.radius = radius, operation.filled = true;
  Add(std::move(operation));
}

void Lavagna::DrawText(double x, double y, std::string text, DrawOperation::Anchor anchor,
                       bool upright) {
  DrawOperation operation = Pen(DrawOperation::Kind::Text);
  operation.points = {{x, y}};
  operation.anchor = anchor, operation.upright = upright;
  operation.text = std::move(text);
  Add(std::move(operation));
}

double Lavagna::TextWidth(const std::string& text) const {
  const double em = pen_.bold ? 0.67 : 0.6;  // of a usual letter
  return static_cast<double>(Characters(text)) * em * pen_.fontSize * kPixelsPerPoint *
         (right_ - left_) / pixelsWide_;
}

double Lavagna::LineHeight() const {
  return 1.2 * pen_.fontSize * kPixelsPerPoint * (right_ - left_) / pixelsWide_;
}

void Lavagna::DrawVerdict(double x, double y, std::string text, DrawOperation::Anchor anchor) {
  DrawText(x, y, std::move(text), anchor);
  operations_.back().verdict = true;
}

void Lavagna::SetNotice(std::string words) {
  if (std::exchange(notice_, std::move(words)) != notice_) Refresh();
}

const std::string& Lavagna::SeenText(const DrawOperation& text) const {
  return text.verdict && !notice_.empty() ? notice_ : text.text;
}

bool Lavagna::HasVerdict() const {
  return std::ranges::any_of(operations_, &DrawOperation::verdict);
}

std::string Lavagna::AsText() const {
  std::string out = "scale " + Shown(left_) + " " + Shown(bottom_) + " " + Shown(right_) + " " +
                    Shown(top_) + "\nbackground " + Shown(background_) + "\n";
  if (!notice_.empty()) out += "notice \"" + notice_ + "\"\n";
  for (const DrawOperation& op : operations_) {
    out += NameOf(op.kind);
    for (const Point& p : op.points) out += " " + Shown(p.x) + " " + Shown(p.y);
    if (op.kind == DrawOperation::Kind::Arc)
      out += " r " + Shown(op.radius) + " " + Shown(op.from) + " " + Shown(op.to);
    if (op.kind == DrawOperation::Kind::Text) {
      out += " \"" + SeenText(op) + "\"" + NameOf(op.anchor) + (op.upright ? " upright" : "") +
             " font " + NumberText(op.fontSize) + (op.bold ? " bold" : "");
    } else {
      out += " width " + NumberText(op.width) + NameOf(op.stroke) + (op.filled ? " filled" : "");
    }
    out += " colour " + Shown(op.colour) + "\n";
  }
  return out;
}

}  // namespace orm
