// frmVER_SOLAIO_TRALIC: design of a floor of one span, of truss joists and hollow blocks.
#pragma once

#include "structures/resumable_form.h"
#include "structures/truss_slab/panel_inputs.h"
#include "structures/truss_slab/panel_views.h"

namespace orm {

class FrmVerSolaioTralic : public FormRiprendibile {
 public:
  explicit FrmVerSolaioTralic(RunState& stato);

  PannelloDatiSolaio ingressi{*this, stato_};
  PannelloVisteSolaio viste{*this};
  Button comCalcola{*this, "comCalcola", "&CALCOLA", Button::Role::Default};
  Button comSTAMPA{*this, "comSTAMPA", "&STAMPA"};
  Button ComEsci{*this, "ComEsci", "&ESCI", Button::Role::Close};

 private:
  void Resume(const FormValues& values) override;
  void ADatiCambiati() override { viste.SegnaCambiati(); }
  bool EDato(const Control& control) const override { return !viste.EScelta(control); }
  void Calcola();
  void Stampa();
  void Azzera();
};

void MostraSolaioTraliccio(RunState& stato);

}  // namespace orm
