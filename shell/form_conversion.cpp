#include "shell/form_conversion.h"

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

template <std::size_t... i>
std::array<Button, sizeof...(i)> MakeButtons(Form& form, std::index_sequence<i...>) {
  return {{{form, "cmdConverti(" + NumberText(i) + ")", kVoci[i].didascalia}...}};
}

}  // namespace

FrmGenConversione::FrmGenConversione(RunState& stato)
    : Form("frmGEN_Conversione", "Conversione file DATI da LIRE ad EURO"),
      cmdConverti(MakeButtons(*this, std::make_index_sequence<kVoci.size()>())),
      cmdESCI(*this, "cmdESCI", "ESCI", Button::Role::Close) {
  std::vector<Layout> voci;
  for (std::size_t i = 0; i < kVoci.size(); ++i) {
    voci.emplace_back(cmdConverti[i]);
    const FeeCase* fee = FindFeeCase(kVoci[i].codice);
    cmdConverti[i].SetEnabled(fee != nullptr && fee->converti != nullptr &&
                              stato.folder.Exists(NomiDiCaso(kVoci[i].codice, true).FileInp));
    cmdConverti[i].onPress = [this, &stato, i] { Convert(stato, i); };
  }
  SetContent(Column({Column(std::move(voci)), Buttons({cmdESCI})}));
  cmdESCI.onPress = [this] { Close(); };
}

void FrmGenConversione::Convert(RunState& stato, std::size_t i) {
  if (stato.player.Ask({"ATTENZIONE", "I FILE DATI IN EURO VERRANNO SOVRASCRITTI",
                        MessageBox::Icon::Exclamation, MessageBox::Buttons::OkCancel}) !=
      Answer::Ok)
    return;
  FindFeeCase(kVoci[i].codice)->converti(stato.folder, kVoci[i].codice);
  stato.player.Ask({"MESSAGGIO", "CONVERSIONE ESEGUITA", MessageBox::Icon::Information,
                    MessageBox::Buttons::Ok});
}

}  // namespace orm
