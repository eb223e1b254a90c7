#include "cases/cos/config.h"

#include <algorithm>

#include "runtime/data_file.h"

namespace orm {
namespace {

// Reads fields and skips the comment behind each.
class LettoreCos {
 public:
  LettoreCos(const WorkFolder& folder, const std::string& codice)
      : file(folder, codice == "CS1" ? kFileCs1 : kFileCs2) {}

  std::string Testo(const char* campo, std::string* commento = nullptr) {
    std::string testo = file.Text(campo);
    SaltaCommento();
    if (commento != nullptr) *commento = RigaIgnorata;
    return testo;
  }
  double NonNegativo(const char* campo) {
    const double valore = file.Number(campo);
    if (valore < 0) file.Fail(campo, "Il numero non può essere negativo.");
    SaltaCommento();
    return valore;
  }
  std::size_t Scaglioni(const char* campo) {
    const std::uint8_t n = file.Byte(campo);
    if (n == 0) file.Fail(campo, "Gli scaglioni devono essere almeno uno.");
    SaltaCommento();
    return n;
  }
  double MaggioreDi(double precedente, const char* campo) {
    const double valore = file.Number(campo);
    if (valore < 0) file.Fail(campo, "Il numero non può essere negativo.");
    if (valore <= precedente)
      file.Fail(campo, "Gli importi degli scaglioni devono essere crescenti.");
    SaltaCommento();
    return valore;
  }

 private:
  void SaltaCommento() { RigaIgnorata = file.Text("commento"); }
  DataReader file;
  std::string RigaIgnorata;
};

TestataCos LeggiTestata(LettoreCos& file) {
  TestataCos testata;
  for (std::size_t i = 0; i < kPeriodiCos; ++i)
    testata.NomePeriodo[i] = file.Testo("nome del periodo", &testata.NotaPeriodo[i]);
  for (std::string& nome : testata.NomeVariazione) nome = file.Testo("nome della variazione");
  testata.UnitaArrotondamento = file.NonNegativo("UnitaArrotondamento");
  return testata;
}

PeriodoCos LeggiBlocco(LettoreCos& file) {
  PeriodoCos blocco;
  blocco.ModoPeriodo = file.Testo("ModoPeriodo");
  const std::size_t n = file.Scaglioni("ScaglioniPeriodo");
  blocco.MinimoPeriodo = file.NonNegativo("MinimoPeriodo");
  blocco.PercOltre = file.NonNegativo("PercOltre");
  for (std::size_t k = 0; k < n; ++k)
    blocco.Limite.push_back(file.MaggioreDi(k == 0 ? -1 : blocco.Limite.back(), "Limite"));
  for (std::size_t k = 0; k < n; ++k) blocco.Valore.push_back(file.NonNegativo("Valore"));
  return blocco;
}

}  // namespace

Interpolazione PeriodoCos::PassiA(double lire) const {
  const auto k = static_cast<std::size_t>(std::ranges::lower_bound(Limite, lire) - Limite.begin());
  const std::size_t sopra = std::min(k, Limite.size() - 1);
  const std::size_t sotto = k == sopra && k > 0 ? k - 1 : sopra;
  return {lire, Limite[sotto], Limite[sopra], Valore[sotto], Valore[sopra]};
}

Conto PeriodoCos::ValoreA(double lire) const {
  const Interpolazione p = PassiA(lire);
  if (p.x0 == p.x1) return p.y1;
  return p.y1 - (Conto(p.y1) - p.y0) * (Conto(p.x1) - lire) / (Conto(p.x1) - p.x0);
}

Conto PeriodoCos::OnorarioA(double lire) const {
  return std::max(ValoreA(lire), Conto(MinimoPeriodo));
}

TestataCos LeggiTestataCos(const WorkFolder& folder, const std::string& codice) {
  LettoreCos file(folder, codice);
  return LeggiTestata(file);
}

PeriodoCos LeggiPeriodoCos(const WorkFolder& folder, const std::string& codice,
                           std::size_t periodo) {
  LettoreCos file(folder, codice);
  LeggiTestata(file);
  for (; periodo > 0; --periodo) LeggiBlocco(file);
  return LeggiBlocco(file);
}

}  // namespace orm
