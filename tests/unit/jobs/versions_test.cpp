// Versions of a note: listed, compared, brought back.
#include "cases/fee_case.h"
#include "jobs/field_words.h"
#include "jobs/note_versions.h"
#include "tests/unit/jobs/job_folder.h"

namespace orm {
namespace {

class VersionsTest : public JobsTest {
 protected:
  void SetUp() override {
    LaySamples("A", {"UTENTE.DAG", "INT_PPE.DAP", "INP_PPE.DAP"});
    header_ = Folder("A").Read("INT_PPE.DAP");
  }
  // What a save of then has replaced.
  void LayOld(const std::string& stem, const std::string& when, const std::string& bytes) const {
    Lay("A/storico/" + stem + ".2026-11-" + when + ".DAP", bytes);
  }
  std::vector<VersioneParcella> Versions() const { return VersioniDi(PathOf("A"), NoteOf("A")); }
  std::string Told() const {
    std::string all;
    for (const VersioneParcella& version : Versions())
      all += (all.empty() ? "" : ", ") + QuandoInParole(version);
    return all;
  }
  std::size_t Offered() const { return VersioneDaOffrire(PathOf("A"), NoteOf("A"), Versions()); }

  std::string header_;
  static inline const std::string kBody = "1,1,1,1,1\r\n", kClosing = "0,0,\"\",1\r\n",
                                  kAgreed = "10,0,\"\",1\r\n";
};

TEST_F(VersionsTest, HeaderAndDataOfOneInputAreOneVersion) {
  EXPECT_EQ(Told(), "Attuale");
  EXPECT_EQ(Offered(), 0U);
  // Data alone; then header and data of one input; then the header alone, and hours later the data.
  LayOld("INP_PPE", "01_100000", kBody + kAgreed);
  LayOld("INT_PPE", "02_100000", "\"A\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
  LayOld("INP_PPE", "02_100500", "2" + kBody.substr(1) + kClosing);
  LayOld("INT_PPE", "03_100000", "\"B\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
  LayOld("INP_PPE", "03_180000", kBody + kClosing);
  EXPECT_EQ(Told(),
            "Attuale, 03/11/2026 18:00:00, 03/11/2026 10:00:00, 02/11/2026 10:00:00, "
            "01/11/2026 10:00:00");
  EXPECT_EQ(Offered(), 1U);
  // What holds the same as its neighbour is no version of its own.
  LayOld("INP_PPE", "04_100000", Folder("A").Read("INP_PPE.DAP"));
  EXPECT_EQ(Told().substr(0, 28), "Attuale, 03/11/2026 18:00:00");
}

// "NUOVA PARCELLA" by mistake writes the new data twice: the note of before is offered at once, and
// what was brought back can be taken back.
TEST_F(VersionsTest, AMistakenNewNoteIsUndoneAndTheUndoingToo) {
  const WorkFolder folder = Folder("A");
  const std::string good = folder.Read("INP_PPE.DAP"), wrong = "0,0,0,0,0\r\n" + kAgreed;
  LayOld("INP_PPE", "02_100000", good);
  LayOld("INP_PPE", "02_100100", "0,0,0,0,0\r\n" + kClosing);
  Lay("A/INP_PPE.DAP", wrong);
  ASSERT_EQ(Offered(), 2U);
  const ParcellaDelLavoro note = NoteOf("A");
  auto versions = Versions();
  CalcolaNetto(PathOf("A"), note, versions[0]);
  CalcolaNetto(PathOf("A"), note, versions[2]);
  ASSERT_TRUE(versions[0].netto && versions[2].netto) << versions[0].motivo << versions[2].motivo;
  EXPECT_EQ(versions[0].netto->testo, "L. 0");
  EXPECT_EQ(versions[2].netto->testo, "L. 1.069.600");
  RiportaVersione(PathOf("A"), note, versions[2]);
  EXPECT_EQ(folder.Read("INP_PPE.DAP"), good);
  EXPECT_EQ(folder.Read("INT_PPE.DAP"), header_);
  RiportaVersione(PathOf("A"), note, Versions()[1]);
  EXPECT_EQ(folder.Read("INP_PPE.DAP"), wrong);
  LayOld("INP_PPE", "30_100000", "non sono dati");
  versions = Versions();
  CalcolaNetto(PathOf("A"), note, versions[1]);
  EXPECT_NE(versions[1].motivo, "");
}

TEST_F(VersionsTest, DifferencesAreInTheWordsOfTheForms) {
  const auto told = [&](const std::string& code, const std::string& from, const std::string& to) {
    LaySamples(code, {"INT_" + code + ".DAP", "INP_" + code + ".DAP"});
    std::string data = Folder(code).Read("INP_" + code + ".DAP");
    Folder(code).Replace("INP_" + code + ".DAP", data.replace(data.find(from), from.size(), to));
    const auto versions = VersioniDi(PathOf(code), NoteOf(code));
    std::string all;
    for (const Differenza& d : Confronta(PathOf(code), NoteOf(code), versions[1], versions[0]))
      all +=
          (d.dove.empty() ? "" : d.dove + ": ") + d.campo + " " + d.prima + " > " + d.dopo + "\n";
    return all;
  };
  EXPECT_EQ(told("PPE", "2,5,3,1,1\r\n20,", "2,5,3,7,1\r\n12.5,"),
            "Verbale di consistenza, numero fabbricati 1 > 7\n"
            "Percentuale di riduzione 20 > 12,5\n");
  EXPECT_EQ(told("PDL", "\"5\",\"\",\"5\",-75000000", "\"4\",\"\",\"5\",1"),
            "Lotto 2, riga 1: Classe 5 > 4\n"
            "Lotto 2, riga 1: Importo dei lavori di progetto L. -75.000.000 > L. 1\n");
  EXPECT_EQ(told("RPA", "1,1,1,7.35", "2,1,2,7.35"),
            "Terreno 1: Terreni NUDI O POCO ALBERATI > FRASTAGLIATI, PALUDOSI\n"
            "Terreno 1: Scala 1:1000 > 1:2000\n");
}

TEST_F(VersionsTest, EveryFieldOfEveryCaseHasWords) {
  std::set<std::string> without;
  for (const FeeCase& fee : FeeCases())
    for (const char* mark : {"", "_E"}) {
      const std::string file = std::string("INP_") + fee.code + mark + ".DAP";
      if (!kSample.Exists(file)) continue;
      for (const CampoLetto& field : fee.campi(kSample, file))
        if (SiMostra(field) && !HaParole(field.nome)) without.insert(field.nome);
    }
  EXPECT_EQ(without, std::set<std::string>());
}

}  // namespace
}  // namespace orm
