// Explanations as paragraphs that can be pasted.
#include <algorithm>
#include <cmath>
#include <limits>

#include "runtime/explanation/explanation.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

constexpr int kDecimaliEuro = 2;

// A number with so many decimals at least.
std::string AlmenoADecimali(double valore, int decimali) {
  std::string testo = CifraEsatta(valore);
  if (decimali <= 0) return testo;
  std::string intera = CifraADecimali(valore, decimali);
  return intera.size() > testo.size() ? intera : testo;
}

// With those that its cut asks for.
std::string Tagliata(const Taglio& taglio) {
  return AlmenoADecimali(taglio.dopo,
                         taglio.tipo == TipoTaglio::Decimali ? -taglio.decimali : taglio.decimali);
}

std::string InDecimali(int decimali) {
  const int n = std::abs(decimali);
  return n == 0 ? "all'unità" : n == 1 ? "a un decimale" : "a " + CifraEsatta(n) + " decimali";
}

std::string FraseTaglio(const Taglio& taglio) {
  switch (taglio.tipo) {
    case TipoTaglio::ParteIntera:
      return taglio.prima < 0 ? "Se ne prende l'intero che sta sotto"
                              : "Se ne prende la parte intera";
    case TipoTaglio::Decimali:
      return "Si taglia " + InDecimali(taglio.decimali);
    case TipoTaglio::Arrotonda:
      return "Si arrotonda " + InDecimali(taglio.decimali);
    default:
      return "Si arrotonda " + InDecimali(taglio.decimali) + ", guardando la sola cifra che segue";
  }
}

// To be read, a number has the 15 digits of every report: 0,35 and not 0,35000000000000003. Where
// they would hide why its whole part is what it is, it has all of them.
double DaLeggere(double valore) {
  const double letto = ParseNumber(NumberText(valore)).value_or(valore);
  return std::floor(letto) == std::floor(valore) ? letto : valore;
}

// The same of the numbers of a sum.
std::string DaLeggere(const std::string& conto) {
  constexpr std::string_view kDiUnNumero = "0123456789.,";
  std::string letto;
  for (std::size_t da = 0, a = 0; da < conto.size(); da = a) {
    const bool numero = kDiUnNumero.find(conto[da]) != std::string_view::npos;
    a = std::min(
        numero ? conto.find_first_not_of(kDiUnNumero, da) : conto.find_first_of(kDiUnNumero, da),
        conto.size());
    std::string parte = conto.substr(da, a - da);
    if (numero && parte.size() > std::numeric_limits<double>::digits10) {
      std::string cifre = parte;
      std::erase(cifre, '.');
      std::ranges::replace(cifre, ',', '.');
      if (const auto valore = ParseNumber(cifre)) parte = CifraEsatta(DaLeggere(*valore));
    }
    letto += parte;
  }
  return letto;
}

// A cut that found nothing to take is not told.
std::string TestoTaglio(Taglio taglio) {
  taglio.prima = DaLeggere(taglio.prima);
  if (taglio.prima == taglio.dopo) return "";
  const std::string scarto = CadeNelTaglio(taglio);
  return " " + FraseTaglio(taglio) + ": " + Tagliata(taglio) +
         (scarto.starts_with('-') ? " (si aggiunge " + scarto.substr(1) : " (cade " + scarto) +
         ").";
}

std::string TestoPasso(const Passaggio& passo) {
  std::string testo = passo.regola;
  if (passo.risultato) {
    const std::string conto = DaLeggere(passo.conto.Testo());
    const double risultato = DaLeggere(*passo.risultato);
    testo += ": ";
    if (!conto.empty() && conto != CifraEsatta(risultato)) testo += conto + " = ";
    testo += AlmenoADecimali(risultato, passo.unita == "Euro" ? kDecimaliEuro : 0);
    if (!passo.unita.empty()) testo += " " + passo.unita;
  }
  testo += ".";
  for (const Taglio& taglio : passo.tagli) testo += TestoTaglio(taglio);
  for (const std::string& nota : passo.note) testo += " " + nota + ".";
  return testo;
}

}  // namespace

std::string TestoSpiegazione(const Spiegazione& spiegazione) {
  // Line 0: a result on the screen, which stands in no report.
  std::string testo = spiegazione.riga == 0
                          ? ""
                          : "Riga " + CifraEsatta(static_cast<double>(spiegazione.riga)) + ": ";
  testo += spiegazione.testo + "\n";
  int numero = 0;
  for (const Passaggio& passo : spiegazione.passi)
    testo += "  " + CifraEsatta(++numero) + ". " + TestoPasso(passo) + "\n";
  return testo;
}

std::string TestoSpiegazioni(const std::vector<Spiegazione>& righe) {
  std::string testo;
  for (const Spiegazione& spiegazione : righe)
    testo += (testo.empty() ? "" : "\n") + TestoSpiegazione(spiegazione);
  return testo;
}

}  // namespace orm
