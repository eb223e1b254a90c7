// The data files of the fee cases: a body with its closing line; what could be read is also
// calculated, under every kind of criteria and in both currencies.
#include <array>
#include <set>

#include "cases/agp/data.h"
#include "cases/coa/data.h"
#include "cases/cos/data.h"
#include "cases/esl/data.h"
#include "cases/fee_case.h"
#include "cases/geo/data.h"
#include "cases/inc/data.h"
#include "cases/pdl/data.h"
#include "cases/pes/data.h"
#include "cases/ppe/data.h"
#include "cases/rim/data.h"
#include "cases/rpa/data.h"
#include "cases/sic/data.h"
#include "cases/stc/data.h"
#include "cases/sup/data.h"
#include "tariff/files/closing_line.h"
#include "tariff/files/user_files.h"
#include "tariff/parcella.h"
#include "tests/fuzz/fuzzer.h"
#include "tests/unit/fake_player.h"

namespace orm::fuzz {
namespace {

// A folder as an installation brings it, with a header.
void Prepare() {
  for (const char* name : {"CAC.CFG", "CS1.CFG", "CS2.CFG", "GEO.CFG", "INC.CFG", "IND.CFG"})
    Put(name, WorkFolder(ORM_SOURCE_DIR "/data").Read(name));
  ScriviDatiProfessionista(Place(), {});
  ScriviIntestazione(Place(), "INT.DAP", {"Comune", "Strada", "", ""});
}

Criteri CriteriBy(std::size_t size) {
  static constexpr std::array kTipi = {"CALCOLATA", "ASSEGNATA", "CALABRIA", "NUOVA TARIFFA"};
  Criteri criteri;
  criteri.TipoPercentualeCompensi = kTipi[size % kTipi.size()];
  criteri.DecimaliTabelle = criteri.DecimaliCompensi = static_cast<std::uint8_t>(size % 10);
  criteri.StampaParere = criteri.StampaSpeseAggiuntive = size % 2 == 0 ? "SI" : "NO";
  criteri.AliquoteDirezioneLavori = size % 3 == 0 ? "SEPARATE" : "UNITE";
  criteri.CompensiSuSorveglianza = criteri.CompensiSuMaggiorazione = size % 5 == 0 ? "NO" : "SI";
  return criteri;
}

// A report or a failure; one that is printed has no line without its end.
void Calculate(RunState& stato) {
  std::string report;
  try {
    report = FindFeeCase(stato.CasoDiParcella)->calcolo(stato).uscita.Contents();
  } catch (const RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    return;
  }
  Require(report.ends_with("\r\n"), "la parcella è intera");
}

// A note; where two cases have the same data, every other input is the second's.
template <class Dati>
void CheckNote(std::string_view input, const std::vector<const char*>& codes) {
  static const bool prepared = (Prepare(), true);
  Require(prepared, "la cartella è pronta");
  FakePlayer nobody;
  RunState stato(nobody, Place());
  stato.CasoDiParcella = codes[input.size() % codes.size()];
  stato.FileInt = "INT.DAP";
  stato.FileInp = "INP.DAP";
  stato.criteri = CriteriBy(input.size());
  Dati dati;
  Chiusura chiusura;
  const auto fields = [&](Values& values) {
    Campi(values, dati);
    CampiChiusura(values, chiusura);
  };
  const auto write = [&] {
    DataWriter corpo;
    Campi(corpo, dati);
    ScriviParcella(Place(), stato.FileInp, corpo, chiusura);
  };
  if (!CheckFile(
          stato.FileInp, input, [&] { LeggiFileDati(Place(), stato.FileInp, dati, chiusura); },
          fields, write))
    return;
  for (const bool lire : {true, false}) {
    stato.ModoLire = lire;
    Calculate(stato);
  }
}

}  // namespace

Formats NoteFormats() {
  Formats formats;
  std::set<std::string_view> known;
  const auto add = [&]<class Dati>(const char* name, std::vector<const char*> codes, Dati) {
    known.insert(codes.begin(), codes.end());
    formats.push_back({name, [=](std::string_view input) { CheckNote<Dati>(input, codes); }});
  };
  add("agp", {"AGP"}, DatiAgp());
  add("collaudo", {"COA"}, DatiCoa());
  add("cos", {"CS1", "CS2"}, DatiCos());
  add("esl", {"ESL"}, DatiEsl());
  add("geo", {"GEO"}, DatiGeotecnici());
  add("inc", {"INC"}, DatiInc());
  add("parcella", {"PPE"}, DatiPpe());
  add("pdl", {"PDL"}, DatiPdl());
  add("pes", {"PES"}, DatiPes());
  add("rim", {"RIM"}, DatiRim());
  add("rpa", {"RPA"}, DatiRpa());
  add("sic", {"SC1", "SC2"}, DatiSicurezza());
  add("stc", {"STC"}, DatiStc());
  add("sup", {"SUP"}, DatiSup());
  for (const FeeCase& fee : FeeCases())
    Require(fee.calcolo == nullptr || known.contains(fee.code), "ogni caso ha il suo formato");
  return formats;
}

}  // namespace orm::fuzz
