// The note of static testing while it is reckoned and printed.
#pragma once

#include "cases/cos/config.h"
#include "tariff/parcella.h"

namespace orm {

// The part of the fee of the law for a class and category; 0 where the table has none.
double AliquotaRevisione(const std::string& codice, const RigaCos& riga);

// A fee to the nearest whole multiple of `unita` Lire, halves away from zero; 0: as it is.
double ArrotondaAlleCifreDi(const Parcella& nota, double onorario, double unita);

class NotaCos : public Parcella {
 public:
  NotaCos(Parcella parcella, const DatiCos& dati, const TariffaCos& tariffaCos)
      : Parcella(std::move(parcella)),
        d(dati),
        tariffa(tariffaCos),
        TotaleInLire(ImportoInLire(dati.ImportoTotaleCS)) {}

  void StampaSpecifica();
  void CalcolaPeriodi();
  void CalcolaVariazioni();
  void RevisioneCalcoliCos();
  void Chiudi();

 private:
  // A fee and how it comes about.
  struct OnorarioCos {
    Conto conto;  // neither cut nor rounded
    std::string formula;
    const char* regola = "";
    Catena prima = {};  // how its figures came about, where that is asked
  };
  void CalcolaPeriodo(std::size_t i);
  OnorarioCos ConQuota(double onorarioIntero, double importo) const;
  OnorarioCos ConPercentuale(const PeriodoCos& periodo, const Percentuale& P, double importo);
  // The file with the tariff, and what it says of period `i`.
  std::string Tabella(std::size_t i) const;
  std::string FraGliScaglioni(const PeriodoCos& periodo, const char* unita) const;
  Percentuale PercentualeDaTabellaCS(const PeriodoCos& periodo, std::size_t i) const;
  PercentualiTabellaA PercentualiRevisione(const RigaCos& riga, int periodo,
                                           const Conto& SommaLotto) const;
  void RevisioneLotto(std::size_t primaRiga, const LottoARighe& lotto);
  void RevisioneRiga(std::size_t numeroRiga, const RigaCos& riga, int periodo,
                     const Conto& SommaLotto);

  std::string Uguale() const;
  Catena CatenaOnorarioIntero(const PeriodoCos& periodo, std::size_t i) const;
  // The last steps of a fee: its cut and its rounding, behind those that led to it.
  Catena CatenaArrotondata(Catena catena, const std::string& regola, const Conto& conto) const;
  double Arrotonda(double onorario) const {
    return ArrotondaAlleCifreDi(*this, onorario, tariffa.testata.UnitaArrotondamento);
  }

  const DatiCos& d;
  const TariffaCos& tariffa;
  const double TotaleInLire;
  Conto OnorarioBase = Zero();
  Conto variazioni = Zero(), revisione = Zero();
};

}  // namespace orm
