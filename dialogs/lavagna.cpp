#include "dialogs/lavagna.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "runtime/numbers.h"

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

std::string Escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
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
  pen_ = {};
  background_ = {255, 255, 255};
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

void Lavagna::DrawText(double x, double y, std::string text) {
  DrawOperation operation = Pen(DrawOperation::Kind::Text);
  operation.points = {{x, y}};
  operation.text = std::move(text);
  Add(std::move(operation));
}

std::string Lavagna::AsText() const {
  std::string out = "scale " + Shown(left_) + " " + Shown(bottom_) + " " + Shown(right_) + " " +
                    Shown(top_) + "\nbackground " + Shown(background_) + "\n";
  for (const DrawOperation& op : operations_) {
    out += NameOf(op.kind);
    for (const Point& p : op.points) out += " " + Shown(p.x) + " " + Shown(p.y);
    if (op.kind == DrawOperation::Kind::Arc)
      out += " r " + Shown(op.radius) + " " + Shown(op.from) + " " + Shown(op.to);
    if (op.kind == DrawOperation::Kind::Text) {
      out += " \"" + op.text + "\" font " + NumberText(op.fontSize) + (op.bold ? " bold" : "");
    } else {
      out += " width " + NumberText(op.width) + NameOf(op.stroke) + (op.filled ? " filled" : "");
    }
    out += " colour " + Shown(op.colour) + "\n";
  }
  return out;
}

std::string Lavagna::AsSvg(int pixelsWide) const {
  if (pixelsWide == 0) pixelsWide = pixelsWide_;
  const double scale = pixelsWide / (right_ - left_);
  const double height = (top_ - bottom_) * scale;
  const auto px = [&](const Point& p) { return Shown((p.x - left_) * scale); };
  const auto py = [&](const Point& p) { return Shown((top_ - p.y) * scale); };
  const auto rgb = [](const Colour& c) { return "rgb(" + Shown(c) + ")"; };
  const std::string size =
      "width=\"" + NumberText(pixelsWide) + "\" height=\"" + Shown(height) + "\"";
  std::string out = "<svg xmlns=\"http://www.w3.org/2000/svg\" " + size + " viewBox=\"0 0 " +
                    NumberText(pixelsWide) + " " + Shown(height) + "\">\n<rect " + size +
                    " fill=\"" + rgb(background_) + "\"/>\n";
  for (const DrawOperation& op : operations_) {
    std::string pen =
        " stroke=\"" + rgb(op.colour) + "\" stroke-width=\"" + NumberText(op.width) + "\"";
    if (op.stroke == DrawOperation::Stroke::Dashed) pen += " stroke-dasharray=\"8 5\"";
    if (op.stroke == DrawOperation::Stroke::Dotted) pen += " stroke-dasharray=\"2 4\"";
    pen += " fill=\"" + (op.filled ? rgb(op.colour) : std::string("none")) + "\"";
    switch (op.kind) {
      case DrawOperation::Kind::Line:
        out += "<line x1=\"" + px(op.points[0]) + "\" y1=\"" + py(op.points[0]) + "\" x2=\"" +
               px(op.points[1]) + "\" y2=\"" + py(op.points[1]) + "\"" + pen + "/>\n";
        break;
      case DrawOperation::Kind::Arc: {
        const double sweep = op.to - op.from;
        const std::string r = Shown(op.radius * scale);
        if (sweep >= 360) {
          out += "<circle cx=\"" + px(op.points[0]) + "\" cy=\"" + py(op.points[0]) + "\" r=\"" +
                 r + "\"" + pen + "/>\n";
          break;
        }
        const auto at = [&](double degrees) {
          const double angle = degrees * std::numbers::pi / 180;
          return Point{op.points[0].x + op.radius * std::cos(angle),
                       op.points[0].y + op.radius * std::sin(angle)};
        };
        out += "<path d=\"M " + px(at(op.from)) + " " + py(at(op.from)) + " A " + r + " " + r +
               " 0 " + (sweep > 180 ? "1" : "0") + " 0 " + px(at(op.to)) + " " + py(at(op.to)) +
               "\"" + pen + "/>\n";
        break;
      }
      case DrawOperation::Kind::Polygon:
        out += "<polygon points=\"";
        for (const Point& p : op.points) out += px(p) + "," + py(p) + " ";
        out += "\"" + pen + "/>\n";
        break;
      case DrawOperation::Kind::Text:
        // The position is the upper left corner, SVG wants the base line.
        out += "<text x=\"" + px(op.points[0]) + "\" y=\"" + py(op.points[0]) + "\" dy=\"" +
               NumberText(op.fontSize) + "pt\" font-family=\"sans-serif\" font-size=\"" +
               NumberText(op.fontSize) + "pt\"" + (op.bold ? " font-weight=\"bold\"" : "") +
               " fill=\"" + rgb(op.colour) + "\">" + Escaped(op.text) + "</text>\n";
        break;
    }
  }
  return out + "</svg>\n";
}

}  // namespace orm
