// The end of every fee note while it is printed: totals, reduction, advances, what the client owes
// besides, the opinion of the Order.
#pragma once

#include <string>
#include <string_view>

#include "runtime/text.h"
#include "tariff/parcella.h"

namespace orm {

std::string Percento(double valore);  // "7,5% "

class ContoFinale {
 public:
  ContoFinale(Parcella& parcella, const Catena& primaDeiTotali)
      : nota(parcella),
        prima(primaDeiTotali),
        stampa(nota.uscita),
        utente(nota.utente),
        criteri(nota.criteri),
        DecimaliValuta(nota.DecimaliValuta()),
        Titolo(TitoloDi(utente)),
        luogoEData(TrimRight(utente.Citta)) {
    if (!luogoEData.empty()) luogoEData += ", li " + ShortDate(nota.oggi);
  }

  void StampaTotali(const Conto& onorari, const Conto& compensi);
  void Riduci();
  void Detrai();
  void StampaNetto();
  void Firma();
  bool Negativo() const { return Totale < 0; }
  void CalcolaTassaParere();
  void StampaSpeseAggiuntive();
  void StampaParere();

 private:
  void Importo(double& valore) { nota.StampaImporto(valore, DecimaliValuta); }
  double Contributo(const std::string& spesa, const char* nome, double percentuale,
                    const Conto& base);
  Conto BaseRiduzione() const;
  Passaggio PercentualeDiRiduzione() const;
  // Explains the line just printed by one sum.
  void Spiega(const char* regola, const Conto& conto) {
    nota.Spiega([&]() -> Catena { return {Passo(regola, conto)}; });
  }
  // A sum in the currency that the account has come to; its line keeps the symbol of the note's.
  Passaggio Passo(std::string regola, const Conto& conto) const;
  Passaggio PassoTassa(double tagliata) const;
  void StampaFirma(std::string_view ruolo, const std::string& nome);

  Parcella& nota;
  const Catena& prima;
  ReportPrinter& stampa;
  const DatiProfessionista& utente;
  const Criteri& criteri;
  int DecimaliValuta;
  std::string Titolo;
  std::string luogoEData;  // empty without a city
  double Onorari = 0, Compensi = 0, Totale = 0;
  Conto netto;
  double TassaParere = 0;
  Conto contoTassa;
  std::string TestoTassa;
};

}  // namespace orm
