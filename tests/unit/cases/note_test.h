// What the tests of notes begin with: a blank note, a working folder of its own, a run state in it.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "shell/state/run_state.h"
#include "tariff/files/user_files.h"
#include "tariff/parcella.h"
#include "tests/unit/fake_player.h"

namespace orm {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "orm-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

// A page written as a raw string: it begins behind the first line end, and '|' shows where each
// line ends.
inline std::string Page(std::string_view drawn) {
  std::string page;
  for (std::size_t i = 1; i < drawn.size(); ++i)
    if (drawn[i] != '|' || drawn[i + 1] != '\n') page += drawn[i];
  return page;
}

// A blank note in Lire, ready to be printed on.
class NoteTest : public testing::Test {
 protected:
  NoteTest() {
    nota.ModoLire = true;
    nota.utente.Nome = "Mario Rossi";
    nota.utente.Citta = "Cosenza";
    nota.utente.Ordine = "COSENZA";
    nota.intestazione = {"Comune di Rende", "Scuola media", "Delibera n. 12", ""};
    nota.oggi = {2002, 3, 15};
  }

  // A report without the carriage returns of its line ends.
  static std::string Report(const Parcella& stampata) {
    std::string text = stampata.uscita.Contents();
    std::erase(text, '\r');
    return text;
  }
  std::string Report() const { return Report(nota); }

  Parcella nota;
};

// The same with a folder and a run state in it.
class NoteInFolder : public NoteTest {
 protected:
  NoteInFolder() {
    ScriviDatiProfessionista(stato.folder, nota.utente);
    ScriviIntestazione(stato.folder, "INT.DAP", nota.intestazione);
    stato.FileInt = "INT.DAP";
    stato.FileInp = "INP.DAP";
    stato.ModoLire = true;
  }

  TemporaryFolder folder;
  FakePlayer player;
  RunState stato{player, WorkFolder(folder.Path())};
};

}  // namespace orm
