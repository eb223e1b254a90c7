// The explanations of random notes, done again from their own texts: each sum must give the result
// that it states, each cut what it leaves, and each line with figures must be explained.
#include <cstdlib>
#include <regex>
#include <set>

#include "cases/calculation_step.h"
#include "tariff/closing/amount_in_words.h"
#include "tariff/explanations.h"
#include "tests/unit/cases/random_files.h"
#include "tests/unit/sums.h"

namespace orm {
namespace {

// Cases whose lines are not all explained yet. The list may only shrink.
const std::set<std::string> kNonSpiegati = {};

// Notes of each case; ORM_NOTE asks for others, as many as one has time for.
unsigned Note() {
  const char* chieste = std::getenv("ORM_NOTE");
  return static_cast<unsigned>(chieste == nullptr ? 12 : ParseNumber(chieste).value_or(12));
}

// Headings have digits and no figures.
bool PortaCifre(const std::string& riga) {
  static const std::regex titoli(
      "=.*| *[0-9]+ - .*|SOTTOCLASSE .*|INCARICO PARZIALE .*|SORVEGLIANZA .*|CERTIFICATO REG.*|"
      "ONORARIO  .*|RESPONSABILE .*|COORDINATORE .*|MISURE E CONT.*|[A-Za-z ]+, li [0-9/]+| "
      "?aliquote (base|integrative) : "
      "[a-z0-9+]+");
  return riga.find_first_of("0123456789") != std::string::npos && !std::regex_match(riga, titoli);
}

// The text that a print makes of what a step leaves.
bool Mostra(const Passaggio& passo) {
  const double valore = passo.Valore().value_or(0);
  std::string attesa = NumberText(valore);
  if (!passo.tagli.empty() && passo.tagli.back().tipo == TipoTaglio::Decimali)
    attesa = FormattaCopia(passo.tagli.back().prima, passo.tagli.back().decimali);
  double inLettere = valore;
  std::string lettere;
  if (passo.cifra.find('/') != std::string::npos) ImportoInLettere(lettere, inLettere);
  if (passo.cifra == CifraNuda(valore)) return true;
  return passo.cifra == attesa || passo.cifra == attesa + "%" || passo.cifra == lettere;
}

std::string Difetto(const std::string& riga, const Spiegazione& spiegazione) {
  for (const Passaggio& passo : spiegazione.passi) {
    if (const std::string difetto = Difetto(passo); !difetto.empty())
      return passo.regola + ": " + passo.conto.Testo() + ": " + difetto;
    if (passo.cifra.empty()) continue;
    if (riga.find(passo.cifra) == std::string::npos) return passo.cifra + " non è nella riga";
    if (!Mostra(passo)) return passo.cifra + " non è ciò che resta";
  }
  return spiegazione.Cifra().empty() ? "nessuna cifra" : "";
}

class Spiegate : public TutteLeNote {
 protected:
  // Lines without a good explanation, each with what it lacks.
  std::vector<std::string> Difetti(const Prova& prova, unsigned seme) {
    CasoNote criteri(seme, true);
    stato.criteri = criteri.CriteriDiCalcolo();
    stato.criteri.DecimaliTabelle = stato.criteri.DecimaliCompensi =
        static_cast<std::uint8_t>(criteri.Uno(2) ? 0 : criteri.Fino(10));
    stato.criteri.StampaParere = stato.criteri.StampaSpeseAggiuntive = "SI";
    stato.criteri.SpesaInarcassa = stato.criteri.SpesaInps = stato.criteri.SpesaIva =
        stato.criteri.SpesaTassaParere = "SI";
    stato.criteri.QuotaPercentualeParere = criteri.Fino(300) / 100.0;
    stato.criteri.QuotaFissaParere = criteri.Fino(9999) / 100.0;
    stato.ModoLire = criteri.Uno(2);
    CasoNote caso(seme, stato.ModoLire);
    // Agreements take the place of those that the data end with.
    std::string bytes = prova.bytes(caso);
    bytes.resize(bytes.rfind("0,0,"));
    bytes += criteri.Fra({"0,0,\"\",1\r\n", "20,1000,\"\",2\r\n", "7.55,0,\"CONCORDATA\",3\r\n"});
    Prepara(prova.codice, bytes);
    stato.memoria.The<SpiegazioniChieste>().si = false;
    const std::string muta = Report(Calcola(prova.codice));
    stato.memoria.The<SpiegazioniChieste>().si = true;
    const Parcella spiegata = Calcola(prova.codice);
    const std::string report = Report(spiegata);
    EXPECT_EQ(muta, report);
    std::vector<std::string> difetti;
    bool corpo = false;
    for (std::size_t da = 0, numero = 1, a = 0; da < report.size(); da = a + 1, ++numero) {
      a = report.find('\n', da);
      const std::string riga = report.substr(da, a - da);
      corpo = corpo || riga.starts_with("===");
      const Spiegazione* spiegazione = spiegata.spiegazioni.Della(numero);
      if (spiegazione == nullptr && !(corpo && PortaCifre(riga))) continue;
      const std::string difetto =
          spiegazione == nullptr ? "nessuna spiegazione" : Difetto(riga, *spiegazione);
      if (!difetto.empty()) difetti.push_back(riga + "\n  " + difetto);
    }
    return difetti;
  }
};

TEST_F(Spiegate, EveryFigureIsDoneAgainFromItsExplanation) {
  for (const Prova& prova : kProve) {
    const bool nonSpiegato = kNonSpiegati.contains(prova.codice);
    std::size_t difetti = 0;
    for (unsigned seme = 0; seme < Note() && (nonSpiegato || difetti == 0); ++seme) {
      const auto trovati = Difetti(prova, seme);
      difetti += trovati.size();
      EXPECT_TRUE(nonSpiegato || trovati.empty())
          << prova.codice << ' ' << seme << ": " << trovati.front();
    }
    EXPECT_TRUE(!nonSpiegato || difetti > 0) << prova.codice << " is explained: take it out";
  }
}

}  // namespace
}  // namespace orm
