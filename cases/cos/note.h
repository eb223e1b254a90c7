// The note of static testing while it is reckoned and printed.
#pragma once

#include "cases/cos/config.h"
#include "tariff/table_a_slices.h"

namespace orm {

// The part of the fee of the law for a class and category; 0 where the table has none.
double AliquotaRevisione(const std::string& codice, const RigaCos& riga);

// A fee to the nearest whole multiple of `unita` Lire, halves away from zero; 0: as it is.
double ArrotondaAlleCifreDi(const RunState& stato, double onorario, double unita);

class NotaCos {
 public:
  NotaCos(RunState& run, const DatiCos& dati);

  void StampaTotale();
  void CalcolaPeriodi();
  void CalcolaVariazioni();
  void RevisioneCalcoliCos();
  void Chiudi() { ChiudiConCompensi(stato, OnorarioBase + variazioni + revisione, compensi); }

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
  void RevisioneLotto(std::size_t primaRiga, const LottoARighe& lotto);
  void RevisioneRiga(std::size_t numero, const RigaCos& riga, int periodo, double SommaLotto);

  double InValuta(double lire) const;
  std::string Numero();  // of the next heading, "3 -"
  std::string Uguale() const;
  double Arrotonda(double onorario) const {
    return ArrotondaAlleCifreDi(stato, onorario, testata.UnitaArrotondamento);
  }

  RunState& stato;
  ReportPrinter& uscita;
  const DatiCos& d;
  const TestataCos testata;
  const double TotaleInLire;
  Compensi compensi;
  int numero = 0;
  double OnorarioBase = 0, variazioni = 0, revisione = 0;
};

}  // namespace orm
