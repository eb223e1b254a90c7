// orm2002-calcolo: calculates fee notes without a screen.
//
// Exit codes: 0 done; 1 a message of the program ended the command; 2 a run-time failure; 3 wrong
// usage.
#include <unistd.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "batch/batch_player.h"
#include "cases/fee_case.h"
#include "runtime/text.h"
#include "shell/dispatch.h"
#include "shell/settings.h"

namespace {

constexpr int kDone = 0, kEndedByMessage = 1, kRuntimeFailure = 2, kWrongUsage = 3;

constexpr const char* kUsage =
    "Uso: orm2002-calcolo CODICE [--euro] [--cartella DIR] [--data GG/MM/AAAA]\n"
    "     orm2002-calcolo --tutti [--cartella DIR] [--data GG/MM/AAAA]\n"
    "CODICE è il codice di tre lettere del caso (PPE, COA, ...).\n";

void Tell(std::string_view text, int descriptor) {
  if (::write(descriptor, text.data(), text.size()) < 0) return;
}

struct Arguments {
  std::string codice;
  bool euro = false;
  bool tutti = false;
  bool aiuto = false;
  std::string cartella = ".";
  orm::Date data = orm::SystemDate();
  std::string objection;
};

// The few options are read here: a library for them would double the size and the start of this
// program, whose measure is the copying of a file.
Arguments Read(int count, char** words) {
  Arguments a;
  for (int i = 1; i < count && a.objection.empty(); ++i) {
    const std::string_view word = words[i];
    const bool hasNext = i + 1 < count;
    if (word == "--euro") {
      a.euro = true;
    } else if (word == "--tutti") {
      a.tutti = true;
    } else if (word == "--help" || word == "-h") {
      a.aiuto = true;
    } else if (word == "--cartella" && hasNext) {
      a.cartella = words[++i];
    } else if (word == "--data" && hasNext) {
      const auto date = orm::ParseDate(words[++i]);
      if (date)
        a.data = *date;
      else
        a.objection = "La data si scrive GG/MM/AAAA.";
    } else if (!word.starts_with("-") && a.codice.empty()) {
      a.codice = orm::Capitals(word);
    } else {
      a.objection = "Argomento non previsto: " + std::string(word);
    }
  }
  if (!a.aiuto && a.objection.empty()) {
    if (a.tutti == !a.codice.empty()) a.objection = "Occorre un codice oppure --tutti.";
    if (a.tutti && a.euro) a.objection = "--tutti calcola le parcelle in Lire e in Euro.";
    if (!a.codice.empty() && orm::FindFeeCase(a.codice) == nullptr)
      a.objection = "Codice sconosciuto: " + a.codice;
  }
  return a;
}

int Calculate(orm::RunState& stato, orm::BatchPlayer& player, const std::string& codice,
              bool lire) {
  player.Forget();
  stato.CasoDiParcella = codice;
  stato.ModoLire = lire;
  try {
    orm::LeggiCriteri(stato);
    return orm::CalcoloParcella(stato) ? kDone : kEndedByMessage;
  } catch (const orm::RuntimeFailure& failure) {
    player.Ask(orm::FailureBox(failure));
    return kRuntimeFailure;
  }
}

// Every note of the folder that has its two data files.
int CalculateAll(orm::RunState& stato, orm::BatchPlayer& player) {
  int worst = kDone;
  for (const orm::FeeCase& fee : orm::FeeCases())
    for (const bool lire : {true, false}) {
      const orm::NomiFile nomi = orm::NomiDiCaso(fee.code, lire);
      if (!stato.folder.Exists(nomi.FileInt) || !stato.folder.Exists(nomi.FileInp)) continue;
      const int outcome = Calculate(stato, player, fee.code, lire);
      if (outcome == kDone) Tell(nomi.Report + "\n", STDOUT_FILENO);
      worst = std::max(worst, outcome);
    }
  return worst;
}

}  // namespace

int main(int count, char** words) {
  const Arguments arguments = Read(count, words);
  if (arguments.aiuto) {
    Tell(kUsage, STDOUT_FILENO);
    return kDone;
  }
  if (!arguments.objection.empty()) {
    Tell(arguments.objection + "\n" + kUsage, STDERR_FILENO);
    return kWrongUsage;
  }
  orm::BatchPlayer player(arguments.data);
  orm::RunState stato(player, orm::WorkFolder(arguments.cartella));
  const orm::FolderLock lock(stato.folder);
  if (!lock.Held()) {
    Tell("ORM2002 È GIÀ IN USO IN QUESTA CARTELLA DI LAVORO.\nChiudere prima l'altro programma.\n",
         STDERR_FILENO);
    return kEndedByMessage;
  }
  return arguments.tutti ? CalculateAll(stato, player)
                         : Calculate(stato, player, arguments.codice, !arguments.euro);
}
