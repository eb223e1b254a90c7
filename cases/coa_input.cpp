#include "cases/coa.h"
#include "cases/coa_data.h"
#include "cases/coa_form.h"
#include "tariff/input_step.h"

namespace orm {

void InputCoa(RunState& stato) {
  DatiCoa dati;
  IniziaInput(stato, dati);
  FrmCoaDati form(stato, dati);
  stato.player.Show(form);
  if (!form.TipodiUscita) return;
  dati = form.Dati();
  ConcludiInput(stato, dati);
}

}  // namespace orm
