// What is done to whole jobs. Each command is done whole or not at all; what goes wrong is a
// RuntimeFailure with its Italian sentence, and nothing is lost. A new folder is filled under a
// hidden name and takes its own at the end.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jobs/job.h"

namespace orm {

// Why a job cannot be called so (empty, characters that other systems refuse, too long, there
// already); nothing when it can. Every command that takes a new name refuses with these words.
std::optional<std::string> DifettoDelNome(const std::string& radice, std::string_view nome);
// `nome`, or the first of "nome (2)", "nome (3)" ... that no job has.
std::string NomeLibero(const std::string& radice, const std::string& nome);

// A new job, in a root that is made where it is not there. Professional's data, criteria, programs
// and configuration files are those of the job `modello`, or, with an empty name, of the newest job
// that has them; configuration files and technical notes that it lacks come from `installati`.
void NuovoLavoro(const std::string& radice, const std::string& nome, const std::string& modello,
                 const WorkFolder& installati);

// The files of the job under another name, with their times; the versions that it keeps stay
// behind.
void DuplicaLavoro(const std::string& radice, const std::string& nome, const std::string& nuovo);

// A job that is in use is refused, and so is a new name that is taken.
void RinominaLavoro(const std::string& radice, const std::string& nome, const std::string& nuovo);

// Refuses a job that is in use: to be called before it goes to the trash.
void EsigiNonInUso(const std::string& cartella);

// Header and data of a note go to another job, which must not be in use; the report does not. Where
// that job has one of the two files already it is refused unless `sostituisci`; what is replaced
// stays among the versions of the note.
bool HaLaParcella(const std::string& cartella, const ParcellaDelLavoro& parcella);
void CopiaParcella(const std::string& da, const ParcellaDelLavoro& parcella, const std::string& a,
                   bool sostituisci);

// Files of the program's data (whole paths) become a new job: data, settings, configuration,
// reports, memo, kept verifications. One that is none of these is refused before anything is made;
// a folder stands for the files in it that are.
bool EDelProgramma(std::string_view nomeFile);
void LavoroDaFile(const std::string& radice, const std::string& nome,
                  const std::vector<std::string>& percorsi);

// Clears what killed programs have left in the root; to be called once at the start.
void RipulisciRadice(const std::string& radice);

}  // namespace orm
