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
  struct Conto {
    double onorario;
    std::string formula;
  };
  void CalcolaPeriodo(std::size_t i);
  Conto ConQuota(double onorarioIntero, double importo) const;
  Conto ConPercentuale(const PeriodoCos& periodo, const Percentuale& P, double importo);
  Percentuale PercentualeDaTabellaCS(const PeriodoCos& periodo) const;
  PercentualiTabellaA PercentualiRevisione(const RigaCos& riga, int periodo,
                                           double SommaLotto) const;
  void RevisioneLotto(std::size_t primaRiga, const LottoARighe& lotto);
  void RevisioneRiga(std::size_t numeroRiga, const RigaCos& riga, int periodo, double SommaLotto);

  std::string Uguale() const;
  double Arrotonda(double onorario) const {
    return ArrotondaAlleCifreDi(*this, onorario, tariffa.testata.UnitaArrotondamento);
  }

  const DatiCos& d;
  const TariffaCos& tariffa;
  const double TotaleInLire;
  double OnorarioBase = 0, variazioni = 0, revisione = 0;
};

}  // namespace orm
