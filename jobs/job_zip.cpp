#include "jobs/job_zip.h"

#include <sys/stat.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <set>

#include "jobs/job_commands.h"
#include "jobs/zip/zip_library.h"
#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/numbers.h"
#include "runtime/replace.h"
#include "runtime/text.h"

namespace orm {
namespace {

constexpr std::string_view kDiUnAltroSistema = "__MACOSX";
constexpr const char* kDanneggiato = "L'archivio è danneggiato o non è uno ZIP.";

[[noreturn]] void Rifiuta(const char* ragione, const std::string& percorso = {}) {
  throw RuntimeFailure(percorso.empty() ? std::string(ragione)
                                        : ragione + std::string(" : ") + percorso);
}

struct Chiude {
  void operator()(zip_t* zip) const { LibZip().discard(zip); }
  void operator()(zip_file_t* file) const { LibZip().fclose(file); }
  void operator()(zip_source_t* source) const { LibZip().source_free(source); }
};
using Zip = std::unique_ptr<zip_t, Chiude>;
using FileNelloZip = std::unique_ptr<zip_file_t, Chiude>;
using Sorgente = std::unique_ptr<zip_source_t, Chiude>;

// An archive in memory; `sorgente` stays ours.
Zip Apri(const Sorgente& sorgente, int come) {
  if (sorgente == nullptr) Rifiuta("Manca la memoria per l'archivio.");
  LibZip().source_keep(sorgente.get());
  Zip zip(LibZip().open_from_source(sorgente.get(), come, nullptr));
  if (zip == nullptr) {
    LibZip().source_free(sorgente.get());
    Rifiuta(kDanneggiato);
  }
  return zip;
}

void AggiungiAllo(zip_t* zip, const std::string& percorso, const FileDiAlbero& file) {
  zip_source_t* bytes =
      LibZip().source_buffer(zip, file.contenuto.data(), file.contenuto.size(), 0);
  const zip_int64_t posto = LibZip().file_add(zip, percorso.c_str(), bytes, ZIP_FL_ENC_UTF_8);
  if (posto < 0) {
    LibZip().source_free(bytes);
    Rifiuta("Il file non entra nell'archivio", percorso);
  }
  if (file.cambiato != 0)
    LibZip().file_set_mtime(zip, static_cast<zip_uint64_t>(posto), file.cambiato / kNanoseconds, 0);
}

std::string BytesDi(zip_source_t* sorgente) {
  zip_stat_t stato;
  LibZip().stat_init(&stato);
  std::string bytes;
  if (LibZip().source_stat(sorgente, &stato) == 0 && LibZip().source_open(sorgente) == 0) {
    bytes.resize(stato.size);
    const zip_int64_t letti = LibZip().source_read(sorgente, bytes.data(), bytes.size());
    LibZip().source_close(sorgente);
    if (letti == static_cast<zip_int64_t>(bytes.size())) return bytes;
  }
  Rifiuta("L'archivio non si può comporre.");
}

// The path of an entry, held to what a job can have: nothing that leads out of its folder.
void EsigiPercorso(const std::string& percorso) {
  std::size_t inizio = 0;
  do {
    const auto fine = std::min(percorso.find('/', inizio), percorso.size());
    const std::string parte = percorso.substr(inizio, fine - inizio);
    inizio = fine + 1;
    if (parte.empty() || parte == "." || parte == "..")
      Rifiuta("L'archivio contiene un percorso che esce dalla sua cartella", percorso);
  } while (inizio <= percorso.size());
  for (std::size_t i = 0; i < percorso.size();)
    if (const char32_t c = NextCharacter(percorso, i);
        c < U' ' || c == 0xFFFD || c == U'\\' || c == U':')
      Rifiuta("L'archivio contiene un nome che non si può scrivere", percorso);
}

// What another system adds, and hidden files of ours: a draft comes from a run of the program.
bool EDaLasciare(const std::string& percorso) {
  return percorso.substr(0, percorso.find('/')) == kDiUnAltroSistema ||
         std::string_view(percorso).substr(percorso.rfind('/') + 1).starts_with(kNascosto);
}

class LetturaZip {
 public:
  explicit LetturaZip(zip_t* zip) : zip_(zip) {}

  std::vector<FileDiAlbero> Leggi() {
    const zip_int64_t quanti = LibZip().get_num_entries(zip_, 0);
    if (quanti <= 0) Rifiuta(kDanneggiato);
    if (static_cast<std::size_t>(quanti) > kFileDiAlberoMassimi)
      Rifiuta("L'archivio ha troppi file per essere un lavoro.");
    for (zip_int64_t i = 0; i < quanti; ++i) LeggiVoce(static_cast<zip_uint64_t>(i));
    return std::move(files_);
  }

 private:
  void LeggiVoce(zip_uint64_t posto) {
    zip_stat_t stato;
    LibZip().stat_init(&stato);
    constexpr zip_uint64_t kServe = ZIP_STAT_NAME | ZIP_STAT_SIZE;
    if (LibZip().stat_index(zip_, posto, 0, &stato) != 0 || (stato.valid & kServe) != kServe)
      Rifiuta(kDanneggiato);
    std::string percorso = stato.name;
    const bool cartella = percorso.ends_with('/');
    if (cartella) percorso.pop_back();
    EsigiPercorso(percorso);
    EsigiFile(posto, percorso);
    if (cartella || EDaLasciare(percorso)) return;
    if ((stato.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && stato.encryption_method != ZIP_EM_NONE)
      Rifiuta("L'archivio è protetto da una parola d'ordine.");
    if (!nomi_.insert(Capitals(percorso)).second)
      Rifiuta("L'archivio contiene due volte lo stesso nome", percorso);
    // Nobody is asked to unpack what the archive claims: its claim is refused.
    if (stato.size > kByteDiAlberoMassimi - bytes_)
      Rifiuta("L'archivio, aperto, è troppo grande per essere un lavoro.");
    bytes_ += stato.size;
    const bool colGiorno = (stato.valid & ZIP_STAT_MTIME) != 0 && stato.mtime > 0;
    files_.push_back({percorso, Contenuto(posto, stato.size, percorso),
                      colGiorno ? stato.mtime * kNanoseconds : 0});
  }

  void EsigiFile(zip_uint64_t posto, const std::string& percorso) const {
    zip_uint8_t sistema = 0;
    zip_uint32_t attributi = 0;
    if (LibZip().file_get_external_attributes(zip_, posto, 0, &sistema, &attributi) != 0)
      Rifiuta(kDanneggiato);
    const mode_t modo = sistema == ZIP_OPSYS_UNIX ? attributi >> 16 : 0;
    if ((modo & S_IFMT) != 0 && !S_ISREG(modo) && !S_ISDIR(modo))
      Rifiuta("L'archivio contiene un collegamento o altro che non è un file", percorso);
  }

  // One byte more than was claimed is asked for: a stream that goes on is a lie.
  std::string Contenuto(zip_uint64_t posto, zip_uint64_t grande, const std::string& percorso) {
    const FileNelloZip file(LibZip().fopen_index(zip_, posto, 0));
    if (file == nullptr) Rifiuta("L'archivio è danneggiato", percorso);
    std::string bytes;
    char pezzo[65536];
    for (;;) {
      const zip_int64_t letti = LibZip().fread(file.get(), pezzo, sizeof pezzo);
      if (letti < 0) Rifiuta("L'archivio è danneggiato", percorso);
      if (letti == 0) break;
      bytes.append(pezzo, static_cast<std::size_t>(letti));
      if (bytes.size() > grande) Rifiuta("L'archivio è danneggiato", percorso);
    }
    if (bytes.size() != grande) Rifiuta("L'archivio è danneggiato", percorso);
    return bytes;
  }

  zip_t* zip_;
  std::vector<FileDiAlbero> files_;
  std::set<std::string> nomi_;
  std::size_t bytes_ = 0;
};

// The folder that all files have in common, which then goes from their paths.
std::string TogliCartella(std::vector<FileDiAlbero>& files) {
  if (files.empty()) return {};
  const std::string& primo = files.front().percorso;
  const auto barra = primo.find('/');
  if (barra == std::string::npos) return {};
  const std::string cartella = primo.substr(0, barra + 1);
  for (const FileDiAlbero& file : files)
    if (!file.percorso.starts_with(cartella)) return {};
  for (FileDiAlbero& file : files) file.percorso.erase(0, barra + 1);
  return cartella.substr(0, barra);
}

std::string LeggiFileZip(const std::string& zip) {
  const auto barra = zip.rfind('/');
  const std::string cartella = barra == std::string::npos ? "." : zip.substr(0, barra + 1);
  return ReadWhole(cartella, zip.substr(barra + 1), kByteDiAlberoMassimi);
}

}  // namespace

std::string FaiZip(const std::string& nome, const std::vector<FileDiAlbero>& files) {
  const Sorgente sorgente(LibZip().source_buffer_create(nullptr, 0, 0, nullptr));
  Zip zip = Apri(sorgente, ZIP_TRUNCATE);
  // Nothing at all makes no archive.
  if (files.empty() && LibZip().dir_add(zip.get(), nome.c_str(), ZIP_FL_ENC_UTF_8) < 0)
    Rifiuta("L'archivio non si può comporre.");
  for (const FileDiAlbero& file : files) AggiungiAllo(zip.get(), nome + "/" + file.percorso, file);
  if (LibZip().close(zip.get()) != 0) Rifiuta("L'archivio non si può comporre.");
  static_cast<void>(zip.release());  // closed
  return BytesDi(sorgente.get());
}

ContenutoZip LeggiZip(std::string_view bytes) {
  const Sorgente sorgente(LibZip().source_buffer_create(bytes.data(), bytes.size(), 0, nullptr));
  const Zip zip = Apri(sorgente, ZIP_RDONLY);
  ContenutoZip contenuto{{}, LetturaZip(zip.get()).Leggi()};
  contenuto.nome = TogliCartella(contenuto.files);
  return contenuto;
}

void ArchiviaLavoro(const std::string& cartella, const std::string& zip) {
  const std::string bytes =
      FaiZip(cartella.substr(cartella.rfind('/') + 1), LeggiAlbero(cartella, false));
  const auto barra = zip.rfind('/');
  WorkFolder(zip.substr(0, barra)).Replace(zip.substr(barra + 1), bytes);
}

void RiprendiLavoro(const std::string& zip, const std::string& radice, const std::string& nome) {
  if (const auto difetto = DifettoDelNome(radice, nome)) throw RuntimeFailure(*difetto);
  const std::string bytes = LeggiFileZip(zip);
  try {
    CreaAlbero(radice, nome, LeggiZip(bytes).files);
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(zip);
  }
}

std::string NomeNelloZip(const std::string& zip) {
  std::string nome = LeggiZip(LeggiFileZip(zip)).nome;
  if (!nome.empty()) return nome;
  nome = zip.substr(zip.rfind('/') + 1);
  return nome.substr(0, nome.rfind('.'));
}

}  // namespace orm
