// The fields of a note in the words of the forms.
#pragma once

#include <string>
#include <string_view>

#include "tariff/files/note_fields.h"

namespace orm {

// "Scala" of a survey of lands, whose scales are not those of buildings.
inline constexpr const char* kScalaTerreno = "ScalaTerreno";

// "Importo dei lavori di progetto" of "ImportoProgetto"; a field without words of its own has its
// name, with blanks: "Importo progetto".
std::string ParoleDelCampo(std::string_view nome);
bool HaParole(std::string_view nome);

// False for what the files have for themselves: counts, and what repeats another field.
bool SiMostra(const CampoLetto& campo);

// The value as forms show it: "SI", "L. 1.000.000", "D.M. 11-giugno-1987".
std::string ValoreInParole(const CampoLetto& campo, bool lire);

}  // namespace orm
