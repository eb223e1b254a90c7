#include "jobs/note_arrival.h"

#include <algorithm>
#include <filesystem>

#include "jobs/job_commands.h"
#include "jobs/written_together.h"

namespace orm {

NotaDaJson LeggiNotaArrivata(const std::string& percorso) {
  const std::filesystem::path intero(percorso);
  const std::string nome = intero.filename().string();
  return LeggiNotaDaJson(nome, WorkFolder(intero.parent_path().string()).Read(nome));
}

bool HaLaParcella(const std::string& cartella, const NotaDiCaso& nota) {
  ParcellaDelLavoro parcella;
  parcella.file = NomiDiCaso(nota.codice, nota.lire);
  return HaLaParcella(cartella, parcella);
}

bool HaAltreImpostazioni(const std::string& cartella, const NotaDaJson& nota) {
  const WorkFolder folder(cartella);
  return std::ranges::any_of(nota.files, [&folder](const FileDaJson& file) {
    return !file.dellaNota && folder.Exists(file.nome) && folder.Read(file.nome) != file.bytes;
  });
}

void PrendiNota(const std::string& cartella, const NotaDaJson& nota, bool impostazioni) {
  const WorkFolder folder(cartella);
  std::vector<FileInsieme> files;
  for (const FileDaJson& file : nota.files)
    if (file.dellaNota || impostazioni || !folder.Exists(file.nome))
      files.push_back({file.nome, file.bytes});
  ScriviNelLavoro(cartella, files);
}

}  // namespace orm
