#include "tariff/forms/input_step.h"

#include "tariff/forms/form_advances.h"
#include "tariff/forms/form_header.h"
#include "tariff/forms/form_new_case.h"

namespace orm {

bool ChiediVariazione(RunState& stato) {
  FrmGenIntestazione intestazione(stato, stato.FileInt);
  stato.player.Show(intestazione);
  if (!stato.folder.Exists(stato.FileInp)) return false;
  FrmGenNuovoCaso nuovoCaso;
  stato.player.Show(nuovoCaso);
  return nuovoCaso.Risposta == "VARIAZIONE";
}

void ChiediAcconti(RunState& stato, const DataWriter& corpo) {
  stato.FileDatiAcconti = stato.FileInp;
  // Told when it fails; the dialog comes all the same, and its O.K. writes again what was typed.
  TryAndStay(stato.player,
             [&] { ScriviParcella(stato.folder, stato.FileDatiAcconti, corpo, stato.chiusura); });
  FrmGenAcconti acconti(stato, corpo);
  stato.player.Show(acconti);
}

}  // namespace orm
