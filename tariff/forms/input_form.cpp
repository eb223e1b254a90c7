#include "tariff/forms/input_form.h"

#include "dialogs/message_boxes.h"

namespace orm {

bool FormInput::Rifiuta(const std::string& motivo) {
  if (!motivo.empty()) stato_.player.Ask(Avviso(motivo));
  return !motivo.empty();
}

void FormInput::Conferma(std::span<const ImportoBox> importi) {
  for (const ImportoBox& importo : importi)
    if (Rifiuta(importo.Eccesso())) return;
  for (const ImportoBox& importo : importi) importo.Prendi();
  Esci(Uscita::Conferma);
}

bool FormRiga::RifiutaRiga(const std::string& motivo) {
  return !motivo.empty() &&
         Rifiuta(motivo + "\nPer finire l'introduzione dati occorre premere\n" + fine_.ShownText());
}

void FormRiga::OnOpen() {
  fine_.onPress = [this] { Esci(Uscita::Fine); };
}

Layout FormRiga::Fondo(Button& conferma) {
  if (lblToglie.Text().empty()) lblToglie.SetText(Toglie(posto_, riga_));
  lblToglie.SetVisible(!lblToglie.Text().empty());
  return Buttons({conferma, fine_, lblToglie});
}

bool FormRiga::Chiedi() {
  const PartOfWay qui(stato_.player.place, {DoveSiamo(posto_, riga_)});
  stato_.player.Show(*this);
  return Confermato() || (TipodiUscita == Uscita::Finestra && !posto_.Nuova());
}

}  // namespace orm
