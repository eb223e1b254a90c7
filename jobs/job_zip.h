// A job as a ZIP archive, and back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "jobs/file_tree.h"

namespace orm {

// Writes the whole job, versions and subfolders included, to the file `zip` (a whole path), which
// is replaced whole or stays.
void ArchiviaLavoro(const std::string& cartella, const std::string& zip);

// The job that the archive holds becomes one below the root, under `nome` (see DifettoDelNome).
void RiprendiLavoro(const std::string& zip, const std::string& radice, const std::string& nome);
// How it calls itself: by the folder in it, or else by its file's name.
std::string NomeNelloZip(const std::string& zip);

// The bytes of an archive with the files below the folder `nome`, and the other way round. An
// archive that is damaged, encrypted, too large unpacked, or that holds paths out of its folder,
// links, or a name twice is a RuntimeFailure that says so.
std::string FaiZip(const std::string& nome, const std::vector<FileDiAlbero>& files);
struct ContenutoZip {
  std::string nome;  // of the one folder that holds all files; empty where there is none
  std::vector<FileDiAlbero> files;
};
ContenutoZip LeggiZip(std::string_view bytes);

}  // namespace orm
