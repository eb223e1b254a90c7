#include "dialogs/data_forms/explanations.h"

#include <utility>

namespace orm {

PulsanteSpiega::PulsanteSpiega(Form& form, Player& player)
    : Button(form, "cmdSPIEGA", "S&PIEGA..."), player_(player) {
  SetHint("Come si arriva a ogni risultato, un passo dopo l'altro (F4).");
  SetKeys(kTastoF4);
  SetEnabled(false);
  onPress = [this] {
    FrmGenSpiega spiega(player_, Owner().Title(), TestoSpiegazioni(risultati_));
    player_.Show(spiega);
  };
}

void PulsanteSpiega::Di(std::vector<Spiegazione> risultati) {
  risultati_ = std::move(risultati);
  SetEnabled(!risultati_.empty());
}

FrmGenSpiega::FrmGenSpiega(Player& player, const std::string& di, const std::string& testo)
    : Form("frmGEN_Spiega", "SPIEGAZIONE DEI RISULTATI") {
  txtSpiegazione.SetText(OnOneLine(di) + "\n\n" + testo);
  cmdCOPIA.SetHint("Mette il testo negli appunti, per incollarlo altrove.");
  cmdCOPIA.onPress = [this, &player] { player.CopyText(txtSpiegazione.Text()); };
  cmdCHIUDI.onPress = [this] { Close(); };
  SetFirstFocus(txtSpiegazione);  // so that the arrows go through it
  SetContent(Column({Group(fraSpiegazione, {txtSpiegazione}), Buttons({cmdCOPIA, cmdCHIUDI})}));
}

Spiegazione Risultato(const std::string& etichetta, Catena passi) {
  Spiegazione spiegazione{0, OnOneLine(etichetta), std::move(passi)};
  if (const auto cifra = spiegazione.Cifra(); !cifra.empty())
    spiegazione.testo += ": " + std::string(cifra);
  return spiegazione;
}

}  // namespace orm
