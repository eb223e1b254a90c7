// What has been typed and not saved outlives the program, however it ends.
#include <QPlainTextEdit>
#include <QSessionManager>
#include <QTemporaryDir>
#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "desktop/last_words.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/window.h"
#include "shell/shell.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

namespace fs = std::filesystem;

class Unsaved : public testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_STATE_HOME", state_.path().toUtf8());
    WorkFolder(folder_.path().toStdString()).Replace("A.TXT", "prima\r\n");
  }
  std::string PathOf(const char* name) const { return folder_.filePath(name).toStdString(); }
  int Drafts(const QTemporaryDir& place) const {
    int count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(place.path().toStdString()))
      count += entry.path().string().ends_with(".bozza");
    return count;
  }
  // In a process of its own, with the text typed and not saved.
  [[noreturn]] void TypeAndEnd(void (*end)()) const {
    ViewerWindow window;
    window.Open(PathOf("A.TXT"));
    QTest::keyClicks(&window.Page(), "scritto ");
    const LastWords lastWords([&window] { window.KeepUnsaved(); });
    end();
    QTest::qWait(60'000);
    std::_Exit(1);
  }
  void ComesBack() {
    Person person("Riprendi il testo");
    ViewerWindow window;
    window.Open(PathOf("A.TXT"));
    EXPECT_EQ(window.Page().Text(), "scritto prima\n");
    EXPECT_TRUE(window.Save());
    window.KeepUnsaved();
    EXPECT_EQ(Drafts(folder_) + Drafts(state_), 0);
    WorkFolder(folder_.path().toStdString()).Replace("A.TXT", "prima\r\n");
  }
  QTemporaryDir folder_, state_;
};

TEST_F(Unsaved, OutlivesEveryEnd) {
  EXPECT_EXIT(TypeAndEnd([] { std::raise(SIGTERM); }), testing::KilledBySignal(SIGTERM), "");
  ComesBack();
  EXPECT_EXIT(TypeAndEnd([] { std::raise(SIGHUP); }), testing::KilledBySignal(SIGHUP), "");
  ComesBack();
  // The end of the session asks, and may kill at once. No session manager is needed to be asked.
  EXPECT_EXIT(TypeAndEnd([] {
                alignas(QSessionManager) std::array<char, sizeof(QSessionManager)> nobody{};
                emit qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nobody));
                std::raise(SIGKILL);
              }),
              testing::KilledBySignal(SIGKILL), "");
  ComesBack();
  // As Qt leaves when the screen breaks off.
  EXPECT_EXIT(TypeAndEnd([] { std::exit(1); }), testing::ExitedWithCode(1), "");
  ComesBack();
  EXPECT_EXIT(TypeAndEnd([] {
                QTest::qWait(LastWords::kEveryMilliseconds + 500);
                std::raise(SIGKILL);
              }),
              testing::KilledBySignal(SIGKILL), "");
  // What was brought back and not saved comes back from the next crash, be it at once.
  EXPECT_EXIT(
      {
        Person person("Riprendi il testo");
        ViewerWindow window;
        window.Open(PathOf("A.TXT"));
        std::raise(window.Page().Text() == "scritto prima\n" ? SIGKILL : SIGABRT);
      },
      testing::KilledBySignal(SIGKILL), "");
  ComesBack();
}

TEST_F(Unsaved, LiesWithTheUserWhereTheFolderIsGone) {
  {
    ViewerWindow window;
    window.Open(PathOf("A.TXT"));
    QTest::keyClicks(&window.Page(), "scritto ");
    fs::rename(folder_.path().toStdString(), PathOf("").substr(0, PathOf("").size() - 1) + "-via");
    window.KeepUnsaved();
    EXPECT_EQ(Drafts(state_), 1);
    fs::rename(PathOf("").substr(0, PathOf("").size() - 1) + "-via", folder_.path().toStdString());
  }
  ComesBack();
}

// The forms of the program and the memo: offered at the next start in the same folder.
TEST_F(Unsaved, FormsAndMemoAreOfferedAtTheNextStart) {
  const WorkFolder folder(folder_.path().toStdString());
  for (const char* command : {"PERS_UTENTE", "INFORMA_Note"}) {
    const auto typeAndEnd = [&] {
      TestPlayer player;
      Shell shell(player, folder);
      shell.Load();
      const LastWords lastWords([&shell] { shell.Bozze().Keep(); });
      player.onForm = [](FormDialog& dialog) {
        QTest::keyClicks(dialog.focusWidget(), "Ada");
        std::raise(SIGTERM);
        QTest::qWait(60'000);
      };
      shell.Choose(command);
    };
    EXPECT_EXIT(typeAndEnd(), testing::KilledBySignal(SIGTERM), "") << command;
    // A start that crashes before anything is taken up again leaves it all.
    EXPECT_EXIT(
        {
          TestPlayer player;
          Shell shell(player, folder);
          shell.Load();
          shell.Bozze().Keep();
          std::raise(SIGKILL);
        },
        testing::KilledBySignal(SIGKILL), "");
    TestPlayer player;
    QString told;
    player.onMessage = [&](QMessageBox& box) { told = box.text(); };
    Shell shell(player, folder);
    shell.Load();
    EXPECT_TRUE(told.contains("RIPRENDI I DATI")) << command;
    player.onForm = [&](FormDialog& dialog) {
      QWidget* resume = dialog.ViewOf(*dialog.Model().ResumeButton()).Field();
      EXPECT_TRUE(resume->isVisible()) << command;
      QTest::mouseClick(resume, Qt::LeftButton);
      std::string shown;
      for (Control* control : dialog.Model().Controls()) shown += control->ShownText();
      EXPECT_NE(shown.find("Ada"), std::string::npos) << command << shown;
    };
    shell.Choose(command);
    shell.Bozze().Forget();
    EXPECT_EQ(Drafts(folder_), 0);
  }
}

TEST_F(Unsaved, AnOpenWindowKeepsItsOwnAndWhatIsNotWantedGoes) {
  EXPECT_EXIT(TypeAndEnd([] { std::raise(SIGTERM); }), testing::KilledBySignal(SIGTERM), "");
  ViewerWindow one, two;
  {
    Person person("Riprendi il testo");
    one.Open(PathOf("A.TXT"));
    two.Open(PathOf("A.TXT"));  // is asked nothing: the text has gone to the other
  }
  EXPECT_EQ(two.Page().Text(), "prima\n");
  one.KeepUnsaved();
  QTest::keyClicks(&two.Page(), "due ");
  two.KeepUnsaved();
  EXPECT_EQ(Drafts(folder_), 2);
  Person person("Non salvare");
  EXPECT_TRUE(one.close() && two.close());
  EXPECT_EQ(Drafts(folder_), 0);
}

// Of a folder that somebody sent: told, and neither shown nor lost.
TEST_F(Unsaved, WhatNoWindowCanShowStays) {
  const std::string draft = PathOf(".orm2002-A.TXT.bozza"), endless(7'000'000, '\n');
  std::ofstream(draft) << endless;
  Person person("Chiudi");
  ViewerWindow window;
  window.Open(PathOf("A.TXT"));
  EXPECT_TRUE(person.Said().contains("troppo grande per riprenderlo"))
      << person.Said().toStdString();
  EXPECT_EQ(window.Page().Text(), "prima\n");
  QTest::keyClicks(&window.Page(), "due ");
  window.KeepUnsaved();
  EXPECT_EQ(Drafts(folder_), 2);
  EXPECT_EQ(fs::file_size(draft), endless.size());
  window.Page().document()->setModified(false);
}

}  // namespace
}  // namespace orm
