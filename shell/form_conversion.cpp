#include "shell/form_conversion.h"

#include <array>
#include <utility>

#include "cases/fee_case.h"
#include "runtime/numbers.h"
#include "tariff/files/case_files.h"

namespace orm {
namespace {

struct Voce {
  const char* didascalia;
  const char* codice;
};

// In the order of the buttons, which are counted.
constexpr std::array<Voce, 15> kVoci = {{{"AGGIORNAMENTO PREZZI", "AGP"},
                                         {"COLLAUDO STATICO 1", "CS1"},
                                         {"COLLAUDO STATICO 2", "CS2"},
                                         {"INGEGNERE CAPO", "INC"},
                                         {"PROGETTAZIONE E D.L. 1", "PDL"},
                                         {"PROGETTAZIONE E D.L. 2", "ESL"},
                                         {"PRESTAZIONI GEOTECNICHE", "GEO"},
                                         {"SICUREZZA CANTIERI 1", "SC1"},
                                         {"SICUREZZA CANTIERI 2", "SC2"},
                                         {"PERIZIE ESTIMATIVE", "PES"},
                                         {"PIANI PARTICELLARI DI ESPROPRIO", "PPE"},
                                         {"STATI DI CONSISTENZA", "STC"},
                                         {"RILIEVI MANUFATTI", "RIM"},
                                         {"RILIEVI PLANO-ALTIMETRICI", "RPA"},
                                         {"COLLAUDO AMMINISTRATIVO", "COA"}}};

}  // namespace

FrmGenConversione::FrmGenConversione(RunState& stato)
    : Form("frmGEN_Conversione", "Conversione file DATI da LIRE ad EURO"), stato_(stato) {
  std::vector<Layout> voci;
  for (std::size_t i = 0; i < kVoci.size(); ++i) {
    const char* codice = kVoci[i].codice;
    const FeeCase* fee = FindFeeCase(codice);
    cmdConverti[i].SetEnabled(fee != nullptr && fee->converti != nullptr &&
                              stato.folder.Exists(NomiDiCaso(codice, true).FileInp));
    cmdConverti[i].onPress = [this, codice] { Converti(codice); };
    voci.emplace_back(cmdConverti[i]);
  }
  SetContent(Column({Column(std::move(voci)), Buttons({cmdESCI})}));
  cmdESCI.onPress = [this] { Close(); };
}

std::deque<Button> FrmGenConversione::Pulsanti() {
  std::deque<Button> pulsanti;
  for (const Voce& voce : kVoci)
    pulsanti.emplace_back(*this, "cmdConverti(" + NumberText(pulsanti.size()) + ")",
                          voce.didascalia);
  return pulsanti;
}

void FrmGenConversione::Converti(const char* codice) {
  if (stato_.player.Ask({"ATTENZIONE", "I FILE DATI IN EURO VERRANNO SOVRASCRITTI",
                         MessageBox::Icon::Exclamation, MessageBox::Buttons::OkCancel}) !=
      Answer::Ok)
    return;
  FindFeeCase(codice)->converti(stato_.folder, codice);
  stato_.player.Ask({"MESSAGGIO", "CONVERSIONE ESEGUITA", MessageBox::Icon::Information,
                     MessageBox::Buttons::Ok});
}

}  // namespace orm
