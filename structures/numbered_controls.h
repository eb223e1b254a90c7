// Controls that share a name and are told apart by their number: "cdCR(0)", "cdCR(1)", ...
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "dialogs/control.h"
#include "runtime/numbers.h"

namespace orm {

inline std::string NomeIndicizzato(const std::string& nome, std::size_t numero) {
  return nome + "(" + NumberText(static_cast<double>(numero)) + ")";
}

// One control for each caption, numbered from `primo`; `comune` is what all of them are built with
// besides (limits, the group of option buttons). In the code they count from 0.
template <class Controllo>
class Schiera : public std::deque<Controllo> {
 public:
  template <class... Comune>
  Schiera(Form& form, const std::string& nome, std::size_t primo,
          const std::vector<std::string>& voci, Comune&&... comune) {
    for (const std::string& voce : voci)
      this->emplace_back(form, NomeIndicizzato(nome, primo + this->size()), voce, comune...);
  }
};

}  // namespace orm
