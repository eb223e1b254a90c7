// INP_COA.DAP, a testing note with its closing line; what could be read is also calculated.
#include "cases/coa.h"
#include "cases/coa_data.h"
#include "tariff/closing_line.h"
#include "tariff/user_data.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  static fuzz::Nobody nobody;
  static const bool prepared = [] {
    ScriviDatiProfessionista(place.Folder(), {});
    ScriviIntestazione(place.Folder(), "INT_COA.DAP", {"Comune", "Strada", "", ""});
    place.Put("CAC.CFG", "2,\"\"\r\n1000,60,\"\"\r\n1E+12,30,\"\"\r\n");
    return true;
  }();
  fuzz::Require(prepared, "la cartella è pronta");
  RunState stato(nobody, place.Folder());
  stato.FileInt = "INT_COA.DAP";
  stato.FileInp = "INP_COA.DAP";
  DatiCoa dati;
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
  constexpr std::array kTipi = {"CALCOLATA", "ASSEGNATA", "CALABRIA", "NUOVA TARIFFA"};
  stato.criteri.TipoPercentualeCompensi = kTipi[size % kTipi.size()];
  stato.criteri.DecimaliTabelle = stato.criteri.DecimaliCompensi =
      static_cast<std::uint8_t>(size % 10);
  for (const bool lire : {true, false}) try {
      stato.ModoLire = lire;
      stato.NumFileUscita = ReportPrinter();
      CalcoloCoa(stato);
      fuzz::Require(stato.NumFileUscita.Contents().ends_with("\r\n"), "la parcella è intera");
    } catch (const RuntimeFailure& failure) {
      fuzz::Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    }
  return 0;
}
