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

bool FormRiga::Chiedi() {
  stato_.player.Show(*this);
  return Confermato() || (TipodiUscita == Uscita::Finestra && !posto_.Nuova());
}

}  // namespace orm
