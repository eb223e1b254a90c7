// Random notes of all cases as files of a folder that has the tables which they look things up in.
#pragma once

#include "cases/fee_case.h"
#include "tariff/files/case_files.h"
#include "tariff/files/closing_line.h"
#include "tests/unit/cases/note_test.h"
#include "tests/unit/cases/random_notes.h"

namespace orm {

template <class Dati>
std::string Bytes(Dati dati, Chiusura chiusura) {
  DataWriter file;
  Campi(file, dati);
  CampiChiusura(file, chiusura);
  return file.Bytes();
}

// A case and the file of its random data.
struct Prova {
  const char* codice;
  std::string (*bytes)(CasoNote&);
};

inline const Prova kProve[] = {
    {"PPE", [](CasoNote& caso) { return Bytes(caso.Ppe(), {}); }},
    {"COA", [](CasoNote& caso) { return Bytes(caso.Coa(), {}); }},
    {"ESL", [](CasoNote& caso) { return Bytes(caso.Esl(), {}); }},
    {"PDL", [](CasoNote& caso) { return Bytes(caso.Pdl(), {}); }},
    {"STC", [](CasoNote& caso) { return Bytes(caso.Stc(), {}); }},
    {"AGP", [](CasoNote& caso) { return Bytes(caso.Agp(), {}); }},
    {"INC", [](CasoNote& caso) { return Bytes(caso.Inc(), {}); }},
    {"SUP", [](CasoNote& caso) { return Bytes(caso.Sup(), {}); }},
    {"PES", [](CasoNote& caso) { return Bytes(caso.Pes(), {}); }},
    {"RIM", [](CasoNote& caso) { return Bytes(caso.Rim(), {}); }},
    {"RPA", [](CasoNote& caso) { return Bytes(caso.Rpa(), {}); }},
    {"CS1", [](CasoNote& caso) { return Bytes(caso.Cos(true), {}); }},
    {"CS2", [](CasoNote& caso) { return Bytes(caso.Cos(false), {}); }},
    {"GEO", [](CasoNote& caso) { return Bytes(caso.Geo(), {}); }},
    {"SC1", [](CasoNote& caso) { return Bytes(caso.Sic(kVersioneSc1), {}); }},
    {"SC2", [](CasoNote& caso) { return Bytes(caso.Sic(kVersioneSc2), {}); }}};

class TutteLeNote : public NoteInFolder {
 protected:
  TutteLeNote() {
    for (const char* file : {"CAC.CFG", "CS1.CFG", "CS2.CFG", "GEO.CFG", "INC.CFG", "IND.CFG"})
      stato.folder.Replace(file, WorkFolder(ORM_SOURCE_DIR "/data").Read(file));
  }

  void Prepara(const char* codice, const std::string& bytes) {
    const NomiFile nomi = NomiDiCaso(codice, stato.ModoLire);
    stato.CasoDiParcella = codice;
    stato.FileInp = nomi.FileInp;
    stato.FileInt = nomi.FileInt;
    stato.folder.Replace(nomi.FileInp, bytes, Durability::Remakeable);
    stato.folder.Replace(nomi.FileInt, stato.folder.Read("INT.DAP"), Durability::Remakeable);
  }

  Parcella Calcola(const char* codice) { return FindFeeCase(codice)->calcolo(stato); }
};

}  // namespace orm
