// An amount of works on a form: two fields on one place, whole in Lire and with decimals in Euro,
// of which the currency of the note shows one.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_limits.h"

namespace orm {

struct ImportoBox {
  enum class Segno { Positivo, Libero };

  // `nome` without its prefix: "Importo1" makes cdImporto1 and ciImporto1.
  ImportoBox(Form& form, const RunState& stato, const std::string& nome,
             const std::string& didascalia, Segno segno = Segno::Positivo)
      : cd(form, "cd" + nome, didascalia, segno == Segno::Libero ? kSignedWorksEuro : kWorksEuro),
        ci(form, "ci" + nome, didascalia, segno == Segno::Libero ? kSignedWorksLire : kWorksLire),
        lire_(stato.ModoLire) {
    SetVisible(true);
  }

  double Value() const { return lire_ ? ci.Value() : cd.Value(); }
  double Massimo() const { return lire_ ? ci.Limits().most : cd.Limits().most; }
  void SetValue(double valore) {
    cd.SetValue(valore);
    ci.SetValue(valore);
  }
  void SetVisible(bool visibile) {
    cd.SetVisible(visibile && !lire_);
    ci.SetVisible(visibile && lire_);
  }

  FloatBox cd;
  InterBox ci;

 private:
  bool lire_;
};

// The sum that an amount makes with the others of its kind in the note, `altri`, all counted
// without their sign: empty, or why it is too great for the report.
std::string SommaEccessiva(std::string_view voce, double importo, double altri, double massimo);
std::string SommaEccessiva(const ImportoBox& importo, double altri);

}  // namespace orm
