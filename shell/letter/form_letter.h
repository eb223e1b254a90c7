// frmGEN_Lettera: the data of the letter to the Order.
#pragma once

#include <memory>
#include <vector>

#include "dialogs/form.h"
#include "shell/letter/letter.h"
#include "shell/state/run_state.h"
#include "tariff/files/damaged_file.h"

namespace orm {

class FrmGenLettera : public Form {
 public:
  // Shows the values of LETTERA.DAG if it exists. "O.K." writes the file.
  explicit FrmGenLettera(RunState& stato);

  TestoBox ctOrdine{*this, "ctOrdine", "ORDINE di"};
  Frame fraValuta{*this, "fraValuta", "Valuta"};
  OptionGroup valuta;
  OptionButton optValuta1{*this, "optValuta1", "Lire", valuta};
  OptionButton optValuta2{*this, "optValuta2", "Euro", valuta};
  Frame fraParcella{*this, "fraParcella", "PARCELLA"};
  OptionGroup tipo;
  std::vector<std::unique_ptr<OptionButton>> Op_tipo = Tipi();
  ComboBox cmbRiferimento{*this, "cmbRiferimento", "Riferimento con altra parcella", {"SI", "NO"}};
  Frame frmParcellaPrecedente{*this, "frmParcellaPrecedente", "DATI  PARCELLA  PRECEDENTE"};
  TestoBox ctNumero{*this, "ctNumero", "Numero", {.width = 12}};
  TestoBox ctData{*this, "ctData", "Data", {.width = 12}};
  Frame frmStato{*this, "frmStato", "STATO PROFESSIONALE"};
  OptionGroup statoProfessionale;
  OptionButton Option1{*this, "Option1", "Libero professionista", statoProfessionale};
  OptionButton Option2{*this, "Option2", "Docente", statoProfessionale};
  OptionButton Option3{*this, "Option3", "Dipendente", statoProfessionale};
  TestoBox Text1{*this,
                 "Text1",
                 "DOCUMENTAZIONE ALLEGATA",
                 {.longest = 2000, .lines = 4, .width = 72, .columns = true}};
  Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};

 private:
  std::vector<std::unique_ptr<OptionButton>> Tipi();
  void Regole();
  void Mostra(const DatiLettera& dati);
  Layout Disposizione();
  void Conferma();

  RunState& stato_;
  FileDelForm file_;
};

}  // namespace orm
