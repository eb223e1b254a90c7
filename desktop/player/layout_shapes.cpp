#include "desktop/player/layout_shapes.h"

#include <algorithm>

namespace orm {

bool IsField(Control::Kind kind) {
  return kind == Control::Kind::TextBox || kind == Control::Kind::NumberBox ||
         kind == Control::Kind::BarsBox || kind == Control::Kind::Combo ||
         kind == Control::Kind::List || kind == Control::Kind::Date ||
         kind == Control::Kind::Slider;
}

bool HasTitle(const Layout& part) {
  if (part.kind == Layout::Kind::Group) return !part.control->Caption().empty();
  const bool holds = part.kind == Layout::Kind::Row || part.kind == Layout::Kind::Column;
  return holds && !part.children.empty() && HasTitle(part.children[0]);
}

const Layout& TitledGroup(const Layout& part) {
  return part.kind == Layout::Kind::Group ? part : TitledGroup(part.children[0]);
}

bool HoldsDrawing(const Layout& part) {
  return (part.control != nullptr && part.control->GetKind() == Control::Kind::Drawing) ||
         std::any_of(part.children.begin(), part.children.end(), HoldsDrawing);
}

bool IsFieldItem(const Layout& part) {
  return part.kind == Layout::Kind::Item &&
         (IsField(part.control->GetKind()) ||
          (part.control->GetKind() == Control::Kind::Label && !part.control->Caption().empty()));
}

bool IsLine(const Layout& part) {
  if (part.kind != Layout::Kind::Row || part.children.size() < 2) return false;
  const bool items = std::all_of(part.children.begin(), part.children.end(),
                                 [](const Layout& p) { return p.kind == Layout::Kind::Item; });
  if (!items) return false;
  const Control::Kind first = part.children[0].control->GetKind();
  const Control::Kind second = part.children[1].control->GetKind();
  const bool box = first == Control::Kind::Check || first == Control::Kind::Option;
  return box ? second != first : IsField(first);
}

const Layout& FirstOf(const Layout& line) {
  return line.kind == Layout::Kind::Row && !line.children.empty() ? line.children[0] : line;
}

bool IsTable(const std::vector<Layout>& lines) {
  return lines.size() > 1 && lines[0].kind == Layout::Kind::Row &&
         std::all_of(lines[0].children.begin(), lines[0].children.end(), [](const Layout& part) {
           return part.kind == Layout::Kind::Item &&
                  part.control->GetKind() == Control::Kind::Label;
         });
}

}  // namespace orm
