// The accounting fee on screen: Table E for an amount of works.
#pragma once

#include <string>
#include <vector>

#include "dialogs/data_forms/explanations.h"
#include "shell/state/run_state.h"
#include "tariff/law/accounting_fee.h"
#include "utilities/works_questions.h"

namespace orm {

// Each band, and their sum under `voce`, with its steps.
std::vector<Spiegazione> SpiegaContabilita(const OnorarioContabilita& esito, bool lire,
                                           const std::string& voce);

class FrmUtiContabilita : public Form {
 public:
  explicit FrmUtiContabilita(RunState& stato);

  DomandeLavori lavori;
  ComboBox comCoefficiente{*this, "comCoefficiente", "COEFFICIENTE"};
  TestoBox Text1{*this,
                 "Text1",
                 "ONORARIO PER SCAGLIONI",
                 {.longest = 2000, .lines = 8, .readOnly = true, .width = 68, .columns = true}};
  TestoBox Text2{*this, "Text2", "ONORARIO", {.readOnly = true, .width = 20, .figure = true}};
  Button cmdCALCOLA{*this, "cmdCALCOLA", "&CALCOLA", Button::Role::Default};
  PulsanteSpiega cmdSPIEGA;
  Button cmdESCI{*this, "cmdESCI", "&ESCI", Button::Role::Close};

 private:
  void ScegliValuta();
  void Calcola();
  void SvuotaRisultati();
};

}  // namespace orm
