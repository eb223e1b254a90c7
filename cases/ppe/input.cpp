#include "cases/ppe/data.h"
#include "cases/ppe/form.h"
#include "cases/ppe/ppe.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputPpe(RunState& stato) {
  DatiPpe dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmPpeDati form(dati);
  stato.player.Show(form);
  ConcludiInput(stato, dati);
}

}  // namespace orm
