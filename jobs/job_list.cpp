#include "jobs/job_list.h"

#include <sys/stat.h>

#include <cerrno>
#include <unordered_map>

#include "runtime/failure.h"
#include "runtime/file_calls.h"

namespace orm {
namespace {

// One number for names, sizes and times of all files of a folder (FNV-1a): another one when any of
// them is changed.
class Impronta {
 public:
  void Aggiungi(std::string_view testo) {
    for (const char c : testo) Passo(static_cast<unsigned char>(c));
    Passo(0);
  }
  void Aggiungi(std::int64_t numero) {
    for (int i = 0; i < 8; ++i) Passo(static_cast<unsigned char>(numero >> (8 * i)));
  }
  std::uint64_t Valore() const { return valore_; }

 private:
  void Passo(unsigned char byte) { valore_ = (valore_ ^ byte) * 1099511628211U; }
  std::uint64_t valore_ = 14695981039346656037U;
};

std::uint64_t ImprontaDi(const std::string& cartella) {
  std::vector<std::string> nomi;
  if (const int error = ListFolder(cartella, nomi)) FailAt(cartella, error);
  std::sort(nomi.begin(), nomi.end());
  Impronta impronta;
  for (const std::string& nome : nomi) {
    struct stat stato {};
    if (nome.starts_with('.') || ::stat((cartella + "/" + nome).c_str(), &stato) != 0) continue;
    impronta.Aggiungi(nome);
    if (S_ISDIR(stato.st_mode)) continue;
    impronta.Aggiungi(ChangeOf(stato));
    impronta.Aggiungi(static_cast<std::int64_t>(stato.st_size));
  }
  return impronta.Valore();
}

}  // namespace

struct Lavori::Memoria {
  struct Voce {
    std::uint64_t impronta = 0;
    long vista = 0;  // in which look it was held against its folder
    Lavoro lavoro;
  };
  std::unordered_map<std::string, Voce> voci;
  long sguardo = 1;
};

Lavori::Lavori(std::string radice)
    : radice_(std::move(radice)), memoria_(std::make_unique<Memoria>()) {}
Lavori::~Lavori() = default;

bool Lavori::Guarda() {
  std::vector<std::string> nomi;
  const int error = ListFolder(radice_, nomi);
  if (error != 0 && error != ENOENT) FailAt(radice_, error);
  ++memoria_->sguardo;
  std::vector<VoceLavoro> voci;
  voci.reserve(nomi.size());
  for (std::string& nome : nomi) {
    struct stat stato {};
    if (nome.starts_with('.') || ::stat(CartellaDi(nome).c_str(), &stato) != 0) continue;
    if (S_ISDIR(stato.st_mode)) voci.push_back({std::move(nome), ChangeOf(stato)});
  }
  std::sort(voci.begin(), voci.end(), [](const VoceLavoro& a, const VoceLavoro& b) {
    return a.cambiato != b.cambiato ? a.cambiato > b.cambiato : a.nome < b.nome;
  });
  if (voci == voci_) return false;
  voci_ = std::move(voci);
  std::unordered_map<std::string, Memoria::Voce> restano;
  for (const VoceLavoro& voce : voci_)
    if (auto nodo = memoria_->voci.extract(voce.nome)) restano.insert(std::move(nodo));
  memoria_->voci = std::move(restano);
  return true;
}

const Lavoro& Lavori::Dettagli(const std::string& nome) { return Rileggi(nome, true); }
const Lavoro& Lavori::DettagliGiaVisti(const std::string& nome) { return Rileggi(nome, false); }

const Lavoro& Lavori::Rileggi(const std::string& nome, bool comunque) {
  const auto trovata = memoria_->voci.find(nome);
  const bool nota = trovata != memoria_->voci.end();
  if (nota && !comunque && trovata->second.vista == memoria_->sguardo)
    return trovata->second.lavoro;
  const std::uint64_t impronta = ImprontaDi(CartellaDi(nome));
  if (nota && trovata->second.impronta == impronta) {
    trovata->second.vista = memoria_->sguardo;
    return trovata->second.lavoro;
  }
  Memoria::Voce voce{impronta, memoria_->sguardo, LeggiLavoro(radice_, nome)};
  return (memoria_->voci[nome] = std::move(voce)).lavoro;
}

}  // namespace orm
