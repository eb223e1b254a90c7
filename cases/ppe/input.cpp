#include "cases/ppe/data.h"
#include "cases/ppe/form.h"
#include "cases/ppe/ppe.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputPpe(RunState& stato) {
  DatiPpe dati;
  IniziaInput(stato, dati);
  FrmPpeDati form(dati);
  stato.player.Show(form);
  if (form.Confermato()) dati = form.Dati();
  ConcludiInput(stato, dati);
}

}  // namespace orm
