// The run state: what a command leaves for the dialogs and steps that it calls. They get it as an
// argument, nobody keeps it in globals; a calculation gets what it needs of it in its note.
#pragma once

#include <cstddef>
#include <string>

#include "dialogs/player.h"
#include "runtime/folder.h"
#include "runtime/run_memory.h"
#include "tariff/closing_values.h"
#include "tariff/criteria.h"

namespace orm {

// The programs outside, kept in EDITOR.PER.
struct Editors {
  std::string EditorTesti, EditorConfigurazione, LettorePdf;
};

struct RunState {
  RunState(Player& runPlayer, WorkFolder runFolder)
      : player(runPlayer), folder(std::move(runFolder)) {}

  Player& player;
  WorkFolder folder;

  std::string CasoDiParcella;  // three letters, empty when no case is at work
  bool ModoLire = false;       // Lire or Euro: the currency of every amount of the note
  std::string FileInt, FileInp, FileDatiAcconti;
  Chiusura chiusura;
  // The input at work: whether its note is a new one, and how many forms the person had confirmed
  // when the forms of the case began.
  struct {
    bool nuova = false;
    std::size_t conferme = 0;
  } input;
  Criteri criteri;
  Editors editors;

  // Dialogs that keep their last choices, counters of what was printed.
  RunMemory memoria;
};

}  // namespace orm
