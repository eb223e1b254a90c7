// frmCOA_Dati: the data of a testing note.
#pragma once

#include "cases/coa/data.h"
#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmCoaDati : public Form {
 public:
  FrmCoaDati(const RunState& stato, const DatiCoa& dati);
  DatiCoa Dati() const;

  ComboBox cboDecreti, cboTipo;
  FloatBox cdImporto;
  InterBox ciImporto;
  Image Image1;
  FloatBox cdMaggiorazione;
  InterBox ciNUMEROPAGINE;
  Button cmdProsegui;

 private:
  void ShowFieldsOfTesting();
  void Confirm();

  const bool lire_;
  const DatiCoa given_;
};

}  // namespace orm
