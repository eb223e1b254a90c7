// The input of static testing by the tables of 2001, which no menu reaches: one row for each lot of
// the revision, and no period asked.
#include <deque>
#include <functional>

#include "cases/cos/cos.h"
#include "dialogs/form.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

// Shows what the test expects, in its order.
class Mani : public FakePlayer {
 public:
  struct Passo {
    std::string form;
    std::vector<std::pair<std::string, std::string>> scritti;  // control and what is entered
    std::string pulsante;
  };
  void Present(Form& form) override {
    ASSERT_FALSE(passi.empty()) << form.Name();
    const Passo passo = passi.front();
    passi.pop_front();
    ASSERT_EQ(form.Name(), passo.form);
    for (const auto& [nome, testo] : passo.scritti) {
      Control* control = form.Find(nome);
      ASSERT_TRUE(control != nullptr && control->IsShown() && control->IsActive()) << nome;
      ASSERT_EQ(control->Enter(testo), "") << nome;
    }
    dynamic_cast<Button*>(form.Find(passo.pulsante))->Press();
    ASSERT_FALSE(form.IsOpen()) << form.Name();
  }
  std::deque<Passo> passi;
};

TEST(StaticTestingInput, TablesOf2001AskNoPeriod) {
  TemporaryFolder folder;
  Mani mani;
  RunState stato{mani, WorkFolder(folder.Path())};
  stato.folder.Replace("CS2.CFG", WorkFolder(ORM_SOURCE_DIR "/data").Read("CS2.CFG"));
  stato.CasoDiParcella = "CS2";
  stato.ModoLire = true;
  stato.FileInt = "INT_CS2.DAP";
  stato.FileInp = "INP_CS2.DAP";
  mani.passi = {
      {"frmGEN_Intestazione", {}, "Command1"},
      {"frmCOS_Dati", {{"ciImportoCS4", "20.000.000"}, {"ciImportoCS5", "30.000.000"}}, "Command1"},
      {"frmGEN_SiNo", {{"OptionSI", "on"}}, "Command1"},
      {"frmGEN_Classe", {{"comClasse", "#0"}, {"comCategoria", "#6"}}, "cmdCONFERMA"},
      {"frmGEN_UNOIMPORTI", {{"InterBox1", "6.000.000.000"}}, "cmdOK"},
      {"frmGEN_Classe", {{"comClasse", "#4"}}, "cmdCONFERMA"},
      {"frmGEN_UNOIMPORTI", {{"InterBox1", "50.000.000"}}, "cmdOK"},
      {"frmGEN_Classe", {}, "cmdFINE"},
      {"frmGEN_Acconti", {}, "OK"},
  };
  InputCos(stato);
  EXPECT_TRUE(mani.passi.empty());
  EXPECT_EQ(stato.folder.Read("INP_CS2.DAP"),
            "50000000\r\n0,0,0,20000000,30000000\r\n0,0,0,0,0\r\n\"SI\"\r\n2,2\r\n1,1\r\n1,2\r\n"
            "0\r\n0\r\n\"1\",\"g\",\"\",6000000000\r\n\"5\",\"\",\"\",50000000\r\n0,0,\"\",1\r\n");
}

}  // namespace
}  // namespace orm
