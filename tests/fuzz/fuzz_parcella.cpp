// INP_PPE.DAP, a case's body with its closing line; what could be read is also calculated, under
// every kind of reduction and in both currencies.
#include "cases/ppe.h"
#include "cases/ppe_data.h"
#include "tariff/closing_line.h"
#include "tariff/user_data.h"
#include "tests/fuzz/file_fuzzer.h"

namespace {

// A report or a failure; one that is printed has no line without its end.
void Calculate(orm::RunState& stato) {
  try {
    stato.NumFileUscita = orm::ReportPrinter();
    double totale = 0;
    orm::CalcoloPpe(stato, totale);
  } catch (const orm::RuntimeFailure& failure) {
    orm::fuzz::Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    return;
  }
  orm::fuzz::Require(stato.NumFileUscita.Contents().ends_with("\r\n"), "la parcella è intera");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  static fuzz::Nobody nobody;
  static const bool prepared = [] {
    ScriviDatiProfessionista(place.Folder(), {});
    ScriviIntestazione(place.Folder(), "INT_PPE.DAP", {"Comune", "Strada", "", ""});
    return true;
  }();
  fuzz::Require(prepared, "la cartella è pronta");
  RunState stato(nobody, place.Folder());
  stato.FileInt = "INT_PPE.DAP";
  stato.FileInp = "INP_PPE.DAP";
  DatiPpe dati;
  bool read = false;
  fuzz::CheckFile(
      place, stato.FileInp, fuzz::Text(data, size),
      [&] {
        LeggiParcella(stato, dati);
        read = true;
        fuzz::Values values;
        Campi(values, dati);
        CampiChiusura(values, stato.chiusura);
        return values;
      },
      [&] {
        DataWriter corpo;
        Campi(corpo, dati);
        ScriviParcella(place.Folder(), stato.FileInp, corpo, stato.chiusura);
      });
  if (!read) return 0;
  stato.criteri.StampaParere = stato.criteri.StampaSpeseAggiuntive = size % 2 == 0 ? "SI" : "NO";
  for (const bool lire : {true, false}) {
    stato.ModoLire = lire;
    Calculate(stato);
  }
  return 0;
}
