#include "cases/cos/form.h"

namespace orm {
namespace {

constexpr const char* kAvvertenza =
    "Dare l'importo delle strutture collaudate nella corrispondente casella del periodo "
    "tariffario\n"
    "in cui il collaudo è avvenuto.\n"
    "Nel caso, è possibile suddividere l'importo totale in più periodi tariffari.";

}  // namespace

FrmCosDati::FrmCosDati(RunState& stato, const TestataCos& testata, DatiCos& dati)
    : FormInput(stato, "frmCOS_Dati", "COLLAUDO STATICO", "importi e maggiorazioni"), dati_(dati) {
  auto& [i1, i2, i3, i4, i5] = importi;
  auto& [m1, m2, m3, m4, m5] = cdMaggiorazione;
  SetContent(
      Column({Group(Frame1, {Row({AmountFields({i1, i2, i3, i4, i5}), Image1})}),
              Group(Frame2, {Fields({m1, m2, m3, m4, m5})}), Buttons({cmdAvvertenza, Command1})}));
  for (std::size_t i = 0; i < kPeriodiCos; ++i) {
    importi[i].SetCaption(testata.NomePeriodo[i]);
    importi[i].Chiedi({&dati.ImportoCS[i], 0, {"", "GLI ALTRI PERIODI"}});
  }
  for (std::size_t i = 0; i < kVariazioniCos; ++i) {
    cdMaggiorazione[i].SetCaption(testata.NomeVariazione[i]);
    cdMaggiorazione[i].SetValue(dati.Maggiorazione[i]);
  }
  cmdAvvertenza.onPress = [this] {
    stato_.player.Ask(
        {"AVVERTENZA ", kAvvertenza, MessageBox::Icon::Information, MessageBox::Buttons::Ok});
  };
  Command1.onPress = [this] { Conferma(); };
}

void FrmCosDati::Conferma() {
  double totale = 0;
  for (const ImportoBox& importo : importi) {
    if (Rifiuta(importo.Eccesso(totale))) return;
    totale += importo.Value();
  }
  for (const ImportoBox& importo : importi) importo.Prendi();
  dati_.ImportoTotaleCS = totale;
  for (std::size_t i = 0; i < kVariazioniCos; ++i)
    dati_.Maggiorazione[i] = cdMaggiorazione[i].Value();
  Esci(Uscita::Conferma);
}

}  // namespace orm
