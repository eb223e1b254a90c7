// What the tariff's utilities on screen ask about the works: their amount, in either currency, and
// the period of the tariff.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"

namespace orm {

struct DomandeLavori {
  DomandeLavori(Form& owner, const RunState& stato);

  bool Lire() const { return optValuta1.Value(); }
  double Importo() const { return Lire() ? ciImporto.Value() : cdImporto.Value(); }
  int Periodo() const { return comPeriodo.Index() + 1; }
  void MostraImporto();  // the field of the chosen currency alone

  Form& form;
  ComboBox comPeriodo{form, "comPeriodo", "TARIFFA"};  // the fifth period is proposed
  Frame fraValuta{form, "fraValuta", "Valuta"};
  OptionGroup valuta;
  OptionButton optValuta1{form, "optValuta1", "Lire", valuta};
  OptionButton optValuta2{form, "optValuta2", "Euro", valuta};
  InterBox ciImporto{form, "ciImporto", "IMPORTO DEI LAVORI", kLavori.lire};
  FloatBox cdImporto{form, "cdImporto", "IMPORTO DEI LAVORI", kLavori.euro};
};

}  // namespace orm
