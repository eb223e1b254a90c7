#include "jobs/job_commands.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <set>

#include "jobs/file_tree.h"
#include "jobs/job_list.h"
#include "jobs/written_together.h"
#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/folder_lock.h"
#include "runtime/generations.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "shell/installed_files.h"
#include "shell/personal/settings.h"
#include "tariff/files/user_files.h"

namespace orm {
namespace {

constexpr std::size_t kNomePiuLungo = 200;  // bytes; file systems take 255
constexpr std::string_view kFineConfigurazione = ".CFG";

bool CELavoro(const std::string& radice, std::string_view nome) {
  struct stat stato {};
  return ::lstat((radice + "/" + std::string(nome)).c_str(), &stato) == 0;
}

void EsigiNome(const std::string& radice, std::string_view nome) {
  if (const auto difetto = DifettoDelNome(radice, nome)) throw RuntimeFailure(*difetto);
}

// What a new job takes of its model.
bool PassaAlNuovo(const std::string& nome) {
  return nome == kFileUtente || nome == kFileCriteri || nome == kFileEditor ||
         nome.ends_with(kFineConfigurazione);
}

std::string PiuRecenteConUtente(const std::string& radice) {
  Lavori lavori(radice);
  lavori.Guarda();
  for (const VoceLavoro& voce : lavori.Voci())
    if (WorkFolder(lavori.CartellaDi(voce.nome)).Exists(kFileUtente)) return voce.nome;
  return {};
}

std::string Ultima(std::string percorso) {
  while (percorso.size() > 1 && percorso.ends_with('/')) percorso.pop_back();
  return percorso.substr(percorso.rfind('/') + 1);
}

// Names that the program opens by their capitals: other systems hand files on in small letters. A
// kept verification bears a name that a person has given it.
std::string NomeNelLavoro(const std::string& nome) {
  const std::string alto = Capitals(nome);
  return alto.ends_with(".VER") ? nome.substr(0, nome.size() - 4) + ".VER" : alto;
}

class FileRaccolti {
 public:
  void Aggiungi(const std::string& percorso) {
    struct stat stato {};
    if (::stat(percorso.c_str(), &stato) != 0) FailAt(percorso, errno);
    const std::string nome = Ultima(percorso);
    if (S_ISDIR(stato.st_mode)) return AggiungiCartella(percorso);
    if (!EDelProgramma(nome)) throw RuntimeFailure("Non è un file di ORM2002.").AtFile(percorso);
    AggiungiFile(percorso.substr(0, percorso.size() - nome.size()), nome, stato);
  }
  const std::vector<FileDiAlbero>& Tutti() const { return files_; }

 private:
  void AggiungiCartella(const std::string& percorso) {
    const WorkFolder folder(percorso);
    for (const std::string& nome : folder.Names())
      if (EDelProgramma(nome))
        if (const auto stato = Look(percorso, nome)) AggiungiFile(percorso + "/", nome, *stato);
  }
  void AggiungiFile(const std::string& cartella, const std::string& nome,
                    const struct stat& stato) {
    const std::string nuovo = NomeNelLavoro(nome);
    if (!nomi_.insert(nuovo).second)
      throw RuntimeFailure("Fra i file scelti ce n'è più d'uno con questo nome.").AtFile(nuovo);
    files_.push_back({nuovo, WorkFolder(cartella).Read(nome), ChangeOf(stato)});
  }
  std::set<std::string> nomi_;
  std::vector<FileDiAlbero> files_;
};

}  // namespace

std::optional<std::string> DifettoDelNome(const std::string& radice, std::string_view nome) {
  if (nome.find_first_not_of(' ') == std::string_view::npos) return "Il lavoro deve avere un nome.";
  if (nome.size() > kNomePiuLungo) return "Il nome è troppo lungo.";
  if (nome.find_first_of("/\\:*?\"<>|") != std::string_view::npos)
    return "Il nome si scrive senza  / \\ : * ? \" < > |";
  for (std::size_t i = 0; i < nome.size();)
    if (const char32_t c = NextCharacter(nome, i); c < U' ' || c == 0x7F || c == 0xFFFD)
      return "Il nome contiene un carattere che non si può scrivere.";
  if (nome.starts_with('.') || nome.starts_with(' '))
    return "Il nome non può cominciare con un punto o con uno spazio.";
  if (nome.ends_with('.') || nome.ends_with(' '))
    return "Il nome non può finire con un punto o con uno spazio.";
  if (CELavoro(radice, nome)) return "C'è già un lavoro con il nome \"" + std::string(nome) + "\".";
  return std::nullopt;
}

std::string NomeLibero(const std::string& radice, const std::string& nome) {
  std::string libero = nome;
  for (int n = 2; CELavoro(radice, libero); ++n) libero = nome + " (" + NumberText(n) + ")";
  return libero;
}

void NuovoLavoro(const std::string& radice, const std::string& nome, const std::string& modello,
                 const WorkFolder& installati) {
  EsigiNome(radice, nome);
  const std::string scelto = modello.empty() ? PiuRecenteConUtente(radice) : modello;
  std::vector<FileDiAlbero> files;
  std::set<std::string> presi;
  if (!scelto.empty()) {
    const WorkFolder folder(radice + "/" + scelto);
    for (const std::string& file : folder.Names())
      if (PassaAlNuovo(file) && presi.insert(file).second)
        files.push_back({file, folder.Read(file), 0});
  }
  for (const char* file : NomiFileInstallati())
    if (!presi.contains(file) && installati.Exists(file))
      files.push_back({file, installati.Read(file), 0});
  CreaAlbero(radice, nome, files);
}

void DuplicaLavoro(const std::string& radice, const std::string& nome, const std::string& nuovo) {
  EsigiNome(radice, nuovo);
  CreaAlbero(radice, nuovo, LeggiAlbero(radice + "/" + nome, true));
}

void RinominaLavoro(const std::string& radice, const std::string& nome, const std::string& nuovo) {
  if (nome == nuovo) return;
  EsigiNome(radice, nuovo);
  const std::string cartella = radice + "/" + nome;
  const FolderLock lock{WorkFolder(cartella)};
  if (!lock.Held()) RifiutaInUso(cartella);
  if (const int error = RinominaSeLibero(cartella, radice + "/" + nuovo)) FailAt(nome, error);
  EsigiRegistrata(radice, nuovo);
}

void EsigiNonInUso(const std::string& cartella) {
  if (InUso(cartella)) RifiutaInUso(cartella);
}

bool HaLaParcella(const std::string& cartella, const ParcellaDelLavoro& parcella) {
  const WorkFolder folder(cartella);
  return folder.Exists(parcella.file.FileInt) || folder.Exists(parcella.file.FileInp);
}

void CopiaParcella(const std::string& da, const ParcellaDelLavoro& parcella, const std::string& a,
                   bool sostituisci) {
  const WorkFolder origine(da);
  std::vector<FileInsieme> files;
  for (const std::string& nome : {parcella.file.FileInt, parcella.file.FileInp})
    if (origine.Exists(nome)) files.push_back({nome, origine.Read(nome)});
  if (files.empty()) throw RuntimeFailure("La parcella non ha né intestazione né dati.").AtFile(da);
  if (!sostituisci && HaLaParcella(a, parcella))
    throw RuntimeFailure("In \"" + Ultima(a) + "\" c'è già una parcella " + parcella.codice +
                         (parcella.lire ? " in Lire." : " in Euro."));
  ScriviNelLavoro(a, files);
}

bool EDelProgramma(std::string_view nomeFile) {
  return !nomeFile.starts_with('.') && HaGenerazioni(nomeFile);
}

void LavoroDaFile(const std::string& radice, const std::string& nome,
                  const std::vector<std::string>& percorsi) {
  EsigiNome(radice, nome);
  FileRaccolti raccolti;
  for (const std::string& percorso : percorsi) raccolti.Aggiungi(percorso);
  if (raccolti.Tutti().empty()) throw RuntimeFailure("Non c'è nessun file di ORM2002.");
  CreaAlbero(radice, nome, raccolti.Tutti());
}

void RipulisciRadice(const std::string& radice) { TogliAlberiIncompiuti(radice); }

}  // namespace orm
