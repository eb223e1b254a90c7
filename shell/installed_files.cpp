#include "shell/installed_files.h"

#include <array>
#include <filesystem>
#include <string>
#include <system_error>

#include "runtime/file_calls.h"
#include "shell/shell_boxes.h"

namespace orm {
namespace {

// All of data/*.CFG, and the notes made of docs/notes.
constexpr std::array kFileInstallati = {"CAC.CFG", "CS1.CFG",     "CS2.CFG",
                                        "GEO.CFG", "INC.CFG",     "IND.CFG",
                                        "TUS.CFG", "BALCONI.PDF", "SOLAIATRALICCIO.PDF"};

}  // namespace

std::span<const char* const> NomiFileInstallati() { return kFileInstallati; }

void DisponiFileInstallati(RunState& stato, const WorkFolder& installati) {
  std::error_code error;
  const bool installato = std::filesystem::is_directory(installati.Path(), error);
  if (error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory)
    FailAt(installati.Path(), error.value());
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
