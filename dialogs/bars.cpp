#include "dialogs/bars.h"

#include <cstddef>
#include <numbers>
#include <string>

namespace orm {
namespace {

struct Reading {
  std::vector<BarGroup> groups;
  bool whole = false;  // of the form
};

// Up to three digits, not beginning with 0; -1 where there is none.
int Number(const std::string& text, std::size_t& at) {
  const std::size_t start = at;
  int value = 0;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9' && at - start < 3)
    value = value * 10 + (text[at++] - '0');
  return at == start || text[start] == '0' ? -1 : value;
}

Reading Read(std::string_view raw) {
  std::string text;
  for (const char c : raw)
    if (c != ' ') text += c == 'd' ? 'D' : c;
  if (text.empty() || text == "0") return {{}, true};
  Reading reading;
  for (std::size_t at = 0;;) {
    const int count = Number(text, at);
    if (count < 0 || at == text.size() || text[at++] != 'D') return {};
    const int diameter = Number(text, at);
    if (diameter < 0) return {};
    reading.groups.push_back({count, diameter});
    if (at == text.size()) break;
    if (text[at++] != '+') return {};
  }
  reading.whole = true;
  return reading;
}

}  // namespace

std::vector<BarGroup> BarGroups(std::string_view text) { return Read(text).groups; }
double BarsArea(std::string_view text) {
  double area = 0;
  for (const auto& [count, diameter] : Read(text).groups)
    area += count * std::numbers::pi * (diameter / 20.0) * (diameter / 20.0);
  return area;
}
bool IsBarsText(std::string_view text) { return Read(text).whole; }
bool AdmitsBarsDraft(std::string_view text) {
  return text.find_first_not_of("0123456789Dd+ ") == std::string_view::npos;
}

}  // namespace orm
