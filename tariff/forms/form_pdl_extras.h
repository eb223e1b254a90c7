// frmPDL_Altri and frmPDL_Cont: the services besides design and supervision, and the kind of
// building works that gives accounting its coefficient.
#pragma once

#include <array>

#include "tariff/forms/input_form.h"

namespace orm {

struct PrestazioniAggiuntive {
  bool Sorveglianza = false, Contabilita = false, Revisione = false, Perizie = false;
};

class FrmPdlAltri : public FormInput {
 public:
  // `rifiuto`: why the row can have no accounting; empty when it can.
  FrmPdlAltri(RunState& stato, std::string titolo, std::string rifiuto,
              PrestazioniAggiuntive& prestazioni);
  void SoloContabilita();  // the others are not offered

  Frame Frame1{*this, "Frame1", "PRESTAZIONI AGGIUNTIVE"};
  CheckBox Check1{*this, "Check1", "SORVEGLIANZA"};
  CheckBox Check2{*this, "Check2", "MISURE e CONTABILITA'"};
  CheckBox Check3{*this, "Check3", "REVISIONE PREZZI"};
  CheckBox Check4{*this, "Check4", "PERIZIE DI VARIANTE"};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void MostraRevisione();
  void Conferma();
  const std::string rifiuto_;
  PrestazioniAggiuntive& prestazioni_;
};

class FrmPdlCont : public Form {
 public:
  // `risposta`: "1" to "4", in the order of the options; anything else is the first.
  explicit FrmPdlCont(const std::string& risposta);
  std::string Risposta;

  Frame Frame1{*this, "Frame1", "TIPO DI LAVORI EDILI "};
  OptionGroup tipo;
  std::array<OptionButton, 4> Option{{{*this, "Option1", "", tipo},
                                      {*this, "Option2", "", tipo},
                                      {*this, "Option3", "", tipo},
                                      {*this, "Option4", "", tipo}}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

// The coefficient of accounting for a class; class "1" asks for the kind of works.
double ChiediCoefficienteContabilita(Player& player, const std::string& Classe, double attuale);

// Why an eleventh row of accounting is refused.
std::string RifiutoContabilita(std::size_t righe);

}  // namespace orm
