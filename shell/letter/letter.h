// The letter with which a fee note goes to the president of the Order for its opinion.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "runtime/data_file.h"
#include "shell/state/run_state.h"

namespace orm {

inline constexpr const char* kFileLettera = "LETTERA.DAG";
inline constexpr const char* kFileLetteraStampata = "OUT_LET.DOC";

// The fee notes that a letter can go with, by the index of TipoLettera. The code finds the header
// file of the note.
struct TipoParcellaLettera {
  const char* didascalia;
  const char* codice;
};
inline constexpr std::array<TipoParcellaLettera, 15> kTipiLettera{{
    {"AGGIORNAMENTO PREZZI", "AGP"},
    {"COLLAUDO AMMINISTRATIVO", "COA"},
    {"COLLAUDO STATICO vers. 1", "CS1"},
    {"COLLAUDO STATICO vers. 2", "CS2"},
    {"INGEGNERE CAPO", "INC"},
    {"ESECUZIONE LAVORI PRIVATI", "PDL"},
    {"ESECUZIONE LAVORI D.M. 4-4-01", "ESL"},
    {"PRESTAZIONI GEOTECNICHE", "GEO"},
    {"SICUREZZA CANTIERI secondo C.N.I", "PSC"},  // no case writes INT_PSC.DAP: stays as it is
    {"SICUREZZA CANTIERI D.M. 4-4-01", "SC2"},
    {"PIANI PARTICELLARI DI ESPROPRIO", "PPE"},
    {"PERIZIE ESTIMATIVE", "PES"},
    {"STATI di CONSISTENZA", "STC"},
    {"RILIEVO di MANUFATTI", "RIM"},
    {"RILIEVI PLANO ALTIMETRICI", ""},  // and none writes INT_.DAP
}};

// LETTERA.DAG
struct DatiLettera {
  std::string OrdineDi;                    // province of the Order
  std::string RiferimentoParcella = "NO";  // "SI": refers to a fee note already settled
  std::string NumeroPrecedente, DataPrecedente;
  std::string StatoProfessionale = "Libero";  // "Docente", "Dipendente"
  std::int16_t TipoLettera = 0;
  std::string ValutaLettera = "LIRE";  // "EURO"
  std::string DocumentiAllegati;
};

template <class Archive>
void Campi(Archive& file, DatiLettera& dati) {
  file.Line(Field("OrdineDi", dati.OrdineDi));
  file.Line(Field("RiferimentoParcella", dati.RiferimentoParcella));
  file.Line(Field("NumeroPrecedente", dati.NumeroPrecedente));
  file.Line(Field("DataPrecedente", dati.DataPrecedente));
  file.Line(Field("StatoProfessionale", dati.StatoProfessionale));
  file.Line(Field("TipoLettera", dati.TipoLettera), Field("ValutaLettera", dati.ValutaLettera),
            Field("DocumentiAllegati", dati.DocumentiAllegati));
}

// An index that the table lacks is a RuntimeFailure.
DatiLettera LeggiLettera(const WorkFolder& folder);
void ScriviLettera(const WorkFolder& folder, const DatiLettera& dati);

// Writes OUT_LET.DOC from UTENTE.DAG, LETTERA.DAG and the header of the fee note. Without the
// header the person is told, and the file holds the heading of the letter alone.
void STAMPALETTERA(RunState& stato);

// The command of the menu: checks the two files, writes the letter, opens it in EditorTesti.
void VisualizzaLettera(RunState& stato);

}  // namespace orm
