#include "cases/calculation_step.h"

#include "tariff/files/user_files.h"

namespace orm {

Parcella NuovaParcella(RunState& stato) {
  Parcella nota;
  nota.ModoLire = stato.ModoLire;
  nota.CasoDiParcella = stato.CasoDiParcella;
  nota.criteri = stato.criteri;
  nota.chiusura = stato.chiusura;
  nota.utente = LeggiDatiProfessionista(stato.folder);
  nota.intestazione = LeggiIntestazione(stato.folder, stato.FileInt);
  nota.oggi = stato.player.Today();
  nota.scaglioni = ScaglioniCompensi(stato.folder);
  if (stato.memoria.The<SpiegazioniChieste>().si) nota.spiegazioni.Attiva();
  nota.TotaleGenerale = nota.Zero();
  return nota;
}

}  // namespace orm
