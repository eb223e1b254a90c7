#include "tariff/forms/input_step.h"

#include <sys/stat.h>

#include <ctime>

#include "runtime/numbers.h"
#include "tariff/forms/form_advances.h"
#include "tariff/forms/form_header.h"

namespace orm {
namespace {

// The day on which a file was written last.
std::string Giorno(const WorkFolder& folder, const std::string& nome) {
  struct stat status {};
  if (::stat(folder.PathOf(nome).c_str(), &status) != 0) return "";
  std::tm local{};
  localtime_r(&status.st_mtime, &local);
  return ShortDate({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday});
}

}  // namespace

std::string Quanti(std::size_t numero, const char* uno, const char* molti) {
  return NumberText(static_cast<double>(numero)) + " " + (numero == 1 ? uno : molti);
}

Inizio ChiediInizio(RunState& stato, const std::function<std::string()>& contenuto) {
  FrmGenIntestazione intestazione(stato, stato.FileInt);
  // Of the note that is stored, whatever the header becomes now.
  NotaArchiviata nota{intestazione.txtCommittente.Text(), intestazione.txtIncarico.Text(), "", ""};
  stato.player.place.subject = intestazione.Argomento();
  stato.player.Show(intestazione);
  if (!intestazione.Confermato()) return Inizio::Rinuncia;
  stato.player.place.subject = intestazione.Argomento();
  if (!stato.folder.Exists(stato.FileInp)) return Inizio::Nuova;
  nota.giorno = Giorno(stato.folder, stato.FileInp);
  try {
    nota.contenuto = contenuto();
  } catch (const RuntimeFailure&) {
    nota.contenuto = "dati che non si leggono";  // the reason is told to who wants to change them
  }
  FrmGenNuovoCaso nuovoCaso(nota);
  stato.player.Show(nuovoCaso);
  return nuovoCaso.Risposta;
}

bool NienteDiConfermato(const RunState& stato) {
  return stato.input.nuova && stato.player.Confirmations() == stato.input.conferme;
}

void ChiediAcconti(RunState& stato, const DataWriter& corpo, const std::string& contenuto) {
  stato.FileDatiAcconti = stato.FileInp;
  // Told when it fails; the dialog comes all the same, and its O.K. writes again what was typed.
  TryAndStay(stato.player,
             [&] { ScriviParcella(stato.folder, stato.FileDatiAcconti, corpo, stato.chiusura); });
  FrmGenAcconti acconti(stato, corpo);
  stato.player.Show(acconti);
  if (!acconti.Confermato()) return;
  const Heading nota{stato.player.place.note, stato.player.place.subject, contenuto};
  stato.memoria.The<NotaSalvata>().testo = OnOneLine(nota.Text());
}

}  // namespace orm
