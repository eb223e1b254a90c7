#include "cases/stc/data.h"
#include "cases/stc/form.h"
#include "cases/stc/stc.h"
#include "tariff/forms/input_step.h"

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
