// A working folder of its own, a run state in it and the files that every note needs.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "shell/state/run_state.h"
#include "tariff/user_data.h"
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

class NoteTest : public testing::Test {
 protected:
  NoteTest() {
    DatiProfessionista utente;
    utente.Nome = "Mario Rossi";
    utente.Citta = "Cosenza";
    utente.Ordine = "COSENZA";
    ScriviDatiProfessionista(stato.folder, utente);
    ScriviIntestazione(stato.folder, "INT.DAP",
                       {"Comune di Rende", "Scuola media", "Delibera n. 12", ""});
    stato.FileInt = "INT.DAP";
    stato.ModoLire = true;
  }

  // The report without the carriage returns of its line ends.
  std::string Report() const {
    std::string text = stato.NumFileUscita.Contents();
    std::erase(text, '\r');
    return text;
  }

  TemporaryFolder folder;
  FakePlayer player;
  RunState stato{player, WorkFolder(folder.Path())};
};

}  // namespace orm
