#include "cases/stc.h"
#include "cases/stc_data.h"
#include "cases/stc_form.h"
#include "tariff/input_step.h"

namespace orm {

void InputStc(RunState& stato) {
  DatiStc dati;
  IniziaInput(stato, dati);
  FrmStcDati form(dati);
  stato.player.Show(form);
  dati = form.Dati();
  ConcludiInput(stato, dati);
}

}  // namespace orm
