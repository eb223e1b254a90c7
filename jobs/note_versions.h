// The versions of a note: header and data together, as they stood before each save.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "jobs/job.h"
#include "runtime/dates.h"
#include "runtime/generations.h"

namespace orm {

struct VersioneParcella {
  // Until when the note was so, "2026-11-21_185240"; empty: as it is now.
  std::string quando;
  // What it has in `storico`; nothing: that file is still the present one.
  std::optional<Generazione> intestazione, dati;
  // Reckoned anew from the old data, with the criteria and tables of today; nothing where that
  // fails, with the reason in `motivo`.
  std::optional<Netto> netto;
  std::string motivo;

  bool Attuale() const { return quando.empty(); }
};

// "21/11/2026 18:52:40", or "Attuale".
std::string QuandoInParole(const VersioneParcella& versione);

// The newest first; the first is the present one, where the files are there. Neighbours that hold
// the same are one, and so are header and data of one input. Without net amounts: NettoDi is the
// slower part.
std::vector<VersioneParcella> VersioniDi(const std::string& cartella,
                                         const ParcellaDelLavoro& parcella);
// Fills in net amount or reason.
void CalcolaNetto(const std::string& cartella, const ParcellaDelLavoro& parcella,
                  VersioneParcella& versione);

// The place in the list of the version to offer first, the one before the last input; 0 where there
// is none but the present one.
std::size_t VersioneDaOffrire(const std::string& cartella, const ParcellaDelLavoro& parcella,
                              const std::vector<VersioneParcella>& versioni);

// A field that two versions have otherwise, in the words of the forms.
struct Differenza {
  std::string dove;         // "Lotto 2", "Lotto 2, perizia 1"; empty: of the whole note
  std::string campo;        // "Importo Progetto"
  std::string prima, dopo;  // as forms show it; "assente" where one has no such row
};

inline const std::string kAssente = "assente";

// In the order of the files. A version that cannot be read is a RuntimeFailure.
std::vector<Differenza> Confronta(const std::string& cartella, const ParcellaDelLavoro& parcella,
                                  const VersioneParcella& prima, const VersioneParcella& dopo);

// The note becomes as it was; as it is now becomes a version, so that this can be undone likewise.
// A job in use is refused. Header and data come back both or not at all.
void RiportaVersione(const std::string& cartella, const ParcellaDelLavoro& parcella,
                     const VersioneParcella& versione);

}  // namespace orm
