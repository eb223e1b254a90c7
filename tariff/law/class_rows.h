// Which row of a table is for works of a class and a category.
//
// A row names its works in `chiave`: digits are classes, the letters behind them categories, as in
// "1abcd" and "23". Without letters it is for all categories of its classes.
#pragma once

#include <algorithm>
#include <string_view>

namespace orm {

constexpr bool Comprende(std::string_view chiave, std::string_view classe,
                         std::string_view categoria) {
  const auto classi = chiave.substr(0, chiave.find_first_of("abcdefg"));
  const auto categorie = chiave.substr(classi.size());
  return classe.size() == 1 && classi.find(classe) != std::string_view::npos &&
         (categorie.empty() ||
          (categoria.size() == 1 && categorie.find(categoria) != std::string_view::npos));
}

// The first row that fits, nullptr where none does.
template <class Tabella>
constexpr auto RigaPer(const Tabella& tabella, std::string_view classe,
                       std::string_view categoria) {
  const auto riga = std::ranges::find_if(
      tabella, [&](const auto& r) { return Comprende(r.chiave, classe, categoria); });
  return riga == tabella.end() ? nullptr : &*riga;
}

}  // namespace orm
