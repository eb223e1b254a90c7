// orm2002-calcolo: calculates fee notes without a screen, and takes them to other programs and
// back.
//
// Exit codes: 0 done; 1 a message of the program ended the command; 2 a run-time failure; 3 wrong
// usage.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "batch/batch_player.h"
#include "cases/fee_case.h"
#include "interchange/interchange.h"
#include "runtime/folder_lock.h"
#include "runtime/text.h"
#include "shell/dispatch.h"
#include "shell/help/program_texts.h"
#include "shell/personal/settings.h"
#include "shell/shell_boxes.h"
#include "tariff/files/case_files.h"

namespace {

constexpr int kDone = 0, kEndedByMessage = 1, kRuntimeFailure = 2, kWrongUsage = 3;
constexpr int kNone = -1;  // there was nothing to do

constexpr const char* kProgram = "orm2002-calcolo";

// False when nobody takes it all.
bool Tell(std::string_view text, int descriptor) {
  while (!text.empty()) {
    const ssize_t n = ::write(descriptor, text.data(), text.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

struct Arguments {
  std::string codice;
  bool euro = false;
  bool tutti = false;
  bool json = false;
  std::string csv;     // "", "italiano" or "semplice"
  std::string daJson;  // a file
  std::string spiega;  // "", "testo" or "json"
  std::string cartella = ".";
  orm::Date data = orm::SystemDate();
};

// Reads the command line into `a`. Returns the exit code when there is nothing more to do.
std::optional<int> Read(int count, char** words, Arguments& a) {
  if (orm::AnswersForItself(kProgram, count, words)) return kDone;
  CLI::App app;
  app.set_help_flag();
  std::string data;
  auto* codice = app.add_option("CODICE", a.codice);
  auto* euro = app.add_flag("--euro", a.euro);
  auto* tutti = app.add_flag("--tutti", a.tutti)->excludes(codice)->excludes(euro);
  auto* json = app.add_flag("--json", a.json)->excludes(tutti);
  auto* csv = app.add_flag("--csv{italiano}", a.csv)->excludes(tutti)->excludes(json);
  auto* daJson = app.add_option("--da-json", a.daJson);
  for (auto* other : {codice, euro, tutti, json, csv}) daJson->excludes(other);
  app.add_flag("--spiega{testo}", a.spiega)
      ->excludes(tutti)
      ->excludes(json)
      ->excludes(csv)
      ->excludes(daJson);
  app.add_option("--cartella", a.cartella);
  app.add_option("--data", data);
  std::string objection;
  try {
    app.parse(count, words);
  } catch (const CLI::ParseError&) {
    objection = "Argomenti errati.";
  }
  a.codice = orm::Capitals(a.codice);
  if (objection.empty() && codice->empty() && tutti->empty() && daJson->empty())
    objection = "Occorre un codice, oppure --tutti o --da-json.";
  if (!a.csv.empty() && a.csv != "italiano" && a.csv != "semplice")
    objection = "Il CSV è --csv oppure --csv=semplice.";
  if (!a.spiega.empty() && a.spiega != "testo" && a.spiega != "json")
    objection = "Le spiegazioni sono --spiega oppure --spiega=json.";
  if (!a.codice.empty() && orm::FindFeeCase(a.codice) == nullptr)
    objection = "Codice sconosciuto: " + a.codice;
  if (!data.empty()) {
    const auto date = orm::ParseDate(data);
    if (!date) objection = "La data si scrive GG/MM/AAAA.";
    a.data = date.value_or(a.data);
  }
  if (objection.empty()) return std::nullopt;
  Tell(objection + "\n" + std::string(orm::ProgramUsage(kProgram)), STDERR_FILENO);
  return kWrongUsage;
}

// Runs a step; a failure becomes its message and its code.
template <class Step>
int Guard(orm::BatchPlayer& player, Step&& step) {
  try {
    return step();
  } catch (const orm::RuntimeFailure& failure) {
    player.Ask(orm::FailureBox(failure));
  } catch (const std::exception& error) {
    player.Ask(
        orm::FailureBox(orm::RuntimeFailure(std::string("Errore interno: ") + error.what())));
  }
  return kRuntimeFailure;
}

// What a save replaced and could not keep.
void TellWarning(orm::BatchPlayer& player, const orm::WorkFolder& folder) {
  if (const std::string why = folder.TakeWarning(); !why.empty())
    player.Ask(orm::AvvisoVersioneNonConservata(why));
}

int Calculate(orm::RunState& stato, orm::BatchPlayer& player, const std::string& codice, bool lire,
              orm::Spiegazioni* spiegazioni = nullptr) {
  stato.CasoDiParcella = codice;
  stato.ModoLire = lire;
  return Guard(player, [&] {
    orm::LeggiCriteri(stato);
    const bool done = orm::CalcoloParcella(stato, spiegazioni);
    TellWarning(player, stato.folder);
    return done ? kDone : kEndedByMessage;
  });
}

// The note that was calculated, as other programs read it.
int Hand(const Arguments& a, orm::BatchPlayer& player, const orm::WorkFolder& folder) {
  return Guard(player, [&] {
    const auto marchi = a.csv == "semplice" ? orm::MarchiCsv::Semplici : orm::MarchiCsv::Italiani;
    const std::string text = a.json ? orm::ParcellaInJson(folder, a.codice, !a.euro, a.data)
                                    : orm::ParcellaInCsv(folder, a.codice, !a.euro, marchi, a.data);
    if (!Tell(text, STDOUT_FILENO))
      throw orm::RuntimeFailure("Non si può scrivere tutto ciò che è chiesto.");
    return kDone;
  });
}

// The files of a note out of its JSON; their names come out.
int TakeBack(const Arguments& a, orm::BatchPlayer& player, const orm::WorkFolder& folder) {
  return Guard(player, [&] {
    const std::filesystem::path path(a.daJson);
    const orm::WorkFolder where(path.has_parent_path() ? path.parent_path().string() : ".");
    const std::string name = path.filename().string();
    for (const std::string& file : orm::ScriviDaJson(folder, name, where.Read(name)))
      Tell(file + "\n", STDOUT_FILENO);
    TellWarning(player, folder);
    return kDone;
  });
}

// A note and how its figures came about.
int Explain(const Arguments& a, orm::RunState& stato, orm::BatchPlayer& player) {
  orm::Spiegazioni spiegazioni;
  const int outcome = Calculate(stato, player, a.codice, !a.euro, &spiegazioni);
  if (outcome == kDone)
    Tell(a.spiega == "json" ? orm::JsonSpiegazioni(spiegazioni.Righe())
                            : orm::TestoSpiegazioni(spiegazioni.Righe()),
         STDOUT_FILENO);
  return outcome;
}

// False for a folder that is not there, is none or is closed to the user. A disk that fails is told
// by the step that meets it, with its reason.
bool IsOpenFolder(const std::string& folder) {
  if (::access(folder.c_str(), R_OK | X_OK) != 0)
    return errno == EIO || errno == ENOSPC || errno == EROFS;
  std::error_code error;
  return std::filesystem::is_directory(folder, error) || error;
}

// Every note of the folder that has its two data files.
int CalculateAll(orm::RunState& stato, orm::BatchPlayer& player) {
  int worst = kDone;
  for (const orm::FeeCase& fee : orm::FeeCases())
    for (const bool lire : {true, false}) {
      const orm::NomiFile nomi = orm::NomiDiCaso(fee.code, lire);
      const int outcome = Guard(player, [&] {
        if (!stato.folder.Exists(nomi.FileInt) || !stato.folder.Exists(nomi.FileInp)) return kNone;
        return Calculate(stato, player, fee.code, lire);
      });
      if (outcome == kDone) Tell(nomi.Report + "\n", STDOUT_FILENO);
      worst = std::max(worst, outcome);
    }
  return worst;
}

}  // namespace

int main(int count, char** words) {
  orm::TellFileSizeErrors();
  Arguments arguments;
  if (const auto outcome = Read(count, words, arguments)) return *outcome;
  orm::BatchPlayer player(arguments.data);
  orm::RunState stato(player, orm::WorkFolder(arguments.cartella));
  if (!IsOpenFolder(arguments.cartella)) {
    Tell("LA CARTELLA DI LAVORO NON ESISTE O NON SI PUÒ APRIRE : " + arguments.cartella + "\n",
         STDERR_FILENO);
    return kEndedByMessage;
  }
  const orm::FolderLock lock(stato.folder);
  if (!lock.Held()) {
    Tell("ORM2002 È GIÀ IN USO IN QUESTA CARTELLA DI LAVORO.\nChiudere prima l'altro programma.\n",
         STDERR_FILENO);
    return kEndedByMessage;
  }
  if (!lock.Certain())
    Tell("La cartella è di rete, o di un altro sistema: un altro computer può usarla intanto.\n",
         STDERR_FILENO);
  if (arguments.tutti) return CalculateAll(stato, player);
  if (!arguments.daJson.empty()) return TakeBack(arguments, player, stato.folder);
  if (!arguments.spiega.empty()) return Explain(arguments, stato, player);
  const int outcome = Calculate(stato, player, arguments.codice, !arguments.euro);
  const bool asked = arguments.json || !arguments.csv.empty();
  return outcome == kDone && asked ? Hand(arguments, player, stato.folder) : outcome;
}
