// Interest, pension and percentages can be reckoned again from what their explanations say.
#include <random>

#include "tests/unit/sums.h"
#include "utilities/interest.h"
#include "utilities/pension.h"
#include "utilities/percentages.h"

namespace orm {
namespace {

TEST(Explanations, OfTheUtilitiesCanBeReckonedAgain) {
  std::mt19937 random(20260113);
  const auto any = [&random](int most) {
    return static_cast<int>(random() % static_cast<unsigned>(most));
  };
  TabellaTus tabella;
  for (int anno = 1990; anno < 2000; ++anno)
    tabella.push_back({{anno, 1, 1}, {anno, 12, 31}, 4 + any(800) / 100.0});
  for (int i = 0; i < 500; ++i) {
    const Date inizio{1990 + any(8), 1 + any(12), 1 + any(28)};
    const Date fine{inizio.year + any(3), 12, 29 + any(3)};
    const auto tipo = i % 2 == 0 ? TipoInteresse::Semplice : TipoInteresse::Composto;
    const InteressiMora mora =
        CalcolaInteressiMora(tabella, 1e6 + any(99999999), inizio, fine, tipo);
    const double mostrati[] = {mora.Giorni, mora.TassoMedio, mora.Interessi};
    const std::vector<Spiegazione> righe = SpiegaInteressiMora(mora);
    for (std::size_t k = 1; k < 3; ++k) ExpectRecomputed(righe[k].passi, mostrati[k], "mora ");
    if (mora.tratti.size() > 1) ExpectRecomputed(righe[0].passi, mora.Giorni, "mora ");

    RedditiAnnui redditi{};
    for (double& reddito : redditi) reddito = any(150000000);
    const int anni = 1 + any(40);
    Catena passi;
    double pensione = 0;
    PensioneDelReddito(RedditoMedio(redditi, anni, &passi), anni, any(365), pensione, &passi);
    passi.back().cifra = "pensione";
    ExpectRecomputed(passi, pensione, "pensione ");

    RichiestaPercentuali r;
    r.periodo = 1 + any(6), r.lire = i % 3 != 0,
    r.importo = r.lire ? 1 + any(2000000000) : 1 + any(999999) / 100.0;
    for (const Spiegazione& riga : CalcolaPercentuali(r, {}).perche) {
      const Passaggio& ultimo = riga.passi.back();
      ExpectRecomputed(riga.passi, *ultimo.risultato, "percentuali ");
      EXPECT_NE(riga.testo.find(ultimo.cifra), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace orm
