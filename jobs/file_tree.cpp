#include "jobs/file_tree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <set>
#include <utility>

#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/generations.h"
#include "runtime/replace.h"

namespace orm {
namespace {

namespace fs = std::filesystem;

constexpr int kProfonditaMassima = 8;  // of folders in a folder

struct LetturaAlbero {
  bool senzaStorico;
  std::vector<FileDiAlbero> files = {};
  std::size_t bytes = 0;

  void Leggi(const std::string& cartella, const std::string& prima, int profondita);
  void Aggiungi(const std::string& cartella, const std::string& nome, const struct stat& stato,
                std::string percorso);
};

void LetturaAlbero::Aggiungi(const std::string& cartella, const std::string& nome,
                             const struct stat& stato, std::string percorso) {
  if (files.size() == kFileDiAlberoMassimi)
    throw RuntimeFailure("La cartella ha troppi file per essere un lavoro.").AtFile(cartella);
  FileDiAlbero file{std::move(percorso), {}, 0};
  file.contenuto = ReadWhole(cartella, nome, kByteDiAlberoMassimi - bytes);
  file.cambiato = ChangeOf(stato);
  bytes += file.contenuto.size();
  files.push_back(std::move(file));
}

void LetturaAlbero::Leggi(const std::string& cartella, const std::string& prima, int profondita) {
  std::vector<std::string> nomi;
  if (const int error = ListFolder(cartella, nomi)) FailAt(cartella, error);
  std::sort(nomi.begin(), nomi.end());
  for (const std::string& nome : nomi) {
    if (nome.starts_with(kNascosto) || (senzaStorico && prima.empty() && nome == kStorico))
      continue;
    const auto stato = Look(cartella, nome);
    if (!stato) continue;  // gone in the meantime
    if (!S_ISDIR(stato->st_mode)) {
      Aggiungi(cartella, nome, *stato, prima + nome);
      continue;
    }
    const std::string dentro = cartella + "/" + nome;
    struct stat senzaSeguire {};
    if (::lstat(dentro.c_str(), &senzaSeguire) != 0) FailAt(prima + nome, errno);
    if (profondita == kProfonditaMassima || S_ISLNK(senzaSeguire.st_mode))
      throw RuntimeFailure("È un collegamento a una cartella, o una cartella troppo interna.")
          .AtFile(prima + nome);
    Leggi(dentro, prima + nome + "/", profondita + 1);
  }
}

[[noreturn]] void FallisciNome(const std::string& nome, int error) {
  if (error == EEXIST || error == ENOTEMPTY)
    throw RuntimeFailure("C'è già un lavoro con il nome \"" + nome + "\".");
  FailAt(nome, error);
}

// Flushes a folder; one of a file system that cannot (EINVAL) does without.
int FlushFolder(const std::string& path) {
  const Descriptor folder(OpenRetrying(path, O_RDONLY | O_DIRECTORY));
  return folder.IsOpen() && (::fsync(folder.Get()) == 0 || errno == EINVAL) ? 0 : errno;
}

int WriteFile(const std::string& path, const FileDiAlbero& file) {
  Descriptor open(OpenRetrying(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0666));
  if (!open.IsOpen()) return errno;
  if (const int error = WriteAll(open.Get(), file.contenuto)) return error;
  if (::fsync(open.Get()) != 0) return errno;
  struct stat stato {};
  if (::fstat(open.Get(), &stato) != 0) return errno;
  if (stato.st_size != static_cast<off_t>(file.contenuto.size())) return EIO;
  const timespec quando{file.cambiato / kNanoseconds, file.cambiato % kNanoseconds};
  const timespec tempi[2] = {quando, quando};
  // A file system without such times has that of now.
  if (file.cambiato != 0 && ::futimens(open.Get(), tempi) != 0) errno = 0;
  return open.Close() == 0 ? 0 : errno;
}

// A folder that is being made; it goes with this object unless it has got its name.
class CartellaIncompiuta {
 public:
  explicit CartellaIncompiuta(const std::string& radice) {
    int error = EEXIST;
    for (int tries = 0; error == EEXIST && tries < kTentativi; ++tries) {
      path_ = radice + "/" + FreshBesideName();
      error = ::mkdir(path_.c_str(), 0777) == 0 ? 0 : errno;
    }
    if (error != 0) FailAt(std::exchange(path_, {}), error);
  }
  ~CartellaIncompiuta() {
    std::error_code ignorato;
    if (!path_.empty()) fs::remove_all(path_, ignorato);
  }
  CartellaIncompiuta(const CartellaIncompiuta&) = delete;
  CartellaIncompiuta& operator=(const CartellaIncompiuta&) = delete;

  void Riempi(const std::vector<FileDiAlbero>& files) const {
    std::set<std::string> interne;
    for (const FileDiAlbero& file : files) {
      for (auto fine = file.percorso.find('/'); fine != std::string::npos;
           fine = file.percorso.find('/', fine + 1)) {
        const std::string interna = path_ + "/" + file.percorso.substr(0, fine);
        if (interne.insert(interna).second && ::mkdir(interna.c_str(), 0777) != 0)
          FailAt(file.percorso, errno);
      }
      if (const int error = WriteFile(path_ + "/" + file.percorso, file))
        FailAt(file.percorso, error);
    }
    interne.insert(path_);
    for (const std::string& interna : interne)
      if (const int error = FlushFolder(interna)) FailAt(interna, error);
  }
  // Unless the name is taken.
  void Nomina(const std::string& radice, const std::string& nome) {
    if (const int error = RinominaSeLibero(path_, radice + "/" + nome)) FallisciNome(nome, error);
    path_.clear();
  }

 private:
  static constexpr int kTentativi = 100;
  std::string path_;
};

}  // namespace

std::vector<FileDiAlbero> LeggiAlbero(const std::string& cartella, bool senzaStorico) {
  LetturaAlbero lettura{.senzaStorico = senzaStorico};
  lettura.Leggi(cartella, "", 1);
  return std::move(lettura.files);
}

int RinominaSeLibero(const std::string& da, const std::string& a) {
  if (::renameat2(AT_FDCWD, da.c_str(), AT_FDCWD, a.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // A file system that does not know this call: a look at the name must do.
  struct stat stato {};
  if (::lstat(a.c_str(), &stato) == 0) return EEXIST;
  return ::rename(da.c_str(), a.c_str()) == 0 ? 0 : errno;
}

void EsigiRegistrata(const std::string& radice, const std::string& nome) {
  if (const int error = FlushFolder(radice))
    throw RuntimeFailure("I dati sono scritti, ma il disco non ne conferma la registrazione. " +
                         ReasonOf(error))
        .AtFile(nome);
}

void CreaAlbero(const std::string& radice, const std::string& nome,
                const std::vector<FileDiAlbero>& files) {
  std::error_code error;
  fs::create_directories(radice, error);
  if (error) FailAt(radice, error.value());
  CartellaIncompiuta cartella(radice);
  cartella.Riempi(files);
  cartella.Nomina(radice, nome);
  EsigiRegistrata(radice, nome);
}

void TogliAlberiIncompiuti(const std::string& radice) {
  std::vector<std::string> nomi;
  if (ListFolder(radice, nomi) != 0) return;
  for (const std::string& nome : nomi) {
    if (!IsBesideName(nome)) continue;
    struct stat stato {};
    const std::string path = radice + "/" + nome;
    std::error_code ignorato;
    if (::lstat(path.c_str(), &stato) == 0 && S_ISDIR(stato.st_mode) &&
        stato.st_mtime < std::time(nullptr) - kLongestSave)
      fs::remove_all(path, ignorato);
  }
}

}  // namespace orm
