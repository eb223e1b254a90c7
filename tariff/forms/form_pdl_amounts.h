// frmPDL_Importi: the amounts of a lot, or of a lot in one period.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"

namespace orm {

// Works and expropriations of the design, additional works and expropriations of the variations,
// works supervised: in this order.
using ImportiPdl = std::array<double, 5>;

class FrmPdlImporti : public Form {
 public:
  // `altri`: what the note holds of each amount besides; "O.K." refuses a sum that the report has
  // no room for.
  FrmPdlImporti(RunState& stato, std::string titolo, std::string dove, const ImportiPdl& importi,
                const ImportiPdl& altri);
  // Without expropriations and variations: a design and a supervision amount remain.
  void SoloProgettoEDirezione();
  // As given when the form was left by its window.
  ImportiPdl Importi;

  Label lblLotto;
  Image Image1;
  Frame Frame1;
  std::array<ImportoBox, 5> importo;
  Frame Frame2, Frame3;
  Label lblNota;
  Button Command1;

 private:
  void Confirm(RunState& stato, const ImportiPdl& altri);
};

}  // namespace orm
