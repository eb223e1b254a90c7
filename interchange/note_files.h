// The files of a note, each with its name in the JSON.
#pragma once

#include <string>
#include <vector>

#include "interchange/json_fields.h"
#include "tariff/files/note_fields.h"

namespace orm {

inline constexpr const char* kFormatoJson = "parcella ORM2002";
inline constexpr int kVersioneJson = 1;

struct FileDiNota {
  const char* chiave;  // "intestazione"
  std::string nome;    // "INT_PPE.DAP"
  CampiDelFile campi;
  FormaCampi forma = FormaCampi::Oggetto;
  bool sempre = false;  // the note does not go without it
};

// Header, professional's data, criteria, data of a known case.
std::vector<FileDiNota> FileDellaNota(const std::string& codice, bool lire);

// What a file holds when the program writes it: the texts of a user may differ in blanks, marks and
// line ends and say the same.
std::string ComeScrittoDaNoi(const FileDiNota& file, const std::string& bytes);

}  // namespace orm
