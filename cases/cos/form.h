// frmCOS_Dati: the amounts tested in each period, and the variations of the fee.
#pragma once

#include <array>

#include "cases/cos/config.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmCosDati : public FormInput {
 public:
  FrmCosDati(RunState& stato, const TestataCos& testata, DatiCos& dati);

  Frame Frame1{*this, "Frame1", "IMPORTO SUDDIVISO NEI PERIODI TARIFFARI"};
  // Under the names that CS1.CFG or CS2.CFG has for periods and variations.
  std::array<ImportoBox, kPeriodiCos> importi{{{*this, stato_, "ImportoCS1", ""},
                                               {*this, stato_, "ImportoCS2", ""},
                                               {*this, stato_, "ImportoCS3", ""},
                                               {*this, stato_, "ImportoCS4", ""},
                                               {*this, stato_, "ImportoCS5", ""}}};
  MarchioEuro Image1{*this, stato_};
  Frame Frame2{*this, "Frame2", "MAGGIORAZIONI E RIDUZIONI in %"};
  static inline const NumberLimits kVariazione{
      .least = -100, .most = 100, .decimals = 5, .unit = "%"};
  std::array<FloatBox, kVariazioniCos> cdMaggiorazione{
      {{*this, "cdMaggiorazione1", "", kVariazione},
       {*this, "cdMaggiorazione2", "", kVariazione},
       {*this, "cdMaggiorazione3", "", kVariazione},
       {*this, "cdMaggiorazione4", "", kVariazione},
       {*this, "cdMaggiorazione5", "", kVariazione}}};
  Button cmdAvvertenza{*this, "cmdAvvertenza", "Avvertenza"};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
  DatiCos& dati_;
};

}  // namespace orm
