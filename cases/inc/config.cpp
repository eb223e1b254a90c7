#include "cases/inc/config.h"

#include "runtime/data_file.h"

namespace orm {

QuoteInc TariffaInc::Quote() const {
  DataReader file(folder_, kFileInc);
  const auto numero = [&file](const char* campo) {
    const double valore = file.Number(campo);
    if (valore < 0) file.Fail(campo, "Il numero non può essere negativo.");
    file.Text("nota");
    return valore;
  };
  QuoteInc quote;
  quote.direzione = numero("quota della direzione lavori");
  quote.assistenza = numero("quota dell'assistenza al collaudo");
  quote.liquidazione = numero("quota della liquidazione");
  quote.tabellaC = numero("quota della Tabella C");
  quote.massimoCompensi = numero("percentuale massima dei compensi");
  return quote;
}

}  // namespace orm
