#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "cases/coa/form.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputCoa(RunState& stato) {
  DatiCoa dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmCoaDati form(stato, dati);
  stato.player.Show(form);
  if (!form.Confermato()) return;
  ConcludiInput(stato, dati);
}

}  // namespace orm
