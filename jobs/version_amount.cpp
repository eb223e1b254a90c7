// The net amount of a version, reckoned from its old data.
#include <stdlib.h>

#include <filesystem>

#include "interchange/interchange.h"
#include "jobs/note_versions.h"
#include "jobs/version_files.h"
#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "shell/personal/settings.h"

namespace orm {
namespace {

namespace fs = std::filesystem;

// A folder of links to the files of a version and to the tables and settings of its job, as a
// calculation wants them; gone with this object.
class CartellaDiLink {
 public:
  CartellaDiLink() {
    std::error_code error;
    std::string modello = fs::temp_directory_path(error) / "orm2002-versione-XXXXXX";
    if (error || ::mkdtemp(modello.data()) == nullptr) FailAt(modello, errno);
    path_ = modello;
  }
  ~CartellaDiLink() {
    std::error_code ignorato;
    fs::remove_all(path_, ignorato);
  }
  CartellaDiLink(const CartellaDiLink&) = delete;
  CartellaDiLink& operator=(const CartellaDiLink&) = delete;

  void Aggiungi(const std::string& nome, const std::string& porta) const {
    std::error_code error;
    const fs::path intero = fs::absolute(porta, error);
    if (!error) fs::create_symlink(intero, path_ + "/" + nome, error);
    if (error) FailAt(nome, error.value());
  }
  WorkFolder Folder() const { return WorkFolder(path_); }

 private:
  std::string path_;
};

bool ServeAlCalcolo(const std::string& nome) {
  return nome.ends_with(".CFG") || nome.ends_with(".DAG") || nome == kFileCriteri;
}

std::optional<Netto> Calcola(const std::string& cartella, const ParcellaDelLavoro& parcella,
                             const VersioneParcella& versione) {
  const CartellaDiLink link;
  for (const std::string& nome : WorkFolder(cartella).Names())
    if (ServeAlCalcolo(nome)) link.Aggiungi(nome, cartella + "/" + nome);
  const FileDiVersione testa = IntestazioneDi(cartella, parcella, versione),
                       dati = DatiDi(cartella, parcella, versione);
  link.Aggiungi(parcella.file.FileInt, testa.folder.PathOf(testa.nome));
  link.Aggiungi(parcella.file.FileInp, dati.folder.PathOf(dati.nome));
  const Parcella nota = CalcolaDaCartella(link.Folder(), parcella.codice, parcella.lire);
  return NettoDellaRelazione(nota.uscita.Contents(), parcella.lire);
}

}  // namespace

void CalcolaNetto(const std::string& cartella, const ParcellaDelLavoro& parcella,
                  VersioneParcella& versione) {
  versione.netto.reset();
  versione.motivo.clear();
  if (versione.Attuale() && parcella.relazione && !parcella.vecchia && parcella.netto) {
    versione.netto = parcella.netto;
    return;
  }
  try {
    versione.netto = Calcola(cartella, parcella, versione);
  } catch (const RuntimeFailure& failure) {
    versione.motivo = failure.Text();
  }
}

}  // namespace orm
