// What the fuzzers of the cases' data files do: a body with its closing line; what could be read is
// also calculated, under every kind of reduction and in both currencies.
#pragma once

#include "cases/calculation_step.h"
#include "tariff/files/user_files.h"
#include "tests/fuzz/file_fuzzer.h"

namespace orm::fuzz {

// A report or a failure; one that is printed has no line without its end.
template <class Calcolo>
void Calculate(RunState& stato, Calcolo&& calcolo) {
  std::string report;
  try {
    report = calcolo(stato).uscita.Contents();
  } catch (const RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    return;
  }
  Require(report.ends_with("\r\n"), "la parcella è intera");
}

// A tariff file as an installation brings it, where the folder has none yet.
inline void Install(const WorkFolder& folder, const char* name) {
  if (!folder.Exists(name))
    folder.Replace(name, WorkFolder(ORM_SOURCE_DIR "/data").Read(name), Durability::Remakeable);
}

// `Dati` is the case's struct, `calcolo` its calculation on a run state.
template <class Dati, class Calcolo>
int CheckNote(const std::uint8_t* data, std::size_t size, Calcolo&& calcolo) {
  static const FuzzFolder place;
  static Nobody nobody;
  static const bool prepared = [] {
    ScriviDatiProfessionista(place.Folder(), {});
    ScriviIntestazione(place.Folder(), "INT.DAP", {"Comune", "Strada", "", ""});
    return true;
  }();
  Require(prepared, "la cartella è pronta");
  RunState stato(nobody, place.Folder());
  stato.FileInt = "INT.DAP";
  stato.FileInp = "INP.DAP";
  Dati dati;
  bool read = false;
  CheckFile(
      place, stato.FileInp, Text(data, size),
      [&] {
        LeggiFileDati(stato.folder, stato.FileInp, dati, stato.chiusura);
        read = true;
        Values values;
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
  Criteri& criteri = stato.criteri;
  criteri.StampaParere = criteri.StampaSpeseAggiuntive = size % 2 == 0 ? "SI" : "NO";
  criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  criteri.AliquoteDirezioneLavori = size % 3 == 0 ? "SEPARATE" : "UNITE";
  criteri.CompensiSuSorveglianza = criteri.CompensiSuMaggiorazione = size % 5 == 0 ? "NO" : "SI";
  for (const bool lire : {true, false}) {
    stato.ModoLire = lire;
    Calculate(stato, calcolo);
  }
  return 0;
}

}  // namespace orm::fuzz
