// frmSTRUTTURE_CarichiSismici: the choices that give the seismic coefficients.
#pragma once

#include <functional>

#include "shell/state/run_state.h"
#include "structures/choices_form.h"
#include "structures/loads/loads.h"
#include "structures/loads/unit_loads.h"

namespace orm {

class FrmStruttureCarichiSismici : public FormScelte {
 public:
  FrmStruttureCarichiSismici();  // ordinary works and dwellings
  CoefficientiSismici Coefficienti() const;

  Frame fraProtezione{*this, "fraProtezione", "Coefficente di protezione sismica I"};
  OptionGroup protezione;
  OptionButton Option1{*this, "Option1", kVociProtezione[0].nome, protezione};
  OptionButton Option2{*this, "Option2", kVociProtezione[1].nome, protezione};
  OptionButton Option3{*this, "Option3", kVociProtezione[2].nome, protezione};
  Frame fraRiduzione{*this, "fraRiduzione",
                     "Coefficente di riduzione dei sovraccarichi accidentali"};
  OptionGroup riduzione;
  OptionButton Option4{*this, "Option4", kVociRiduzione[0].nome, riduzione};
  OptionButton Option5{*this, "Option5", kVociRiduzione[1].nome, riduzione};
  OptionButton Option6{*this, "Option6", kVociRiduzione[2].nome, riduzione};
};

// The dialog of this run.
FrmStruttureCarichiSismici& CarichiSismici(RunState& stato);
// Shows it, gives the focus back to `chiamante`, and runs `cambiati` when its choices were taken.
void ChiediCarichiSismici(RunState& stato, Control& chiamante,
                          const std::function<void()>& cambiati);

}  // namespace orm
