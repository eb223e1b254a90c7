#include "cases/stc/data.h"
#include "cases/stc/form.h"
#include "cases/stc/stc.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputStc(RunState& stato) {
  DatiStc dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  const IndiciFoi indici(stato.folder);
  FrmStcDati form(dati, indici);
  stato.player.Show(form);
  ConcludiInput(stato, dati);
}

}  // namespace orm
