// Files of one folder that are replaced together.
#pragma once

#include <string>
#include <vector>

#include "runtime/folder.h"

namespace orm {

struct FileInsieme {
  std::string nome, contenuto;
};

// Replaces them one by one; when one cannot be, those before it get back what they held, and the
// RuntimeFailure goes on. A program killed between two leaves each file whole, the old or the new;
// what was replaced is in `storico`.
void ScriviInsieme(const WorkFolder& folder, const std::vector<FileInsieme>& files);

// The same in a job, held while it is done. One that is in use is a RuntimeFailure.
void ScriviNelLavoro(const std::string& cartella, const std::vector<FileInsieme>& files);

[[noreturn]] void RifiutaInUso(const std::string& cartella);

}  // namespace orm
