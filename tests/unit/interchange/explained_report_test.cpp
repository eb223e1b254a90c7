// A report is explained as it lies in its folder: whole, changed by hand, or no longer that of its
// data.
#include "interchange/explained_report.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "cases/fee_case.h"
#include "shell/personal/settings.h"
#include "tariff/parcella.h"
#include "tests/temporary_folder.h"
#include "tests/unit/fake_player.h"

namespace orm {
namespace {

using Righe = std::vector<std::string>;
using Esito = ReportSpiegato::Esito;

TEST(ExplainedReport, AlignsLinesInTheirOrder) {
  struct {
    Righe mostrato, fatto;
    std::vector<int> righe;
  } const kCasi[] = {
      {{"a", "b", "c"}, {"a", "b", "c"}, {0, 1, 2}},
      {{"a", "x", "c"}, {"a", "b", "c"}, {0, -1, 2}},
      {{"a", "nota", "b", "b", "c"}, {"a", "b", "b", "c"}, {0, -1, 1, 2, 3}},
      {{"b", "a"}, {"a", "b"}, {-1, 0}},
      {{"x", "b", "y", "d"}, {"a", "b", "c", "e", "d", "f"}, {-1, 1, -1, 4}},
      {{}, {"a"}, {}},
  };
  for (const auto& caso : kCasi) EXPECT_EQ(AllineaRighe(caso.mostrato, caso.fatto), caso.righe);
}

// A short note of the samples, calculated.
class ExplainedNote : public testing::Test {
 protected:
  ExplainedNote() {
    const WorkFolder samples(std::string(ORM_SOURCE_DIR) + "/data/sample");
    for (const char* name : {"UTENTE.DAG", "INT_PPE.DAP", "INP_PPE.DAP"})
      folder_.Replace(name, samples.Read(name));
    FakePlayer player;
    RunState stato(player, folder_);
    stato.CasoDiParcella = "PPE";
    stato.ModoLire = true;
    stato.FileInt = "INT_PPE.DAP";
    stato.FileInp = "INP_PPE.DAP";
    LeggiCriteri(stato);
    const Parcella nota = FindFeeCase("PPE")->calcolo(stato);
    nota.uscita.Save(folder_, "OUT_PPE.DOC");
    report_ = nota.uscita.Contents();
  }
  ReportSpiegato Spiega(const std::string& testo, const char* nome = "OUT_PPE.DOC") const {
    return SpiegaReport(folder_, nome, testo);
  }
  TemporaryFolder temporary_;
  WorkFolder folder_ = temporary_.Folder();
  std::string report_;
};

TEST_F(ExplainedNote, EachLineHasItsOwnChain) {
  const ReportSpiegato intero = Spiega(report_);
  EXPECT_EQ(intero.esito, Esito::Spiegato);
  ASSERT_GT(intero.righe.size(), 3U);
  // A hand has put a line before the others and written another figure into an explained one.
  const auto [riga, prima] = *intero.righe.begin();
  const std::string cifra(prima.Cifra());
  std::string corretto = "Nota a mano\r\n" + report_;
  corretto.replace(corretto.find(cifra, corretto.find("ONORARI")), cifra.size(), "1");
  const ReportSpiegato parte = Spiega(corretto);
  EXPECT_EQ(parte.esito, Esito::InParte);
  EXPECT_EQ(parte.righe.size(), intero.righe.size() - 1);
  for (const auto& [altra, spiegazione] : parte.righe) {
    EXPECT_EQ(spiegazione.riga, altra);
    EXPECT_EQ(spiegazione.testo, intero.righe.at(altra - 1).testo);
  }
  // Of another report the few lines that are alike explain nothing.
  EXPECT_EQ(Spiega("Nota a mano\r\n").esito, Esito::DatiCambiati);
}

TEST_F(ExplainedNote, TellsWhyThereIsNone) {
  EXPECT_EQ(Spiega(report_, "copia.DOC").esito, Esito::SenzaDati);
  folder_.Replace("INP_PPE.DAP", "99,5,3,1,1\r\n0,0,2,2\r\n");
  const auto dopo = std::filesystem::last_write_time(folder_.PathOf("OUT_PPE.DOC"));
  std::filesystem::last_write_time(folder_.PathOf("INP_PPE.DAP"), dopo + std::chrono::seconds(9));
  const ReportSpiegato cambiati = Spiega(report_);
  EXPECT_EQ(cambiati.esito, Esito::DatiCambiati);
  EXPECT_TRUE(cambiati.righe.empty());
  folder_.Replace("INP_PPE.DAP", "guasto");
  const ReportSpiegato guasto = Spiega(report_);
  EXPECT_EQ(guasto.esito, Esito::NonRiuscito);
  EXPECT_NE(guasto.motivo.find("INP_PPE.DAP"), std::string::npos) << guasto.motivo;
  folder_.Remove("INP_PPE.DAP");
  EXPECT_EQ(Spiega(report_).esito, Esito::SenzaDati);
}

}  // namespace
}  // namespace orm
