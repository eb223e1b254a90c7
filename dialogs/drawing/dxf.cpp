#include "dialogs/drawing/dxf.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

using Kind = DrawOperation::Kind;
using Anchor = DrawOperation::Anchor;
using Stroke = DrawOperation::Stroke;

constexpr const char* kLines = "DISEGNO";
constexpr const char* kTexts = "TESTI";
constexpr const char* kHatching = "CAMPITURE";
constexpr const char* kMeasures = "QUOTE";

const char* LayerOf(const DrawOperation& op) {
  if (op.measure) return kMeasures;
  if (op.hatching) return kHatching;
  return op.kind == Kind::Text ? kTexts : kLines;
}

// The numbered colours that all programs show alike; 7 is black on a white sheet.
struct Numbered {
  int number;
  Colour colour;
};
constexpr std::array<Numbered, 9> kColours = {{{1, {255, 0, 0}},
                                               {2, {255, 255, 0}},
                                               {3, {0, 255, 0}},
                                               {4, {0, 255, 255}},
                                               {5, {0, 0, 255}},
                                               {6, {255, 0, 255}},
                                               {7, {0, 0, 0}},
                                               {8, {128, 128, 128}},
                                               {9, {192, 192, 192}}}};

int NumberOf(const Colour& c) {
  const auto distance = [&](const Numbered& n) {
    const int r = n.colour.red - c.red, g = n.colour.green - c.green, b = n.colour.blue - c.blue;
    return r * r + g * g + b * b;
  };
  return std::min_element(kColours.begin(), kColours.end(),
                          [&](const auto& a, const auto& b) { return distance(a) < distance(b); })
      ->number;
}

// The diameter and the degree have signs of their own in this format; of what its letters lack
// (Greek) the name is written.
std::string Letters(const std::string& text) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t begin = at;
    const char32_t letter = NextCharacter(text, at);
    if (letter == U'Ø')
      out += "%%c";
    else if (letter == U'°')
      out += "%%d";
    else if (letter == U'σ')
      out += "sigma";
    else if (letter == U'τ')
      out += "tau";
    else
      out += FitsWindows1252(letter) ? ToWindows1252(text.substr(begin, at - begin)) : "?";
  }
  return out;
}

// 0 at the left, 1 in the middle, 2 at the right; 0 on the base line, 1 bottom, 2 middle, 3 top.
struct Justified {
  int sideways, upward;
};
Justified JustifiedBy(Anchor anchor) {
  switch (anchor) {
    case Anchor::TopLeft:
      return {0, 3};
    case Anchor::Left:
      return {0, 2};
    case Anchor::Centre:
      return {1, 2};
    case Anchor::Right:
      return {2, 2};
    case Anchor::Above:
      return {1, 1};
    case Anchor::Below:
      return {1, 3};
  }
  return {0, 0};
}

class Sheet {
 public:
  explicit Sheet(const Lavagna& lavagna) : lavagna_(lavagna) {
    for (const DrawView& view : lavagna.Views()) largest_ = std::max(largest_, view.unit);
    if (lavagna.Views().empty()) largest_ = 1;
  }
  std::string Written() {
    const bool scaled = !lavagna_.Views().empty();
    Pair(999, scaled ? "ORM2002: misure in cm" : "ORM2002: schema non in scala");
    Header(scaled);
    Tables();
    Section("ENTITIES");
    for (const DrawOperation& op : lavagna_.Operations()) Entity(op);
    Pair(0, "ENDSEC");
    Pair(0, "EOF");
    return out_;
  }

 private:
  void Pair(int code, const std::string& value) {
    out_ += Right("  " + NumberText(code), 3) + "\r\n" + value + "\r\n";
  }
  void Pair(int code, const char* value) { Pair(code, std::string(value)); }
  void Pair(int code, int value) { Pair(code, NumberText(value)); }
  void Pair(int code, double value) {
    std::string text = FormatPattern(value, "0.0#######");
    std::replace(text.begin(), text.end(), ',', '.');
    Pair(code, text);
  }
  void Section(const char* name) {
    Pair(0, "SECTION");
    Pair(2, name);
  }
  void At(int code, const Point& p) {
    Pair(code, p.x);
    Pair(code + 10, p.y);
    Pair(code + 20, 0.0);
  }

  double Unit(const DrawOperation& op) const {
    return op.view < 0 ? largest_ : lavagna_.Views()[static_cast<std::size_t>(op.view)].unit;
  }
  Point Place(const DrawOperation& op, const Point& p) const {
    if (op.view < 0) return {p.x * largest_, p.y * largest_};
    const auto& [unit, a] = lavagna_.Views()[static_cast<std::size_t>(op.view)];
    return {a.x * largest_ + (p.x - a.x) * unit, a.y * largest_ + (p.y - a.y) * unit};
  }
  double Pixel() const {  // units of the panel
    return (lavagna_.RightEdge() - lavagna_.LeftEdge()) / lavagna_.PixelsWide();
  }

  void Header(bool scaled) {
    Section("HEADER");
    const auto variable = [&](const char* name, int code, const auto& value) {
      Pair(9, name);
      Pair(code, value);
    };
    variable("$ACADVER", 1, "AC1009");
    variable("$DWGCODEPAGE", 3, "ANSI_1252");
    variable("$MEASUREMENT", 70, 1);
    variable("$INSUNITS", 70, scaled ? 5 : 0);
    Pair(9, "$EXTMIN");
    At(10, {lavagna_.LeftEdge() * largest_, lavagna_.BottomEdge() * largest_});
    Pair(9, "$EXTMAX");
    At(10, {lavagna_.RightEdge() * largest_, lavagna_.TopEdge() * largest_});
    Pair(0, "ENDSEC");
  }
  void LineType(const char* name, const char* looks, std::vector<double> pixels) {
    double length = 0;
    for (double& part : pixels) {
      part *= Pixel() * largest_;
      length += std::max(part, -part);
    }
    Pair(0, "LTYPE");
    Pair(2, name);
    Pair(70, 0);
    Pair(3, looks);
    Pair(72, 65);
    Pair(73, static_cast<int>(pixels.size()));
    Pair(40, length);
    for (const double part : pixels) Pair(49, part);
  }
  void Tables() {
    Section("TABLES");
    const auto table = [&](const char* name, int entries) {
      Pair(0, "TABLE");
      Pair(2, name);
      Pair(70, entries);
    };
    table("LTYPE", 3);
    LineType("CONTINUOUS", "continua", {});
    LineType("DASHED", "tratteggiata", {8, -5});
    LineType("DOT", "punteggiata", {2, -4});
    Pair(0, "ENDTAB");
    table("LAYER", 4);
    for (const char* layer : {kLines, kTexts, kHatching, kMeasures}) {
      Pair(0, "LAYER");
      Pair(2, layer);
      Pair(70, 0);
      Pair(62, 7);
      Pair(6, "CONTINUOUS");
    }
    Pair(0, "ENDTAB");
    Pair(0, "ENDSEC");
  }

  void Begin(const char* entity, const char* layer, const DrawOperation& op) {
    Pair(0, entity);
    Pair(8, layer);
    if (op.stroke != Stroke::Solid && op.kind != Kind::Text)
      Pair(6, op.stroke == Stroke::Dashed ? "DASHED" : "DOT");
    Pair(62, NumberOf(op.colour));
  }
  void Entity(const DrawOperation& op) {
    switch (op.kind) {
      case Kind::Line:
        Begin("LINE", LayerOf(op), op);
        At(10, Place(op, op.points[0]));
        return At(11, Place(op, op.points[1]));
      case Kind::Arc:
        return Arc(op);
      case Kind::Polygon:
        return op.filled ? Fill(op) : Outline(op);
      case Kind::Text:
        return Text(op);
    }
  }
  void Arc(const DrawOperation& op) {
    const bool whole = op.to - op.from >= 360;
    Begin(whole ? "CIRCLE" : "ARC", kLines, op);
    At(10, Place(op, op.points[0]));
    Pair(40, op.radius * Unit(op));
    if (whole) return;
    Pair(50, op.from < 0 ? op.from + 360 : op.from);
    Pair(51, op.to);
  }
  void Outline(const DrawOperation& op) {
    Begin("POLYLINE", kLines, op);
    Pair(66, 1);
    At(10, {0, 0});
    Pair(70, 1);  // closed
    for (const Point& p : op.points) {
      Pair(0, "VERTEX");
      Pair(8, kLines);
      At(10, Place(op, p));
    }
    Pair(0, "SEQEND");
    Pair(8, kLines);
  }
  // Triangles from the first vertex: what is filled has no bays.
  void Fill(const DrawOperation& op) {
    for (std::size_t i = 2; i < op.points.size(); ++i) {
      Begin("SOLID", kHatching, op);
      At(10, Place(op, op.points[0]));
      At(11, Place(op, op.points[i - 1]));
      At(12, Place(op, op.points[i]));
      At(13, Place(op, op.points[i]));
    }
  }
  void Text(const DrawOperation& op) {
    constexpr double kCapital = 0.72 * 96 / 72;  // pixels of a point of the font
    const Point at = Place(op, op.points[0]);
    const auto [sideways, upward] = JustifiedBy(op.anchor);
    Begin("TEXT", LayerOf(op), op);
    At(10, at);
    Pair(40, kCapital * op.fontSize * Pixel() * Unit(op));
    Pair(1, Letters(lavagna_.SeenText(op)));
    Pair(50, op.upright ? 90.0 : 0.0);
    Pair(41, 0.8);  // as narrow as the letters of the screen
    Pair(72, sideways);
    At(11, at);
    Pair(73, upward);
  }

  const Lavagna& lavagna_;
  double largest_ = 0;
  std::string out_;
};

}  // namespace

std::string DxfOf(const Lavagna& lavagna) { return Sheet(lavagna).Written(); }

}  // namespace orm
