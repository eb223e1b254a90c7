// What the tests of notes begin with: a blank note, a working folder of its own, a run state in it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "shell/state/run_state.h"
#include "tariff/files/user_files.h"
#include "tariff/parcella.h"
#include "tests/temporary_folder.h"
#include "tests/unit/fake_player.h"

namespace orm {

// A page written as a raw string: it begins behind the first line end, and '|' shows where each
// line ends.
inline std::string Page(std::string_view drawn) {
  std::string page;
  for (std::size_t i = 1; i < drawn.size(); ++i)
    if (drawn[i] != '|' || drawn[i + 1] != '\n') page += drawn[i];
  return page;
}

// The amount at the end of a printed line, in hundredths.
inline long long Centesimi(const std::string& riga) {
  long long centesimi = 0;
  int decimali = -1;
  const std::string importo = riga.substr(riga.find_last_of(' ') + 1);
  for (const char c : importo) {
    if (c == ',') decimali = 0;
    if (c < '0' || c > '9') continue;
    centesimi = centesimi * 10 + (c - '0');
    if (decimali >= 0) ++decimali;
  }
  for (decimali = std::max(decimali, 0); decimali < 2; ++decimali) centesimi *= 10;
  return importo.find('-') == std::string::npos ? centesimi : -centesimi;
}

// The same of the line of a report that begins so; 0 without such a line.
inline long long Centesimi(const std::string& report, const std::string& inizio) {
  const auto at = report.find("\n" + inizio);
  if (at == std::string::npos) return 0;
  return Centesimi(report.substr(at + 1, report.find('\n', at + 1) - at - 1));
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
