#include "jobs/written_together.h"

#include <optional>

#include "runtime/failure.h"
#include "runtime/folder_lock.h"

namespace orm {
namespace {

// Gives a file back what it held. What fails here too is kept in `storico`.
void Rimetti(const WorkFolder& folder, const FileInsieme& nuovo,
             const std::optional<std::string>& prima) {
  try {
    if (!folder.Exists(nuovo.nome) || folder.Read(nuovo.nome) != nuovo.contenuto) return;
    if (prima)
      folder.Replace(nuovo.nome, *prima);
    else
      folder.Remove(nuovo.nome);
  } catch (const RuntimeFailure&) {
    return;
  }
}

}  // namespace

void ScriviInsieme(const WorkFolder& folder, const std::vector<FileInsieme>& files) {
  std::vector<std::optional<std::string>> prima(files.size());
  for (std::size_t i = 0; i < files.size(); ++i)
    if (folder.Exists(files[i].nome)) prima[i] = folder.Read(files[i].nome);
  std::size_t scritti = 0;
  try {
    for (; scritti < files.size(); ++scritti)
      if (prima[scritti] != files[scritti].contenuto)
        folder.Replace(files[scritti].nome, files[scritti].contenuto);
  } catch (const RuntimeFailure&) {
    // The last one too: it may be in place without the disk's word for it.
    for (std::size_t i = 0; i <= scritti; ++i) Rimetti(folder, files[i], prima[i]);
    throw;
  }
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
