// The files below a folder, read into memory and laid down as a new folder.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orm {

struct FileDiAlbero {
  std::string percorso;  // below the folder: "INP_PPE.DAP", "storico/INP_PPE.2026-11-21_185240.DAP"
  std::string contenuto;
  std::int64_t cambiato = 0;  // in nanoseconds since 1970; 0: now
};

inline constexpr std::string_view kNascosto = ".orm2002-";  // drafts, what killed programs leave

// A job of this size and more is none that the program makes.
inline constexpr std::size_t kByteDiAlberoMassimi = 256U << 20;
inline constexpr std::size_t kFileDiAlberoMassimi = 5000;

// All files below `cartella` but drafts, leftovers of killed programs and, where `senzaStorico`,
// the versions. Links to files are followed; a link to a folder, a pipe or too much of everything
// is a RuntimeFailure.
std::vector<FileDiAlbero> LeggiAlbero(const std::string& cartella, bool senzaStorico);

// Makes the folder `nome` in `radice` with those files: flushed, under a hidden name, which becomes
// `nome` at the very end. A name that is taken by then and every error are a RuntimeFailure;
// nothing is left then.
void CreaAlbero(const std::string& radice, const std::string& nome,
                const std::vector<FileDiAlbero>& files);

// Gives a file or folder another name unless that is taken; 0 or the error, EEXIST for a name
// taken.
int RinominaSeLibero(const std::string& da, const std::string& a);
// Flushes what has just got its name in `radice`; the failure says that it is there all the same.
void EsigiRegistrata(const std::string& radice, const std::string& nome);

// Removes hidden folders that a killed program has left half made.
void TogliAlberiIncompiuti(const std::string& radice);

}  // namespace orm
