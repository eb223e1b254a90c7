// A note that comes as JSON into a job.
#pragma once

#include <string>

#include "interchange/interchange.h"

namespace orm {

// Reads it from a file (a whole path). Whatever is wrong is a RuntimeFailure with its place.
NotaDaJson LeggiNotaArrivata(const std::string& percorso);

// Whether the job has header or data of that case and currency; whether its professional's data or
// criteria, which hold for all its notes, are others than those that come along.
bool HaLaParcella(const std::string& cartella, const NotaDiCaso& nota);
bool HaAltreImpostazioni(const std::string& cartella, const NotaDaJson& nota);

// Header and data go into the job, which must not be in use, and so do the professional's data and
// the criteria: where the job has its own, only with `impostazioni`. What is replaced stays in
// `storico`.
void PrendiNota(const std::string& cartella, const NotaDaJson& nota, bool impostazioni);

}  // namespace orm
