// The data of the program itself: each file read, written and read again.
#include "shell/letter/letter.h"
#include "shell/personal/settings.h"
#include "tariff/files/user_files.h"
#include "tests/fuzz/fuzzer.h"
#include "tests/unit/fake_player.h"
#include "utilities/pension_file.h"

namespace orm::fuzz {
namespace {

void Utente(std::string_view input) {
  DatiProfessionista dati;
  CheckFile(
      kFileUtente, input, [&] { dati = LeggiDatiProfessionista(Place()); },
      [&](Values& values) { Campi(values, dati); },
      [&] { ScriviDatiProfessionista(Place(), dati); });
}

void IntestazioneDiParcella(std::string_view input) {
  const std::string file = "INT_PPE.DAP";
  Intestazione dati;
  CheckFile(
      file, input, [&] { dati = LeggiIntestazione(Place(), file); },
      [&](Values& values) { Campi(values, dati); },
      [&] { ScriviIntestazione(Place(), file, dati); });
}

void Lettera(std::string_view input) {
  DatiLettera dati;
  CheckFile(
      kFileLettera, input, [&] { dati = LeggiLettera(Place()); },
      [&](Values& values) { Campi(values, dati); }, [&] { ScriviLettera(Place(), dati); });
}

void CriteriDiCalcolo(std::string_view input) {
  FakePlayer nobody;
  RunState stato(nobody, Place());
  CheckFile(
      kFileCriteri, input, [&] { LeggiCriteri(stato); },
      [&](Values& values) { Campi(values, stato.criteri); },
      [&] { ScriviCriteri(Place(), stato.criteri); });
}

void Editor(std::string_view input) {
  FakePlayer nobody;
  RunState stato(nobody, Place());
  CheckFile(
      kFileEditor, input, [&] { LeggiEditor(stato); },
      [&](Values& values) { Campi(values, stato.editors); },
      [&] { ScriviEditor(Place(), stato.editors); });
}

void Redditi(std::string_view input) {
  FileRedditi dati;
  const auto fields = [&](Values& values) {
    TestataRedditi& t = dati.testata;
    values.Line(Field("1", t.primaData), Field("2", t.secondaData), Field("3", t.terzo),
                Field("4", t.numero));
    for (auto& reddito : dati.redditi) values.Line(Field("reddito", reddito));
  };
  CheckFile(
      std::string(kFileRedditi), input, [&] { dati = LeggiRedditi(Place()); }, fields,
      [&] { ScriviRedditi(Place(), dati); });
}

}  // namespace

Formats FileFormats() {
  return {{"utente", Utente},   {"intestazione", IntestazioneDiParcella},
          {"lettera", Lettera}, {"criteri", CriteriDiCalcolo},
          {"editor", Editor},   {"redditi", Redditi}};
}

}  // namespace orm::fuzz
