#include "tariff/chains/percentage_chains.h"

#include <array>

#include "tariff/law/table_a.h"
#include "tariff/law/table_curve_2001.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

constexpr const char* kInLineaRetta = " si interpola in linea retta";

constexpr std::array<const char*, 9> kClassiRomane = {"I",  "II",  "III",  "IV", "V",
                                                      "VI", "VII", "VIII", "IX"};

std::string InLire(double lire) { return "L. " + CifraEsatta(lire); }

// What the decrees added up to a period, one by one.
Passaggio PassoAumenti(int periodo, bool oltre, const Conto& aumenti) {
  std::string decreti;
  for (int i = 2; i <= periodo && i <= static_cast<int>(kDecreti.size()); ++i) {
    const DecretoTariffario& decreto = kDecreti[static_cast<std::size_t>(i - 1)];
    decreti += (decreti.empty() ? "" : ", ") + std::string(decreto.sigla) + " (x " +
               CifraEsatta(oltre ? decreto.aumentoOltre : decreto.aumento) + ")";
  }
  Passaggio passo{"Aumenti delle percentuali del D.M. 25-2-1965 fino al " + SiglaDecreto(periodo) +
                      ", l'uno sull'altro: " + decreti,
                  aumenti, aumenti.Valore()};
  if (oltre && periodo >= kPeriodo1987)
    passo.Annota("L'aumento del D.M. 11-6-1987 si ferma a " + InLire(kLimiteTabellaA));
  if (aumenti.Valore() == 0)
    passo.Annota("Il D.M. 4-4-2001 ha una curva propria e non aumenta questa tabella");
  return passo;
}

std::string Con(const Conto& aumenti) {
  if (aumenti.Valore() == 1) return "";
  return aumenti.Semplice() ? aumenti.Testo() : "(" + aumenti.Testo() + ")";
}

}  // namespace

std::string ClasseInParole(std::string_view classe, std::string_view categoria) {
  const bool nota = classe.size() == 1 && classe >= "1" && classe <= "9";
  std::string testo = "classe ";
  testo += nota ? kClassiRomane[static_cast<std::size_t>(classe[0] - '1')] : classe;
  return SenzaCategorie(classe) ? testo : testo + ", categoria " + std::string(categoria);
}

std::string TraIPassi(const Interpolazione& passi) {
  return "L'importo di " + InLire(passi.x) + " sta tra " + InLire(passi.x0) + " (" +
         CifraEsatta(passi.y0) + " %) e " + InLire(passi.x1) + " (" + CifraEsatta(passi.y1) +
         " %); tra le due percentuali";
}

std::string ContoInterpolazione(const Interpolazione& p, const std::string& aumenti) {
  const auto percentuale = [&](double y) {
    return aumenti.empty() ? ScriviConto("{}", {y}) : ScriviConto("{} x {}", {y, aumenti});
  };
  const std::string y0 = percentuale(p.y0), y1 = percentuale(p.y1);
  return ScriviConto("{} - ({} - {}) x ({} - {}) / ({} - {})", {y0, y0, y1, p.x, p.x0, p.x1, p.x0});
}

Catena CatenaTabellaA(const LetturaTabella& l, int periodo, std::string_view classe,
                      std::string_view categoria) {
  const Conto aumenti = AumentiFinoA(periodo, l.oltre);
  Catena catena;
  if (aumenti.Valore() != 1) catena.push_back(PassoAumenti(periodo, l.oltre, aumenti));
  Passaggio passo{"Art. 15, Tabella A, " + ClasseInParole(classe, categoria) + ", " +
                      SiglaDecreto(periodo) + ". ",
                  "", l.percentuale, "%"};
  const std::string fattore = Con(aumenti);
  if (l.ultima) {
    passo.regola += "Oltre " + InLire(kLimiteTabellaA) + " vale l'ultima percentuale della tabella";
    passo.conto = fattore.empty() ? "" : ScriviConto("{} x {}", {fattore, l.passi.y1});
  } else {
    passo.regola += TraIPassi(l.passi) + (fattore.empty() ? "" : ", aumentate,") + kInLineaRetta;
    passo.conto = ContoInterpolazione(l.passi, fattore);
    if (l.passi.x0 == 0)
      passo.Annota(
          "Sotto il primo importo della tabella la percentuale cala con l'importo fino a zero");
  }
  catena.push_back(std::move(passo));
  return catena;
}

Catena CatenaTabellaNuova(const LetturaCurva& l, double lire, std::string_view classe,
                          std::string_view categoria) {
  Passaggio passo{"D.M. 4-4-2001, Tabella A, " + ClasseInParole(classe, categoria) +
                      ". Curva 10^p x X^b + q, dove X è l'importo in Lire, p = " +
                      CifraEsatta(l.p) + ", b = " + CifraEsatta(l.b) + ", q = " + CifraEsatta(l.q),
                  ScriviConto("10 ^ {} x {} ^ ({}) + {}", {l.p, l.X, CifraEsatta(l.b), l.q}),
                  l.percentuale, "%"};
  if (!l.trovata) {
    passo = {"D.M. 4-4-2001, Tabella A: la curva non dà percentuali per " +
                 ClasseInParole(classe, categoria) + " e " + InLire(lire),
             "", 0, "%"};
  } else if (l.X > lire) {
    passo.Annota("Sotto " + InLire(kCurvaDa) + " vale la percentuale di questo importo");
  } else if (l.X < lire) {
    passo.Annota("Oltre " + InLire(l.X) + " vale la percentuale di questo importo");
  }
  return {passo};
}

Catena CatenaTabellaC(const LetturaTabella& l, int periodo) {
  const Conto aumenti = AumentiFinoA(periodo, l.oltre);
  Catena catena;
  if (aumenti.Valore() != 1) catena.push_back(PassoAumenti(periodo, l.oltre, aumenti));
  const std::string fattore = Con(aumenti);
  Passaggio passo{"Tabella C, " + SiglaDecreto(periodo) + ". ", "", l.percentuale, "%"};
  // Both ends have one percentage: the straight line has nothing to do.
  const bool piana = l.passi.y0 == l.passi.y1;
  const std::string percentuale =
      piana ? ScriviConto("{}", {l.passi.y1}) : ContoInterpolazione(l.passi);
  if (piana)
    passo.regola += l.ultima ? "Oltre " + InLire(l.passi.x0) + " la percentuale non cala più"
                             : "Fino a " + InLire(l.passi.x1) + " vale la prima percentuale";
  else
    passo.regola += TraIPassi(l.passi) + kInLineaRetta + (fattore.empty() ? "" : " e si aumenta");
  passo.conto = fattore.empty() ? percentuale
                : piana         ? percentuale + " x " + fattore
                                : "(" + percentuale + ") x " + fattore;
  catena.push_back(std::move(passo));
  return catena;
}

}  // namespace orm
