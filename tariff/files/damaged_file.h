// A file that a form shows and writes anew: one that cannot be read does not bar the form.
#pragma once

#include <string>

#include "dialogs/player.h"
#include "runtime/folder.h"

namespace orm {

// A name beside that of `nome` which no file has yet: "INT_PPE_ORIGINALE.DAP",
// "..._ORIGINALE2.DAP".
std::string NomeDellOriginale(const WorkFolder& folder, const std::string& nome);

class FileDelForm {
 public:
  FileDelForm(Player& player, const WorkFolder& folder, std::string nome)
      : player_(player), folder_(folder), nome_(std::move(nome)) {}

  // What the file holds, or `vuoto` where there is none. Damage is told, and `vuoto` comes back.
  template <class Dati, class Lettura>
  Dati Leggi(Dati vuoto, Lettura&& lettura) {
    if (!folder_.Exists(nome_)) return vuoto;
    try {
      return lettura();
    } catch (const RuntimeFailure& failure) {
      DiciDanno(failure);
      return vuoto;
    }
  }
  // To be called before the form writes the file: keeps a damaged one under its other name.
  void Conserva();

  const std::string& Nome() const { return nome_; }

 private:
  void DiciDanno(const RuntimeFailure& failure);
  Player& player_;
  const WorkFolder& folder_;
  std::string nome_;
  bool danneggiato_ = false;
};

}  // namespace orm
