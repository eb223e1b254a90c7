// The lines of a printed note that carry an amount.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tariff/parcella.h"

namespace orm {

struct RigaConImporto {
  std::size_t riga = 0;     // of the report, from 1
  std::string sezione;      // "SPECIFICA DEGLI IMPORTI"; empty above the first one
  std::string titolo;       // of the lot or fee that it belongs to, "1 - CLASSE/CATEGORIA    I/c"
  std::string voce;         // what stands before the amount, or in the line above when nothing does
  std::string descrizione;  // the line above, when it belongs to this one alone
  std::string importo;      // "-1234.50": as it is printed, without thousands points
  TipoImporto tipo = TipoImporto::Onorari;
  bool inEuro = false;
  const char* totale = nullptr;  // its name among the totals of the note
};

// The report by lines, without their ends; they live as long as the note.
std::vector<std::string_view> RigheDellaRelazione(const Parcella& nota);

std::vector<RigaConImporto> RigheConImporto(const Parcella& nota);

// "ITL" or "EUR".
inline const char* CodiceValuta(bool inEuro) { return inEuro ? "EUR" : "ITL"; }

}  // namespace orm
