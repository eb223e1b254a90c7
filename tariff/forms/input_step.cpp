#include "tariff/forms/input_step.h"

#include "tariff/forms/form_advances.h"
#include "tariff/forms/form_header.h"

namespace orm {

Inizio ChiediInizio(RunState& stato) {
  FrmGenIntestazione intestazione(stato, stato.FileInt);
  stato.player.Show(intestazione);
  if (!intestazione.Confermato()) return Inizio::Rinuncia;
  if (!stato.folder.Exists(stato.FileInp)) return Inizio::Nuova;
  FrmGenNuovoCaso nuovoCaso;
  stato.player.Show(nuovoCaso);
  return nuovoCaso.Risposta;
}

bool NienteDiConfermato(const RunState& stato) {
  return stato.input.nuova && stato.player.Confirmations() == stato.input.conferme;
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
