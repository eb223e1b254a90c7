// frmVER_BALCONE: check of a stone balcony.
#pragma once

#include "dialogs/lavagna.h"
#include "structures/balcony/drawing.h"
#include "structures/balcony/panel_inputs.h"
#include "structures/balcony/panel_stresses.h"
#include "structures/loads/form_seismic.h"
#include "structures/resumable_form.h"

namespace orm {

class FrmVerBalcone : public FormRiprendibile {
 public:
  explicit FrmVerBalcone(RunState& stato);

  PannelloDatiBalcone ingressi{*this, stato_};
  PannelloTensioniBalcone tensioni{*this, stato_};
  Label Label_NOTA{*this, "Label_NOTA", "", Label::Style::Warning};
  Label lblStatica{*this, "lblStatica", "", Label::Style::Note};  // where the check is unsafe
  orm::Lavagna Lavagna{*this, "Lavagna", kLarghezzaBalcone, kAltezzaBalcone, kPuntiBalcone};
  Button ComCalcola{*this, "ComCalcola", "&CALCOLA", Button::Role::Default};
  Button ComEsci{*this, "ComEsci", "&ESCI", Button::Role::Close};

 private:
  std::vector<Form*> Annesse() const override { return {&CarichiSismici(stato_)}; }
  void Azzera();
  void Calcola();
  bool Prosegue(Ribaltamento come);
  void ConfrontaConStatica(const DatiBalcone& dati, const RisultatiBalcone& risultati);
};

void MostraVerBalcone(RunState& stato);

}  // namespace orm
