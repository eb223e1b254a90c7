#include "jobs/written_together.h"

#include <optional>

#include "runtime/failure.h"
#include "runtime/folder_lock.h"

namespace orm {
namespace {

// It has what it was to have, though the disk did not confirm it.
bool ETuttavia(const WorkFolder& folder, const FileInsieme& file) {
  try {
    return folder.Exists(file.nome) && folder.Read(file.nome) == file.contenuto;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

// Gives a file back what it held. What fails here too is in `storico`.
void Rimetti(const WorkFolder& folder, const std::string& nome,
             const std::optional<std::string>& prima) {
  try {
    if (prima)
      folder.Replace(nome, *prima);
    else
      folder.Remove(nome);
  } catch (const RuntimeFailure&) {
    return;
  }
}

}  // namespace

void ScriviInsieme(const WorkFolder& folder, const std::vector<FileInsieme>& files) {
  std::vector<std::optional<std::string>> prima(files.size());
  for (std::size_t i = 0; i < files.size(); ++i)
    if (folder.Exists(files[i].nome)) prima[i] = folder.Read(files[i].nome);
  std::optional<RuntimeFailure> nonConfermato;
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (prima[i] == files[i].contenuto) continue;
    try {
      folder.Replace(files[i].nome, files[i].contenuto);
    } catch (const RuntimeFailure& failure) {
      if (ETuttavia(folder, files[i])) {
        nonConfermato = failure;
        continue;
      }
      for (std::size_t j = 0; j < i; ++j)
        if (prima[j] != files[j].contenuto) Rimetti(folder, files[j].nome, prima[j]);
      throw;
    }
  }
  if (nonConfermato) throw *nonConfermato;
}

void ScriviNelLavoro(const std::string& cartella, const std::vector<FileInsieme>& files) {
  const WorkFolder folder(cartella);
  const FolderLock lock(folder);
  if (!lock.Held()) RifiutaInUso(cartella);
  ScriviInsieme(folder, files);
}

void RifiutaInUso(const std::string& cartella) {
  throw RuntimeFailure("Il lavoro \"" + cartella.substr(cartella.rfind('/') + 1) +
                       "\" è in uso: chiudere prima ORM2002 in quella cartella.");
}

}  // namespace orm
