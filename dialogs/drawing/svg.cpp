#include "dialogs/drawing/svg.h"

#include <cmath>
#include <numbers>

#include "runtime/numbers.h"

namespace orm {
namespace {

using Anchor = DrawOperation::Anchor;

std::string Number(double value) {
  std::string text = FormatPattern(value, "0.####");
  if (const auto comma = text.find(','); comma != std::string::npos) text[comma] = '.';
  return text;
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + "\"";
}
std::string Attribute(const char* name, double value) { return Attribute(name, Number(value)); }

std::string Rgb(const Colour& c) {
  return "rgb(" + Number(c.red) + "," + Number(c.green) + "," + Number(c.blue) + ")";
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

// From the anchor down to the base line, in heights of a letter.
double BaseLine(Anchor anchor) {
  if (anchor == Anchor::TopLeft || anchor == Anchor::Below) return 0.95;
  return anchor == Anchor::Above ? -0.22 : 0.36;
}

const char* Sideways(Anchor anchor) {
  if (anchor == Anchor::TopLeft || anchor == Anchor::Left) return "start";
  return anchor == Anchor::Right ? "end" : "middle";
}

class Picture {
 public:
  Picture(const Lavagna& lavagna, int pixelsWide)
      : lavagna_(lavagna),
        width_(pixelsWide),
        scale_(pixelsWide / (lavagna.RightEdge() - lavagna.LeftEdge())) {}
  std::string Written() const {
    const double height = (lavagna_.TopEdge() - lavagna_.BottomEdge()) * scale_;
    const std::string size = Attribute("width", width_) + Attribute("height", height);
    std::string out = "<svg" + Attribute("xmlns", "http://www.w3.org/2000/svg") + size +
                      Attribute("viewBox", "0 0 " + Number(width_) + " " + Number(height)) +
                      ">\n<rect" + size + Attribute("fill", Rgb(lavagna_.Background())) + "/>\n";
    for (const DrawOperation& op : lavagna_.Operations()) out += Element(op);
    if (!lavagna_.Notice().empty()) out += Notice(size, height);
    return out + "</svg>\n";
  }

 private:
  double X(const Point& p) const { return (p.x - lavagna_.LeftEdge()) * scale_; }
  double Y(const Point& p) const { return (lavagna_.TopEdge() - p.y) * scale_; }
  std::string At(const Point& p) const { return Number(X(p)) + " " + Number(Y(p)); }

  std::string Element(const DrawOperation& op) const {
    switch (op.kind) {
      case DrawOperation::Kind::Line:
        return "<line" + Attribute("x1", X(op.points[0])) + Attribute("y1", Y(op.points[0])) +
               Attribute("x2", X(op.points[1])) + Attribute("y2", Y(op.points[1])) + Pen(op) +
               "/>\n";
      case DrawOperation::Kind::Arc:
        return Arc(op);
      case DrawOperation::Kind::Polygon: {
        std::string points;
        for (const Point& p : op.points) points += (points.empty() ? "" : " ") + At(p);
        return "<polygon" + Attribute("points", points) + Pen(op) + "/>\n";
      }
      case DrawOperation::Kind::Text:
        return Text(op);
    }
    return {};
  }
  static std::string Pen(const DrawOperation& op) {
    std::string pen = Attribute("stroke", Rgb(op.colour)) + Attribute("stroke-width", op.width);
    if (op.stroke == DrawOperation::Stroke::Dashed) pen += Attribute("stroke-dasharray", "8 5");
    if (op.stroke == DrawOperation::Stroke::Dotted) pen += Attribute("stroke-dasharray", "2 4");
    return pen + Attribute("fill", op.filled ? Rgb(op.colour) : "none");
  }
  std::string Arc(const DrawOperation& op) const {
    const double r = op.radius * scale_;
    if (op.to - op.from >= 360)
      return "<circle" + Attribute("cx", X(op.points[0])) + Attribute("cy", Y(op.points[0])) +
             Attribute("r", r) + Pen(op) + "/>\n";
    const auto end = [&](double degrees) {
      const double angle = degrees * std::numbers::pi / 180;
      return At({op.points[0].x + op.radius * std::cos(angle),
                 op.points[0].y + op.radius * std::sin(angle)});
    };
    return "<path" +
           Attribute("d", "M " + end(op.from) + " A " + Number(r) + " " + Number(r) + " 0 " +
                              (op.to - op.from > 180 ? "1" : "0") + " 0 " + end(op.to)) +
           Pen(op) + "/>\n";
  }
  std::string Text(const DrawOperation& op) const {
    const Point& p = op.points[0];
    std::string out = "<text" + Attribute("x", X(p)) + Attribute("y", Y(p)) +
                      Attribute("dy", Number(BaseLine(op.anchor) * op.fontSize) + "pt") +
                      Attribute("font-family", "sans-serif") +
                      Attribute("font-size", Number(op.fontSize) + "pt") +
                      Attribute("text-anchor", Sideways(op.anchor));
    if (op.text.find("  ") != std::string::npos) out += Attribute("xml:space", "preserve");
    if (op.bold) out += Attribute("font-weight", "bold");
    if (op.upright) out += Attribute("transform", "rotate(-90 " + At(p) + ")");
    if (op.halo)
      out += Attribute("stroke", Rgb(lavagna_.Background())) + Attribute("stroke-width", 4) +
             Attribute("stroke-linejoin", "round") + Attribute("paint-order", "stroke");
    return out + Attribute("fill", Rgb(op.colour)) + ">" + Escaped(lavagna_.SeenText(op)) +
           "</text>\n";
  }

  // A veil over everything, and the words on it.
  std::string Notice(const std::string& size, double height) const {
    return "<rect" + size + Attribute("fill", Rgb(lavagna_.Background())) +
           Attribute("fill-opacity", 0.6) + "/>\n<text" + Attribute("x", width_ / 2.0) +
           Attribute("y", height / 2) + Attribute("text-anchor", "middle") +
           Attribute("font-family", "sans-serif") + Attribute("font-size", "16pt") +
           Attribute("font-weight", "bold") + Attribute("fill", "rgb(176,32,24)") + ">" +
           Escaped(lavagna_.Notice()) + "</text>\n";
  }

  const Lavagna& lavagna_;
  int width_;
  double scale_;
};

}  // namespace

std::string SvgOf(const Lavagna& lavagna, int pixelsWide) {
  return Picture(lavagna, pixelsWide == 0 ? lavagna.PixelsWide() : pixelsWide).Written();
}

}  // namespace orm
