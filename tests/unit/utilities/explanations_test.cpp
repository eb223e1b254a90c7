// Interest, pension, percentages and the accounting fee can be reckoned again from what their
// explanations say, and say what the manual's worked examples say.
#include <random>

#include "shell/help/help_books.h"
#include "tariff/accounting_block.h"
#include "tests/unit/sums.h"
#include "utilities/form_accounting_fee.h"
#include "utilities/interest.h"
#include "utilities/pension.h"
#include "utilities/percentages.h"

namespace orm {
namespace {

// A page of the help, each line end a blank.
std::string Pagina(std::string_view file) {
  for (const HelpBook& book : HelpBooks())
    for (const HelpPage& page : book.pages)
      if (page.file == file) {
        std::string text = page.text;
        std::ranges::replace(text, '\n', ' ');
        return text;
      }
  return "";
}

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

    // Of both tables of limits, and a coefficient that they do not know.
    const RigaContabilita riga{1 + any(6), std::array{0.7, 1.0, 1.1, 1.2, 1.4, 2.0}[any(6)],
                               r.lire ? 4 * r.importo : r.importo * any(9000)};
    const OnorarioContabilita fasce = CalcoloOnorarioContabilita({riga}, r.lire);
    const auto contabilita = SpiegaContabilita(fasce, r.lire, "ONORARIO");
    for (std::size_t k = 0; k < fasce.fasce.size(); ++k) {
      const std::string testo = TestoFasciaContabilita(fasce.fasce[k], r.lire);
      ExpectRecomputed(contabilita[k].passi, fasce.fasce[k].onorario, "contabilità ");
      for (const Passaggio& passo : contabilita[k].passi)
        EXPECT_NE(testo.find(passo.cifra), std::string::npos) << testo << passo.regola;
    }
    ExpectRecomputed(contabilita.back().passi, fasce.onorario, "contabilità ");
  }
}

// A worked example stands on its page with its figures, and so it does in the explanation.
TEST(Explanations, OfTheUtilitiesHoldTheManualsExamples) {
  const auto spiegata = [](RichiestaPercentuali r) {
    return TestoSpiegazioni(CalcolaPercentuali(r, {}).perche);
  };
  const TabellaTus tassi{{{2000, 1, 1}, {2000, 3, 31}, 10},
                         {{2000, 4, 1}, {2000, 8, 31}, 8},
                         {{2000, 9, 1}, {2001, 2, 28}, 6},
                         {{2001, 3, 1}, {2002, 3, 15}, 5}};
  std::string mora;
  for (const auto tipo : {TipoInteresse::Semplice, TipoInteresse::Composto})
    mora += TestoSpiegazioni(SpiegaInteressiMora(
        CalcolaInteressiMora(tassi, 10000000, {2000, 2, 15}, {2001, 6, 20}, tipo)));
  RedditiAnnui redditi;
  redditi.fill(30000000);
  Catena pensione;
  double annua = 0;
  PensioneDelReddito(RedditoMedio(redditi, 20, &pensione), 20, 0, annua, &pensione);
  const struct {
    const char* pagina;
    std::string spiegazione;
    std::vector<const char*> cifre;
  } esempi[] = {
      {"help/norme.md",
       spiegata({"1", "c", 5, 120000000}),
       {"Art. 15", "6,44", "5,796", "11,773762"}},
      {"manuale/percentuali.md", spiegata({"1", "a", 5, 1e9}), {"4,3691697"}},
      {"manuale/percentuali.md",
       TestoSpiegazioni(
           SpiegaContabilita(CalcoloOnorarioContabilita({{5, 1, 8000000}}, true), true, "")),
       {"Tabella E", "1,83965", "91.982", "3.000.000", "1,68634", "50.590", "142.572"}},
      {"manuale/interessi_mora.md",
       mora,
       {"46 + 152 + 180 + 111 = 489", "6,770961145", "907.123", "917.405"}},
      {"manuale/pensione.md", TestoSpiegazione({0, "", pensione}), {"45.412.250", "18.164.900"}},
  };
  for (const auto& [pagina, spiegazione, cifre] : esempi)
    for (const std::string testo = Pagina(pagina); const char* cifra : cifre) {
      EXPECT_NE(testo.find(cifra), std::string::npos) << pagina << cifra;
      EXPECT_NE(spiegazione.find(cifra), std::string::npos) << cifra << '\n' << spiegazione;
    }
}

}  // namespace
}  // namespace orm
