// A job: a folder with the notes of one commission, as its files tell it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "interchange/report_facts.h"
#include "runtime/dates.h"
#include "runtime/folder.h"
#include "tariff/files/case_files.h"

namespace orm {

struct ParcellaDelLavoro {
  std::string codice;  // "PPE"
  bool lire = false;
  std::string nome;  // of the case, in its menu's words: "PIANI PARTICELLARI DI ESPROPRIO"
  NomiFile file;
  bool intestazione = false, dati = false, relazione = false;  // is the file there
  bool vecchia = false;                                        // the report is older than the data
  std::string committente, oggetto;  // in one line; empty where the header is not there or damaged
  std::string danno;                 // why the header cannot be read; empty: it can
  // Of the last calculation. The day is the one that the report states, or else that of its file; a
  // report edited by hand may lack the line of the net amount.
  std::optional<Date> giorno;
  std::optional<Netto> netto;
};

// "Dati, relazione vecchia": what is there of a note, in words.
std::string CheCosaCE(const ParcellaDelLavoro& parcella);
// "€" or "£".
std::string ValutaDi(const ParcellaDelLavoro& parcella);

struct TestoDelLavoro {
  std::string file;         // OUT_SOLAI.DOC
  std::string descrizione;  // "Solaio in ferro", or the file's name
  std::int64_t cambiato = 0;
};

struct Lavoro {
  std::string nome, cartella;               // the folder with its whole path
  std::vector<ParcellaDelLavoro> parcelle;  // in the order of the menus, Lire before Euro
  std::vector<TestoDelLavoro> testi;        // reports that are no note, letter, memo, other texts
};

// Reads a job. A folder that cannot be listed is a RuntimeFailure; a file that cannot be read is
// told in `danno`, or leaves what it would tell empty.
Lavoro LeggiLavoro(const std::string& radice, const std::string& nome);

// True while a program works in the folder.
bool InUso(const std::string& cartella);

}  // namespace orm
