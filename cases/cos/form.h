// frmCOS_Dati: the amounts tested in each period, and the variations of the fee.
#pragma once

#include <array>

#include "cases/cos/config.h"
#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"

namespace orm {

class FrmCosDati : public Form {
 public:
  FrmCosDati(RunState& stato, const TestataCos& testata, const DatiCos& dati);

  // As given until "O.K." takes what the form shows.
  std::array<double, kPeriodiCos> ImportoCS;
  std::array<double, kVariazioniCos> Maggiorazione;

  Frame Frame1;
  std::array<ImportoBox, kPeriodiCos> importi;
  Image Image1;
  Frame Frame2;
  std::array<FloatBox, kVariazioniCos> cdMaggiorazione;
  Button cmdAvvertenza, Command1;

 private:
  void Confirm(RunState& stato);
};

}  // namespace orm
