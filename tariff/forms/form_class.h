// frmGEN_Classe: class, category and, where the case has no amount dialog of its own, the amount of
// a lot. The form stays with its caller, which shows it again for each lot.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmGenClasse : public Form {
 public:
  // `chiedeImporto`: whether the amount is asked and must not be 0.
  FrmGenClasse(RunState& stato, bool chiedeImporto);

  // What the form starts from and what it gives back; Classe is "0" after "FINE".
  void SetClasse(const std::string& classe);        // "1" to "9"
  void SetCategoria(const std::string& categoria);  // "a" to "g"
  void SetImporto(double importo);
  std::string Classe = "1", Categoria = "a";
  double Importo = 0;

  // What the other lots of the note come to: with them the amount must still fit its column.
  double AltriLotti = 0;

  // When not empty, why no further lot can be entered: shown instead of taking the lot.
  std::string Rifiuto;

  Label Label1;  // "NUOVO LOTTO", or what the case writes there
  ComboBox comClasse;
  Label lblClasse;
  ComboBox comCategoria;
  Label lblCategoria;
  FloatBox cdImporto;
  InterBox ciImporto;
  Image Image1;
  Button cmdCONFERMA, cmdFINE;

 private:
  void ShowCategories();
  void Refuse(const std::string& motivo);
  void Confirm();
  void Finish();
  RunState& stato_;
  bool chiedeImporto_;
};

}  // namespace orm
