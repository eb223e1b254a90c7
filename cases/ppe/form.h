// frmPPE_Dati: the counts of an expropriation note.
#pragma once

#include <array>

#include "cases/ppe/data.h"
#include "dialogs/form.h"

namespace orm {

class FrmPpeDati : public Form {
 public:
  explicit FrmPpeDati(DatiPpe& dati);

  // The counts are stored as whole numbers of 16 bits.
  static inline const NumberLimits kNumero{.most = 32767};
  std::array<InterBox, 2> ciPP{{{*this, "ciPP(0)", "Numero PARTITE CATASTALI", kNumero},
                                {*this, "ciPP(1)", "Numero PARTICELLE CATASTALI", kNumero}}};
  Frame Frame2{*this, "Frame2", "VERBALE DI CONSISTENZA"};
  std::array<InterBox, 2> ciVC{{{*this, "ciVC(0)", "Numero delle PARTICELLE CATASTALI", kNumero},
                                {*this, "ciVC(1)", "Numero FABBRICATI", kNumero}}};
  InterBox ciFrazionamenti{*this, "ciFrazionamenti", "Numero dei FRAZIONAMENTI", kNumero};
  Button cmdESCI{*this, "cmdESCI", "&FINE INPUT DATI", Button::Role::Default};

 private:
  void Conferma();
  DatiPpe& dati_;
};

}  // namespace orm
