#include "shell/installed_files.h"

#include <array>
#include <filesystem>
#include <string>
#include <system_error>

#include "shell/shell_boxes.h"

namespace orm {
namespace {

// All of data/*.CFG, and the notes made of docs/notes.
constexpr std::array kFileInstallati = {"CAC.CFG", "CS1.CFG",     "CS2.CFG",
                                        "GEO.CFG", "INC.CFG",     "IND.CFG",
                                        "TUS.CFG", "BALCONI.PDF", "SOLAIATRALICCIO.PDF"};

}  // namespace

void DisponiFileInstallati(RunState& stato, const WorkFolder& installati) {
  std::error_code none;
  const bool installato = std::filesystem::is_directory(installati.Path(), none);
  std::string assenti;
  for (const char* nome : kFileInstallati) {
    if (stato.folder.Exists(nome)) continue;
    if (installato && installati.Exists(nome))
      stato.folder.Replace(nome, installati.Read(nome));
    else
      assenti += std::string(assenti.empty() ? "" : ", ") + nome;
  }
  if (!assenti.empty()) stato.player.Ask(AvvisoFileInstallatiAssenti(assenti));
}

}  // namespace orm
