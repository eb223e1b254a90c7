// frmPPE_Dati: the counts of an expropriation note.
#pragma once

#include <array>

#include "cases/ppe/data.h"
#include "dialogs/form.h"

namespace orm {

class FrmPpeDati : public Form {
 public:
  explicit FrmPpeDati(const DatiPpe& dati);
  DatiPpe Dati() const;

  std::array<InterBox, 2> ciPP;  // holdings, parcels
  Frame Frame2;
  std::array<InterBox, 2> ciVC;  // parcels, buildings of the condition report
  InterBox ciFrazionamenti;
  Button cmdESCI;
};

}  // namespace orm
