// What a job is, how jobs are listed, and what is done to them.
#include "jobs/job_list.h"
#include "runtime/folder_lock.h"
#include "runtime/generations.h"
#include "tests/unit/jobs/job_folder.h"

namespace orm {
namespace {

using Names = std::vector<std::string>;

TEST(Report, StatesItsNetAmountAndDay) {
  const std::string label = "COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )";
  struct Case {
    std::string text;
    bool lire;
    const char* told;  // text and Euro of the amount; empty: none is stated
  };
  const Case cases[] = {
      {label + "     L.      1.234.567\r\ned in EURO              637,60\r\n", true,
       "L. 1.234.567 = 637.6"},
      {label + "     \x80      -1.234,50\r\n", false, "€ -1.234,50"},
      {"  " + label + " €  12,00", false, "€ 12,00"},
      {label + " L. 5\r\n" + label + " L. 7\r\n", true, "L. 7"},
      {label + "\r\n", true, ""},
      {label + " L. circa 7", true, ""},
      {label + " L. 12.34", true, ""},
      {label + " \x80 1,234", false, ""},
      {"COMPETENZE corrette a mano L. 7", true, ""},
  };
  for (const Case& c : cases) {
    const auto net = NettoDellaRelazione(c.text, c.lire);
    std::string told = net ? net->testo : "";
    if (net && net->euro) told += " = " + std::string(*net->euro == 637.6 ? "637.6" : "altro");
    EXPECT_EQ(told, c.told) << c.text;
  }
  EXPECT_EQ(GiornoDellaRelazione("Reggio, li 1/1/2001\r\n" + label +
                                 " L. 7\r\n=====\r\n"
                                 "Reggio, Cal., li 15/03/2002\r\n"),
            (Date{2002, 3, 15}));
  EXPECT_FALSE(GiornoDellaRelazione(label + "\r\nlunedì 15/03/2002\r\n"));
}

TEST_F(JobsTest, AJobTellsItsNotesAndTexts) {
  LaySamples("Rossi", {"INT_PPE.DAP", "INP_PPE.DAP", "INP_SUP_E.DAP"});
  Lay("Rossi/INT_COA_E.DAP", "\"aperto");
  Lay("Rossi/OUT_PPE.DOC", "corretta a mano");
  for (const char* file : {"OUT_SOLAI.DOC", "MEMO.RTF", "appunti.txt", "BALCONI.PDF", "TUS.CFG"})
    Lay(std::string("Rossi/") + file, "x");
  const auto now = fs::last_write_time(PathOf("Rossi/INP_PPE.DAP"));
  fs::last_write_time(PathOf("Rossi/OUT_PPE.DOC"), now - std::chrono::hours(1));

  const Lavoro job = LeggiLavoro(root_, "Rossi");
  ASSERT_EQ(job.parcelle.size(), 3U);
  EXPECT_EQ(job.parcelle[0].codice + ValutaDi(job.parcelle[0]), "COA€");
  EXPECT_NE(job.parcelle[0].danno.find("INT_COA_E.DAP"), std::string::npos);
  const ParcellaDelLavoro& ppe = job.parcelle[1];
  EXPECT_EQ(ppe.nome, "PIANI PARTICELLARI DI ESPROPRIO");
  EXPECT_EQ(ppe.committente, "Provincia di Catanzaro");
  EXPECT_EQ(CheCosaCE(ppe), "intestazione, dati, relazione vecchia");
  EXPECT_TRUE(ppe.giorno && !ppe.netto);
  EXPECT_EQ(CheCosaCE(job.parcelle[2]), "dati");
  Names texts;
  for (const TestoDelLavoro& text : job.testi) texts.push_back(text.descrizione);
  EXPECT_EQ(texts, (Names{"Solaio a putrelle", "Promemoria", "appunti.txt"}));
}

TEST_F(JobsTest, TheListFollowsItsFolders) {
  Lavori jobs(root_);
  EXPECT_FALSE(jobs.Guarda());  // no root yet
  LaySamples("A", {"INT_PPE.DAP"});
  LaySamples("B", {"INT_PPE.DAP"});
  Lay(".nascosta/x", ""), Lay("file", "");
  fs::last_write_time(PathOf("B"), fs::last_write_time(PathOf("A")) - std::chrono::hours(1));
  EXPECT_TRUE(jobs.Guarda());
  const auto told = [&] {
    std::string all;
    for (const VoceLavoro& job : jobs.Voci()) all += job.nome;
    return all;
  };
  EXPECT_EQ(told(), "AB");
  EXPECT_FALSE(jobs.Guarda());
  EXPECT_FALSE(jobs.Dettagli("B").parcelle[0].dati);
  LaySamples("B", {"INP_PPE.DAP"});
  EXPECT_FALSE(jobs.DettagliGiaVisti("B").parcelle[0].dati);
  EXPECT_TRUE(jobs.Guarda());
  EXPECT_EQ(told(), "BA");
  EXPECT_TRUE(jobs.DettagliGiaVisti("B").parcelle[0].dati);
  // An editor that writes in place changes no folder.
  std::string header = Folder("B").Read("INT_PPE.DAP");
  header.replace(header.find("Provincia"), 9, "PROVINCIA");
  Lay("B/INT_PPE.DAP", header);
  EXPECT_EQ(jobs.Dettagli("B").parcelle[0].committente, "PROVINCIA di Catanzaro");
  fs::remove_all(PathOf("A"));
  EXPECT_TRUE(jobs.Guarda());
  EXPECT_NE(ReasonOf([&] { jobs.Dettagli("A"); }), "");
}

TEST_F(JobsTest, NamesThatOtherSystemsRefuseAreRefused) {
  Lay("Rossi/x", "");
  const std::vector<std::pair<std::string, const char*>> names = {
      {"Scuola di via Roma, lotto 2°", ""},
      {"  ", "deve avere"},
      {"a/b", "senza"},
      {"..", "cominciare"},
      {".nascosto", "cominciare"},
      {"a.", "finire"},
      {"a\tb", "carattere"},
      {"\xE0", "carattere"},
      {"Rossi", "già"},
      {std::string(300, 'a'), "lungo"}};
  for (const auto& [name, word] : names) {
    const auto objection = DifettoDelNome(root_, name);
    EXPECT_EQ(objection.has_value(), *word != '\0') << name;
    if (objection) {
      EXPECT_NE(objection->find(word), std::string::npos) << *objection;
    }
  }
  EXPECT_EQ(NomeLibero(root_, "Rossi"), "Rossi (2)");
}

TEST_F(JobsTest, ANewJobTakesAfterItsModelOrTheLast) {
  const TemporaryFolder installed;
  for (const char* file : {"TUS.CFG", "CAC.CFG", "BALCONI.PDF"})
    installed.Folder().Replace(file, "installato");
  NuovoLavoro(root_, "Primo", "", installed.Folder());
  EXPECT_EQ(Folder("Primo").Names(), (Names{"BALCONI.PDF", "CAC.CFG", "TUS.CFG"}));
  Lay("Primo/UTENTE.DAG", "primo"), Lay("Primo/CRITERI.PER", "primo"), Lay("Primo/TUS.CFG", "mio");
  LaySamples("Primo", {"INT_PPE.DAP"});
  fs::create_directory(PathOf("Vuoto"));
  NuovoLavoro(root_, "Secondo", "", installed.Folder());
  EXPECT_EQ(Folder("Secondo").Names(),
            (Names{"BALCONI.PDF", "CAC.CFG", "CRITERI.PER", "TUS.CFG", "UTENTE.DAG"}));
  EXPECT_EQ(Folder("Secondo").Read("TUS.CFG"), "mio");
  Lay("Secondo/UTENTE.DAG", "secondo");
  NuovoLavoro(root_, "Terzo", "Primo", installed.Folder());
  EXPECT_EQ(Folder("Terzo").Read("UTENTE.DAG"), "primo");
}

TEST_F(JobsTest, AWholeJobIsCopiedAndRenamed) {
  LaySamples("A", {"INT_PPE.DAP", "INP_PPE.DAP"});
  Lay("A/storico/INP_PPE.2001-01-01_080000.DAP", "x"), Lay("A/foto/1.jpg", "x");
  Lay("A/.orm2002-bozze.bozza", "x");
  DuplicaLavoro(root_, "A", "B");
  EXPECT_EQ(Folder("B").Names(), (Names{"INP_PPE.DAP", "INT_PPE.DAP"}));
  EXPECT_TRUE(Folder("B/foto").Exists("1.jpg"));
  EXPECT_FALSE(fs::exists(PathOf("B/storico")) || fs::exists(PathOf("B/.orm2002-bozze.bozza")));
  EXPECT_EQ(fs::last_write_time(PathOf("B/INP_PPE.DAP")),
            fs::last_write_time(PathOf("A/INP_PPE.DAP")));
  fs::create_directory_symlink("/", PathOf("B/altrove"));
  EXPECT_NE(ReasonOf([&] { DuplicaLavoro(root_, "B", "C"); }).find("collegamento"),
            std::string::npos);
  EXPECT_FALSE(fs::exists(PathOf("C")));

  EXPECT_NE(ReasonOf([&] { RinominaLavoro(root_, "A", "B"); }).find("già"), std::string::npos);
  {
    const FolderLock lock(Folder("A"));
    EXPECT_TRUE(InUso(PathOf("A")));
    for (const auto& action : std::vector<std::function<void()>>{
             [&] { RinominaLavoro(root_, "A", "D"); }, [&] { EsigiNonInUso(PathOf("A")); },
             [&] { CopiaParcella(PathOf("B"), NoteOf("B"), PathOf("A"), true); }})
      EXPECT_NE(ReasonOf(action).find("in uso"), std::string::npos);
  }
  RinominaLavoro(root_, "A", "D");
  EXPECT_TRUE(Folder("D").Exists("INP_PPE.DAP") && !fs::exists(PathOf("A")) && !InUso(PathOf("D")));
}

TEST_F(JobsTest, ANoteIsCopiedAndWhatItReplacesIsKept) {
  LaySamples("A", {"INT_PPE.DAP", "INP_PPE.DAP"});
  Lay("A/OUT_PPE.DOC", "di A"), Lay("B/INP_PPE.DAP", "1,1,1,1,1\r\n0,0,\"\",1\r\n");
  const ParcellaDelLavoro note = NoteOf("A");
  EXPECT_NE(ReasonOf([&] { CopiaParcella(PathOf("A"), note, PathOf("B"), false); }).find("già"),
            std::string::npos);
  EXPECT_EQ(Folder("B").Names(), Names{"INP_PPE.DAP"});
  CopiaParcella(PathOf("A"), note, PathOf("B"), true);
  EXPECT_EQ(Folder("B").Names(), (Names{"INP_PPE.DAP", "INT_PPE.DAP"}));
  EXPECT_EQ(Folder("B").Read("INP_PPE.DAP"), Folder("A").Read("INP_PPE.DAP"));
  ASSERT_EQ(Generazioni(Folder("B")).size(), 1U);
}

TEST_F(JobsTest, DroppedFilesBecomeAJob) {
  const TemporaryFolder disk;
  const WorkFolder floppy = disk.Folder();
  for (const char* file : {"int_ppe.dap", "UTENTE.DAG", "SOLAIO_P_Rossi.ver", "lettera.pdf"})
    floppy.Replace(file, file);
  LavoroDaFile(root_, "Dal dischetto", {disk.Path()});
  EXPECT_EQ(Folder("Dal dischetto").Names(),
            (Names{"INT_PPE.DAP", "SOLAIO_P_Rossi.VER", "UTENTE.DAG"}));
  floppy.Replace("INT_PPE.DAP", "un altro");
  const std::vector<std::pair<Names, const char*>> refused = {
      {{disk.Path()}, "più d'uno"},
      {{floppy.PathOf("lettera.pdf")}, "Non è un file"},
      {{floppy.PathOf("manca.DAP")}, "non esiste"},
      {{}, "nessun file"}};
  for (const auto& [paths, word] : refused)
    EXPECT_NE(ReasonOf([&, &dropped = paths] { LavoroDaFile(root_, "No", dropped); }).find(word),
              std::string::npos);
  EXPECT_FALSE(fs::exists(PathOf("No")));
}

TEST_F(JobsTest, HalfMadeFoldersOfKilledProgramsGo) {
  for (const char* name : {".orm2002-vecchia.tmp", ".orm2002-nuova.tmp", "Rossi"})
    Lay(std::string(name) + "/x", "");
  fs::last_write_time(PathOf(".orm2002-vecchia.tmp"),
                      fs::file_time_type::clock::now() - std::chrono::hours(1));
  RipulisciRadice(root_);
  EXPECT_FALSE(fs::exists(PathOf(".orm2002-vecchia.tmp")));
  EXPECT_TRUE(fs::exists(PathOf(".orm2002-nuova.tmp")) && fs::exists(PathOf("Rossi")));
}

}  // namespace
}  // namespace orm
