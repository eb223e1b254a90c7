// The percentages of the tariff on screen, with their curve.
#pragma once

#include "dialogs/form.h"
#include "dialogs/lavagna.h"
#include "shell/state/run_state.h"
#include "utilities/percentage_curve.h"
#include "utilities/percentages.h"
#include "utilities/works_questions.h"

namespace orm {

class FrmUtiPercentuali : public Form {
  RunState& stato_;  // before the button that needs it

 public:
  explicit FrmUtiPercentuali(RunState& stato);

  ComboBox comClasse{*this, "comClasse", "CLASSE"};
  ComboBox comCategoria{*this, "comCategoria", "CATEGORIA"};
  DomandeLavori lavori;
  TestoBox Text1{*this, "Text1", "Tabella A", {.readOnly = true, .width = 16, .figure = true}};
  TestoBox Text2{*this, "Text2", "Tabella C", {.readOnly = true, .width = 16, .figure = true}};
  TestoBox Text3{*this, "Text3", "D.M. 4-4-2001", {.readOnly = true, .width = 16, .figure = true}};
  Lavagna picCurva{*this, "picCurva", kLarghezzaCurva, kAltezzaCurva};
  PulsanteSpiega cmdSPIEGA{*this, stato_.player};
  Button cmdESCI{*this, "cmdESCI", "&ESCI", Button::Role::Default};

 private:
  RichiestaPercentuali Richiesta() const;
  void MostraCategorie();
  void Aggiorna();
  Layout Disposizione();
};

}  // namespace orm
