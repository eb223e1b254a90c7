// frmVER_SALVA and frmVER_APRI: the name under which the data of a verification are kept in a file
// of the working folder.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

// "SOLAIO_P_Rossi.VER" for the form "frmVER_SOLAIO_P" and the name "Rossi".
std::string FileDatiSalvati(std::string_view form, std::string_view nome);
// The names under which the folder has data of that form, in order.
std::vector<std::string> NomiDatiSalvati(const WorkFolder& folder, std::string_view form);

class FrmVerSalva : public Form {
 public:
  FrmVerSalva(RunState& stato, const std::vector<std::string>& nomi, const std::string& nome);
  const std::string& Nome() const { return nome_; }

  TestoBox txtNome{*this, "txtNome", "Nome", {.longest = 40}};
  ListBox lstNomi{*this, "lstNomi", "Dati già salvati"};  // choosing one writes it above
  Button cmdOK{*this, "cmdOK", "&SALVA", Button::Role::Default};
  Button cmdANNULLA{*this, "cmdANNULLA", "&ANNULLA", Button::Role::Close};

 private:
  void Accetta();

  RunState& stato_;
  std::string nome_;
};

class FrmVerApri : public Form {
 public:
  FrmVerApri(const std::vector<std::string>& nomi, const std::string& nome);
  std::string Nome() const { return lstNomi.ShownText(); }

  ListBox lstNomi{*this, "lstNomi", "Dati salvati"};
  Button cmdOK{*this, "cmdOK", "A&PRI", Button::Role::Default};
  Button cmdANNULLA{*this, "cmdANNULLA", "&ANNULLA", Button::Role::Close};
};

}  // namespace orm
