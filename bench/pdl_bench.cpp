// A note of twenty rows with all its blocks from file to report text, beside its share of table
// look-ups and beside formatting and writing as many lines with fixed numbers.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>

#include "cases/calculation_step.h"
#include "cases/pdl/data.h"
#include "cases/pdl/pdl.h"
#include "tariff/files/closing_line.h"
#include "tariff/files/user_files.h"
#include "tests/unit/fake_player.h"

namespace orm {
namespace {

constexpr int kLottiDellaNota = 4, kRighePerLotto = 5;

PeriziaPdl Perizia() {
  PeriziaPdl p;
  p.LavoriSuppletivi = 60000000;
  p.LavoriVariati = 25000000;
  return p;
}

DatiPdl TuttiIBlocchi() {
  DatiPdl d;
  d.IncaricoParziale = d.CertificatoRegolare = "SI";
  d.PeriodoMassimo = "5";
  for (int i = 0; i < kLottiDellaNota; ++i) {
    LottoARighe& lotto = d.Lotti.emplace_back();
    for (int j = 0; j < kRighePerLotto; ++j) {
      RigaPdl& r = d.Righe.emplace_back();
      r.Classe = "1";
      r.Categoria = "c";
      r.PeriodoTariffario = std::string(1, static_cast<char>('1' + j));
      r.ImportoProgetto = 1200000000.0 + 10000000 * i;
      r.ImportoDirezione = 900000000.0 + 10000000 * j;
      r.FlagSorveglianza = r.FlagRevisione = r.FlagPerizie = "S";
      r.FlagContabilita = d.Righe.size() <= 10 ? "S" : "N";
      r.CoefficienteContabilita = 1.1;
      r.NumeroPerizie = 1;
      r.Perizie[0] = Perizia();
      lotto.PeriodoDelLotto.push_back(static_cast<std::int16_t>(j + 1));
    }
    lotto.UltimaRiga = static_cast<std::int16_t>(d.Righe.size());
  }
  return d;
}

struct Nota {
  Nota() {
    stato.ModoLire = true;
    stato.FileInt = "INT_PDL.DAP";
    stato.FileInp = "INP_PDL.DAP";
    stato.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
    ScriviDatiProfessionista(stato.folder, {});
    ScriviIntestazione(stato.folder, stato.FileInt, {"Comune", "Opera", "", ""});
    DatiPdl dati = TuttiIBlocchi();
    DataWriter corpo;
    Campi(corpo, dati);
    ScriviParcella(stato.folder, stato.FileInp, corpo, {});
  }
  ~Nota() { std::filesystem::remove_all(cartella); }

  static std::string NuovaCartella() {
    std::string nome = std::filesystem::temp_directory_path() / "orm-bench-XXXXXX";
    return mkdtemp(nome.data());
  }
  long RigheDelReport() {
    const Parcella parcella = CalcolaDaFile<CalcoloPdl>(stato);
    return std::ranges::count(parcella.uscita.Contents(), '\n');
  }

  std::string cartella = NuovaCartella();
  FakePlayer player;
  RunState stato{player, WorkFolder(cartella)};
};

void NotaPdlIntera(benchmark::State& misura) {
  Nota nota;
  for (auto _ : misura) benchmark::DoNotOptimize(CalcolaDaFile<CalcoloPdl>(nota.stato));
  misura.counters["righe"] = static_cast<double>(nota.RigheDelReport());
}
BENCHMARK(NotaPdlIntera);

// The same while it records how its figures come about; then with all of it read as text, too.
void NotaPdlSpiegata(benchmark::State& misura) {
  Nota nota;
  nota.stato.memoria.The<SpiegazioniChieste>().si = true;
  for (auto _ : misura) benchmark::DoNotOptimize(CalcolaDaFile<CalcoloPdl>(nota.stato));
}
BENCHMARK(NotaPdlSpiegata);

void NotaPdlSpiegataELetta(benchmark::State& misura) {
  Nota nota;
  nota.stato.memoria.The<SpiegazioniChieste>().si = true;
  for (auto _ : misura)
    benchmark::DoNotOptimize(
        TestoSpiegazioni(CalcolaDaFile<CalcoloPdl>(nota.stato).spiegazioni.Righe()));
}
BENCHMARK(NotaPdlSpiegataELetta);

// The look-ups of that note: above the limit two for the design and two for the supervision of each
// row, and one for its report.
void TabelleDellaNota(benchmark::State& misura) {
  Parcella parcella;
  parcella.ModoLire = true;
  for (auto _ : misura)
    for (int i = 0; i < kLottiDellaNota * kRighePerLotto * 5; ++i)
      benchmark::DoNotOptimize(
          parcella.PercentualeDaTabellaA(6000000.0 * (i + 1), 1 + i % 5, "1", "c"));
}
BENCHMARK(TabelleDellaNota);

// As many lines, each with a label and the fixed figures of a formula.
void StesseRigheConNumeriFissi(benchmark::State& misura) {
  const long righe = Nota().RigheDelReport();
  const Percentuale percentuale{4.7513351, "4,7513351%"};
  Parcella parcella;
  parcella.ModoLire = true;
  parcella.StringaCoefficiente = " x 1,4027";
  for (auto _ : misura) {
    parcella.uscita = ReportPrinter();
    for (auto i = righe; i > 0; --i)
      parcella.StampaOnorario({.aliquota = 0.65,
                               .percentuale = percentuale,
                               .importo = parcella.TestoImporto(665000000)},
                              28808156);
  }
}
BENCHMARK(StesseRigheConNumeriFissi);

}  // namespace
}  // namespace orm
