// A note from its files to its report text, beside the bare reading and writing of the same bytes;
// the number text; a look-up in Table A.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "batch/batch_player.h"
#include "runtime/folder.h"
#include "shell/dispatch.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"

namespace orm {
namespace {

// A working folder with one note.
class NoteFolder {
 public:
  NoteFolder() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "orm2002-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = WorkFolder(pattern);
    folder.Replace(
        "UTENTE.DAG",
        "\"Mario "
        "Rossi\"\r\n\"Via\"\r\n\"88100\"\r\n\"Catanzaro\"\r\n\"CZ\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
        "\"\"\r\n\"\"\r\n\"Catanzaro\"\r\n\"1\"\r\n\"1990\"\r\n\"Ingegnere\"\r\n");
    folder.Replace("INT_PPE.DAP", "\"Provincia\"\r\n\"Strada\"\r\n\"\"\r\n\"\"\r\n");
    folder.Replace("INP_PPE.DAP", "2,5,3,1,1\r\n20,1000000,\"\",1\r\n");
  }
  ~NoteFolder() { std::filesystem::remove_all(folder.Path()); }
  NoteFolder(const NoteFolder&) = delete;
  NoteFolder& operator=(const NoteFolder&) = delete;
  WorkFolder folder;
};

void NoteFromFilesToReport(benchmark::State& state) {
  const NoteFolder note;
  BatchPlayer player({2002, 3, 15});
  RunState stato(player, note.folder);
  stato.CasoDiParcella = "PPE";
  stato.ModoLire = true;
  for (auto _ : state) benchmark::DoNotOptimize(CalcoloParcella(stato));
}
BENCHMARK(NoteFromFilesToReport);

void BareReadingAndWritingOfTheSameBytes(benchmark::State& state) {
  const NoteFolder note;
  BatchPlayer player({2002, 3, 15});
  RunState stato(player, note.folder);
  stato.CasoDiParcella = "PPE";
  stato.ModoLire = true;
  CalcoloParcella(stato);
  const std::string report = note.folder.Read("OUT_PPE.DOC");
  for (auto _ : state) {
    for (const char* name : {"UTENTE.DAG", "INT_PPE.DAP", "INP_PPE.DAP"})
      benchmark::DoNotOptimize(note.folder.Read(name));
    note.folder.Replace("OUT_PPE.DOC", report, Durability::Remakeable);
  }
}
BENCHMARK(BareReadingAndWritingOfTheSameBytes);

void NumberText(benchmark::State& state) {
  std::string testo;
  double amount = 1234567.89;
  for (auto _ : state) {
    double valore = amount;
    FormattaNumero(valore, testo, -2);
    benchmark::DoNotOptimize(testo);
    amount += 0.01;
  }
}
BENCHMARK(NumberText);

void LookUpInTableA(benchmark::State& state) {
  double amount = 1000000;
  double percentuale = 0;
  for (auto _ : state) {
    double importo = amount;
    PercentualeTabellaA(importo, 5, "1", "c", percentuale);
    benchmark::DoNotOptimize(percentuale);
    amount = amount < 4e9 ? amount * 1.01 : 1000000;
  }
}
BENCHMARK(LookUpInTableA);

}  // namespace
}  // namespace orm
