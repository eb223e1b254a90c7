// Measurement and accounting of works.
#include "tariff/law/accounting_fee.h"

#include <cstddef>

#include "tariff/law/table_e.h"
#include "tariff/law/table_periods.h"

namespace orm {
namespace {

constexpr std::size_t kLimiti = kLimitiTabellaELire.size();

// Bands count from 1; the limit of band 0 is 0.
double Limite(std::size_t fascia, bool modoLire) {
  if (fascia == 0) return 0;
  return modoLire ? kLimitiTabellaELire[fascia - 1] : kLimitiTabellaEEuro[fascia - 1];
}

Conto Aliquota(std::size_t fascia, int periodo) {
  if (periodo < 1 || periodo > kPeriodo1987) periodo = kPeriodo1987;
  const DecretoTariffario& decreto = kDecreti[static_cast<std::size_t>(periodo - 1)];
  return Conto(kAliquoteTabellaE[fascia - 1]) *
         (fascia > kLimiti ? decreto.coefficienteOltre : decreto.coefficiente);
}

// Less what is not 0, so that the sum as it is written has no idle terms.
Conto Meno(Conto importo, const Conto& tolto) {
  if (tolto != 0) importo -= tolto;
  return importo;
}

FasciaContabilita Calcola(std::size_t fascia, const RigaContabilita& riga, const Conto& parte) {
  const Conto aliquota = Aliquota(fascia, riga.periodo);
  return {aliquota, riga.coefficiente, parte, parte * aliquota * riga.coefficiente / 100,
          fascia,   riga.periodo};
}

}  // namespace

OnorarioContabilita CalcoloOnorarioContabilita(const std::vector<RigaContabilita>& righe,
                                               bool modoLire) {
  OnorarioContabilita esito;
  std::size_t chiuse = 0;  // bands filled so far
  Conto usata = 0;         // part of the current band that earlier rows have taken
  const auto aggiungi = [&](std::size_t fascia, const RigaContabilita& riga, const Conto& parte) {
    esito.fasce.push_back(Calcola(fascia, riga, parte));
    esito.onorario += esito.fasce.back().onorario.Valore();
  };

  for (const RigaContabilita& riga : righe) {
    esito.importo += riga.importo;
    std::size_t raggiunte = 0;
    for (std::size_t n = 1; n <= kLimiti; ++n)
      if (esito.importo >= Limite(n, modoLire)) ++raggiunte;

    for (std::size_t n = chiuse + 1; n <= raggiunte; ++n) {
      const Conto parte = Meno(Meno(Limite(n, modoLire), Limite(n - 1, modoLire)), usata);
      if (!(parte > 0)) continue;
      aggiungi(n, riga, parte);
      usata = 0;
    }
    chiuse = raggiunte;

    const Conto resto = Meno(Meno(esito.importo, Limite(chiuse, modoLire)), usata);
    if (!(resto > 0)) continue;
    aggiungi(chiuse + 1, riga, resto);
    usata = Meno(esito.importo, Limite(chiuse, modoLire));
  }
  return esito;
}

}  // namespace orm
