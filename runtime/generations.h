// The generations of a file: what it held before each save, in the folder `storico` beside it.
//
// The copy of INP_PPE.DAP that was replaced on 21/11/2026 at 18:52:40 is
// storico/INP_PPE.2026-11-21_185240.DAP, an ordinary file with the contents that it had.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/folder.h"

namespace orm {

struct Generazione {
  std::string nome;    // of the file that it was: INP_PPE.DAP
  std::string quando;  // when it was replaced, on the clock of the place: 2026-11-21_185240
  std::string file;    // its name in `storico`
  std::size_t bytes = 0;
};

inline constexpr const char* kStorico = "storico";

// Data, settings and reports have generations; other files (copies for others) have none.
bool HaGenerazioni(std::string_view nome);

// The generations of one file, or with an empty name of all files of the folder; the newest first.
// A folder without `storico` has none.
std::vector<Generazione> Generazioni(const WorkFolder& folder, std::string_view nome = {});

// The contents of a generation. One that is gone or cannot be read is a RuntimeFailure.
std::string LeggiGenerazione(const WorkFolder& folder, const Generazione& generazione);

// Gives the file the contents of that generation; those that it has now become one.
void RiportaGenerazione(const WorkFolder& folder, const Generazione& generazione);

// Keeps `contents`, which the file `nome` (at `path`) is about to lose, unless its generations hold
// them already, and thins: at most 20 of a name, about 8 MB in all; each file keeps its last one,
// and the first of each day stays longest, how the file was before that day's work. Returns why it
// could not be done, or nothing.
std::optional<std::string> ConservaGenerazione(const WorkFolder& folder, std::string_view nome,
                                               const std::string& path, std::string_view contents,
                                               Durability durability);

}  // namespace orm
