#include "dialogs/main_window.h"

#include <algorithm>

namespace orm {
namespace {

bool Holds(const MenuItem& item, std::string_view name) {
  if (item.children.empty()) return item.name == name;
  return std::any_of(item.children.begin(), item.children.end(),
                     [&](const MenuItem& child) { return Holds(child, name); });
}

void AddCommands(const std::vector<MenuItem>& menu, std::vector<std::string>& names) {
  for (const MenuItem& item : menu) {
    if (item.children.empty() && !item.IsSeparator()) names.push_back(item.name);
    AddCommands(item.children, names);
  }
}

}  // namespace

const MenuItem* TopOf(const std::vector<MenuItem>& menu, std::string_view commandName) {
  const auto found = std::find_if(menu.begin(), menu.end(),
                                  [&](const MenuItem& top) { return Holds(top, commandName); });
  return found == menu.end() ? nullptr : &*found;
}

std::vector<std::string> CommandsOf(const std::vector<MenuItem>& menu) {
  std::vector<std::string> names;
  AddCommands(menu, names);
  return names;
}

}  // namespace orm
