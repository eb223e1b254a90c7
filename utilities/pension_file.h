// REDDITI.PER: the incomes of the pension dialog.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/folder.h"
#include "utilities/pension.h"

namespace orm {

inline constexpr const char* kFileRedditi = "REDDITI.PER";

// The first line is kept as it was read; nothing here uses it.
struct TestataRedditi {
  std::string primaData, secondaData, terzo;
  std::int16_t numero = 0;
};

struct FileRedditi {
  TestataRedditi testata;
  RedditiAnnui redditi{};
};

// What start-up writes where there is no file.
FileRedditi RedditiIniziali();

// One income a line up to the end of the file: rows that are missing are 0, more than 17 are a
// RuntimeFailure.
FileRedditi LeggiRedditi(const WorkFolder& folder);
void ScriviRedditi(const WorkFolder& folder, FileRedditi dati);

}  // namespace orm
