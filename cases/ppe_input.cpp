#include "cases/ppe.h"
#include "cases/ppe_data.h"
#include "cases/ppe_form.h"
#include "tariff/input_step.h"

namespace orm {

void InputPpe(RunState& stato) {
  DatiPpe dati;
  IniziaInput(stato, dati);
  FrmPpeDati form(dati);
  stato.player.Show(form);
  if (form.Confermato) dati = form.Dati();
  ConcludiInput(stato, dati);
}

}  // namespace orm
