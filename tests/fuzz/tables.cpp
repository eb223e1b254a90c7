// The tables that the user keeps with a text editor: read, and looked up over amounts of every
// size.
#include "cases/cos/config.h"
#include "cases/geo/config.h"
#include "structures/truss_slab/report.h"
#include "tariff/config/compensation_steps.h"
#include "tariff/config/price_index.h"
#include "tests/fuzz/fuzzer.h"
#include "utilities/interest_rates.h"

namespace orm::fuzz {
namespace {

constexpr double kImporti[] = {1.0, 15e6, 99999999999.0};

// An answer, or a message that names the file, and the field with its line where `place` is known.
template <class Lookup>
void Check(const std::string& name, std::string_view input, bool place, Lookup&& lookup) {
  Put(name, input);
  try {
    lookup();
  } catch (const RuntimeFailure& failure) {
    Require(failure.File() == name, "il messaggio nomina il file");
    Require(!place || (!failure.Field().empty() && failure.Line() > 0),
            "il messaggio nomina riga e campo");
  }
  Require(Place().Read(name) == input, "il file resta com'era");
}

void Scaglioni(std::string_view input) {
  Check("CAC.CFG", input, true, [] {
    const ScaglioniCompensi scaglioni(Place());
    Require(scaglioni.PercCompensiAccessoriCfg(0) == 0, "senza lavori non c'è percentuale");
    for (const double lire : kImporti) scaglioni.PercCompensiAccessoriCfg(lire);
  });
}

void Tassi(std::string_view input) {
  Check(std::string(kFileTus), input, true, [] {
    const TabellaTus tabella = LeggiTabellaTus(Place(), {2002, 3, 15});
    Require(!tabella.empty() && tabella.size() <= kPeriodiTus, "da uno a cento periodi");
    for (const PeriodoTus& periodo : tabella)
      Require(std::isfinite(periodo.Tasso), "il tasso è un numero");
  });
}

// One input as each of the three.
void Tariffe(std::string_view input) {
  Check("IND.CFG", input, false, [] { IndiciFoi(Place()).PercentualeRivalutazione(6, 1999); });
  Check("CS1.CFG", input, false, [] {
    LeggiTestataCos(Place(), "CS1");
    for (const std::size_t periodo : {0U, 4U}) {
      const PeriodoCos p = LeggiPeriodoCos(Place(), "CS1", periodo);
      for (const double lire : kImporti) p.OnorarioA(lire);
    }
  });
  Check("GEO.CFG", input, false, [] {
    const TabelleGeo t = LeggiTabelleGeo(Place(), 1);
    for (const double lire : kImporti)
      Require(t.Percentuale(3, lire) >= 0, "la percentuale non scende sotto zero");
  });
}

// The maker's address, in the banner of its report.
void Solaio(std::string_view input) {
  Check(kFileProduttore, input, true, [] {
    ReportPrinter report;
    StampaIntestazioneSolaioT(report, LeggiProduttore(Place()));
    report.Save(Place(), kRelazioneSolaioT);
  });
}

}  // namespace

Formats TableFormats() {
  return {{"scaglioni", Scaglioni}, {"solaio", Solaio}, {"tassi", Tassi}, {"tariffe", Tariffe}};
}

}  // namespace orm::fuzz
