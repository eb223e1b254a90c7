// A save that fails leaves its window open with what was typed.
#include <gtest/gtest.h>

#include "runtime/failure.h"
#include "shell/letter/form_letter.h"
#include "shell/memo/form_memo.h"
#include "tariff/forms/form_advances.h"
#include "tariff/forms/input_step.h"
#include "tests/unit/fake_player.h"
#include "utilities/form_pension.h"

namespace orm {
namespace {

class FailedSaves : public ::testing::Test {
 protected:
  void ExpectFailureBox() {
    ASSERT_FALSE(player.messages.empty());
    EXPECT_EQ(player.messages[0].title, "ERRORE DI ESECUZIONE");
  }
  FakePlayer player;
  RunState run{player, WorkFolder("/proc")};
};

// The chain of a note writes its data before the agreements are asked: a failure costs nothing of
// it.
TEST_F(FailedSaves, DataOfANote) {
  struct Person : FakePlayer {
    void Present(Form& form) override {
      shown = form.Name();
      static_cast<FrmGenAcconti&>(form).OK.Press();
      open = form.IsOpen();
    }
    std::string shown;
    bool open = false;
  } person;
  RunState note{person, WorkFolder("/proc")};
  note.FileInp = "INP_PPE.DAP";
  ChiediAcconti(note, DataWriter(), "");
  EXPECT_EQ(person.shown, "frmGEN_Acconti");
  EXPECT_TRUE(person.open);
  EXPECT_EQ(person.messages.size(), 2U);
}

TEST_F(FailedSaves, Memo) {
  FrmGenVisualizzaRtf form(run);
  form.NomeFile = kFileMemo;
  form.Open();
  form.RichTextBox1.Enter("Telefonare all'Ordine");
  form.OnWindowClose();
  ExpectFailureBox();
  EXPECT_TRUE(form.IsOpen());
  player.answer = Answer::Cancel;
  form.OnWindowClose();
  EXPECT_TRUE(form.IsOpen());
  player.answer = Answer::No;
  form.OnWindowClose();
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(player.messages.size(), 3U);
}

TEST_F(FailedSaves, Letter) {
  FrmGenLettera form(run);
  form.Open();
  form.ctOrdine.SetText("COSENZA");
  form.cmdOK.Press();
  ExpectFailureBox();
  EXPECT_TRUE(form.IsOpen());
  EXPECT_EQ(form.ctOrdine.Text(), "COSENZA");
}

TEST_F(FailedSaves, Pension) {
  FrmInaInPensione form(run);
  form.Open();
  form.ciRedditi[0]->SetValue(20000000);
  form.cmdARCHIVIA.Press();
  ExpectFailureBox();
  EXPECT_TRUE(form.IsOpen() && form.Option1.Value());
  EXPECT_EQ(form.ciRedditi[0]->Value(), 20000000);
}

}  // namespace
}  // namespace orm
