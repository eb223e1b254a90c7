// Reading and writing of the professional's data (UTENTE.DAG) and of the header of a fee note
// (INT_<case>.DAP).
#pragma once

#include <string>

#include "runtime/folder.h"
#include "tariff/user_data.h"

namespace orm {

inline constexpr const char* kFileUtente = "UTENTE.DAG";

DatiProfessionista LeggiDatiProfessionista(const WorkFolder& folder);
void ScriviDatiProfessionista(const WorkFolder& folder, DatiProfessionista dati);
// The file of a new installation: ten empty lines and one line with the four last fields. It reads
// like any other, because a line end only parts two fields.
void ScriviUtentePredefinito(const WorkFolder& folder);

Intestazione LeggiIntestazione(const WorkFolder& folder, const std::string& nomeFile);
void ScriviIntestazione(const WorkFolder& folder, const std::string& nomeFile, Intestazione dati);

}  // namespace orm
