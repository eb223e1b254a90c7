#include "jobs/job.h"

#include <sys/stat.h>

#include <array>
#include <ctime>
#include <set>

#include "cases/fee_case.h"
#include "dialogs/player.h"
#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/folder_lock.h"
#include "runtime/text.h"
#include "shell/installed_files.h"
#include "shell/letter/letter.h"
#include "shell/memo/form_memo.h"
#include "structures/steel_beams/report.h"
#include "structures/truss_slab/report.h"
#include "tariff/files/user_files.h"

namespace orm {
namespace {

struct TestoNoto {
  const char* file;
  const char* descrizione;
};
constexpr std::array<TestoNoto, 5> kTestiNoti = {{{kRelazioneSolaioT, "Solaio a traliccio"},
                                                  {kRelazioneSolaioP, "Solaio a putrelle"},
                                                  {kRelazioneSbalzoP, "Sbalzo a putrelle"},
                                                  {kFileLetteraStampata, "Lettera di trasmissione"},
                                                  {kFileMemo, "Promemoria"}}};
constexpr std::array<std::string_view, 5> kFiniDiTesto = {".DOC", ".RTF", ".TXT", ".ODT", ".PDF"};

// A caption of the menu without its number and currency: " 5 - PROGETTAZIONE ( £ )".
std::string SenzaNumero(std::string_view voce) {
  voce.remove_prefix(std::min(voce.find_first_not_of(" 0123456789-"), voce.size()));
  return TrimRight(voce.substr(0, std::min(voce.find("( £"), voce.size())));
}

std::string NomeDelCaso(const FeeCase& caso) {
  if (caso.caption == nullptr) return caso.code;
  std::string nome = SenzaNumero(caso.caption);
  if (caso.version != nullptr) nome += " (" + SenzaNumero(caso.version) + ")";
  return OnOneLine(nome);
}

Date GiornoDi(const struct stat& stato) {
  std::tm at{};
  ::localtime_r(&stato.st_mtim.tv_sec, &at);
  return {at.tm_year + 1900, at.tm_mon + 1, at.tm_mday};
}

class Lettura {
 public:
  Lettura(const std::string& radice, const std::string& nome)
      : folder_(radice + "/" + nome), lavoro_{nome, folder_.Path(), {}, {}} {
    std::vector<std::string> nomi;
    if (const int error = ListFolder(folder_.Path(), nomi)) FailAt(folder_.Path(), error);
    for (std::string& file : nomi) nomi_.insert(std::move(file));
  }

  Lavoro Leggi() {
    for (const FeeCase& caso : FeeCases())
      for (const bool lire : {true, false}) LeggiParcella(caso, lire);
    for (const TestoNoto& testo : kTestiNoti) AggiungiTesto(testo.file, testo.descrizione);
    for (const std::string& nome : std::set<std::string>(nomi_))
      if (EUnAltroTesto(nome)) AggiungiTesto(nome, nome);
    return std::move(lavoro_);
  }

 private:
  // What was listed above is no longer in the list.
  bool Prendi(const std::string& nome) { return nomi_.erase(nome) > 0; }

  void LeggiParcella(const FeeCase& caso, bool lire) {
    ParcellaDelLavoro p;
    p.file = NomiDiCaso(caso.code, lire);
    p.intestazione = Prendi(p.file.FileInt);
    p.dati = Prendi(p.file.FileInp);
    p.relazione = Prendi(p.file.Report);
    if (!p.intestazione && !p.dati && !p.relazione) return;
    p.codice = caso.code;
    p.lire = lire;
    p.nome = NomeDelCaso(caso);
    if (p.intestazione) LeggiTesta(p);
    if (p.relazione) LeggiConto(p);
    lavoro_.parcelle.push_back(std::move(p));
  }

  void LeggiTesta(ParcellaDelLavoro& p) const {
    try {
      const Intestazione testa = LeggiIntestazione(folder_, p.file.FileInt);
      p.committente = OnOneLine(testa.Committente);
      p.oggetto = OnOneLine(testa.Oggetto);
    } catch (const RuntimeFailure& failure) {
      p.danno = failure.Text();
    }
  }

  void LeggiConto(ParcellaDelLavoro& p) const {
    struct stat relazione {};
    if (::stat(folder_.PathOf(p.file.Report).c_str(), &relazione) != 0) return;
    for (const std::string& nome : {p.file.FileInt, p.file.FileInp}) {
      struct stat dati {};
      if (::stat(folder_.PathOf(nome).c_str(), &dati) == 0 && ChangeOf(dati) > ChangeOf(relazione))
        p.vecchia = true;
    }
    p.giorno = GiornoDi(relazione);
    try {
      const std::string testo = folder_.Read(p.file.Report);
      p.netto = NettoDellaRelazione(testo, p.lire);
      if (const auto giorno = GiornoDellaRelazione(testo)) p.giorno = giorno;
    } catch (const RuntimeFailure&) {
      p.giorno.reset();  // a report that nobody can read tells nothing
    }
  }

  static bool EUnAltroTesto(const std::string& nome) {
    const auto installati = NomiFileInstallati();
    const std::string alto = Capitals(nome);
    return std::ranges::any_of(kFiniDiTesto, [&](auto fine) { return alto.ends_with(fine); }) &&
           std::ranges::count(installati, nome) == 0;
  }

  void AggiungiTesto(const std::string& file, const std::string& descrizione) {
    struct stat stato {};
    if (!Prendi(file) || ::stat(folder_.PathOf(file).c_str(), &stato) != 0) return;
    if (!S_ISREG(stato.st_mode)) return;
    lavoro_.testi.push_back({file, descrizione, ChangeOf(stato)});
  }

  WorkFolder folder_;
  std::set<std::string> nomi_;
  Lavoro lavoro_;
};

}  // namespace

std::string CheCosaCE(const ParcellaDelLavoro& parcella) {
  std::string testo;
  const auto aggiungi = [&](bool ceE, const char* parola) {
    if (ceE) testo += (testo.empty() ? "" : ", ") + std::string(parola);
  };
  aggiungi(parcella.intestazione, "intestazione");
  aggiungi(parcella.dati, "dati");
  aggiungi(parcella.relazione, parcella.vecchia ? "relazione vecchia" : "relazione");
  return testo;
}

std::string ValutaDi(const ParcellaDelLavoro& parcella) { return parcella.lire ? "£" : "€"; }

Lavoro LeggiLavoro(const std::string& radice, const std::string& nome) {
  return Lettura(radice, nome).Leggi();
}

bool InUso(const std::string& cartella) { return FolderIsHeld(cartella); }

}  // namespace orm
