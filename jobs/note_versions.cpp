#include "jobs/note_versions.h"

#include <algorithm>
#include <set>

#include "cases/fee_case.h"
#include "jobs/version_files.h"
#include "jobs/written_together.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

// Saves of one input follow each other within this time, in seconds.
constexpr long kUnInput = 1800;

// "2026-11-21_185240" and what may follow, taken apart.
struct Momento {
  Date giorno;
  long secondi = 0;  // of the day

  explicit Momento(std::string_view quando) {
    const auto cifre = [&](std::size_t dove, std::size_t quante) {
      return static_cast<int>(ParseNumber(quando.substr(dove, quante)).value_or(0));
    };
    giorno = {cifre(0, 4), cifre(5, 2), cifre(8, 2)};
    secondi = cifre(11, 2) * 3600L + cifre(13, 2) * 60L + cifre(15, 2);
  }
  long Totale() const { return DayNumber(giorno) * 86400 + secondi; }
};

bool DelloStessoInput(const std::string& prima, const std::string& dopo) {
  return Momento(dopo).Totale() - Momento(prima).Totale() <= kUnInput;
}

// What a file held until `quando`: the first generation from then on, or still the present one.
std::optional<Generazione> Fino(const std::vector<Generazione>& generazioni,
                                const std::string& quando) {
  std::optional<Generazione> trovata;
  for (const Generazione& una : generazioni)  // the newest first
    if (una.quando >= quando) trovata = una;
  return trovata;
}

std::string Contenuto(const FileDiVersione& file) {
  return file.folder.Exists(file.nome) ? file.folder.Read(file.nome) : std::string();
}

// Header and data together.
std::pair<std::string, std::string> Contenuti(const std::string& cartella,
                                              const ParcellaDelLavoro& parcella,
                                              const VersioneParcella& versione) {
  return {Contenuto(IntestazioneDi(cartella, parcella, versione)),
          Contenuto(DatiDi(cartella, parcella, versione))};
}

// An input saves the header first: in between the header is new and the data are old, which was
// never a note.
bool EDiPassaggio(const VersioneParcella& versione, const std::string& prima,
                  const std::set<std::string>& testate, const std::set<std::string>& dati) {
  return !prima.empty() && !testate.contains(versione.quando) && testate.contains(prima) &&
         !dati.contains(prima) && DelloStessoInput(prima, versione.quando);
}

// The fields of the data without the closing line.
std::vector<CampoLetto> Corpo(const std::string& cartella, const ParcellaDelLavoro& parcella,
                              const VersioneParcella& versione) {
  constexpr std::size_t kCampiChiusura = 4;
  const FileDiVersione dati = DatiDi(cartella, parcella, versione);
  const FeeCase* caso = FindFeeCase(parcella.codice);
  if (caso == nullptr) return {};
  std::vector<CampoLetto> campi = caso->campi(dati.folder, dati.nome);
  campi.resize(campi.size() - std::min(campi.size(), kCampiChiusura));
  return campi;
}

bool StessoCorpo(const std::string& cartella, const ParcellaDelLavoro& parcella,
                 const VersioneParcella& a, const VersioneParcella& b) {
  return std::ranges::equal(Corpo(cartella, parcella, a), Corpo(cartella, parcella, b),
                            [](const CampoLetto& x, const CampoLetto& y) {
                              return x.nome == y.nome && x.testo == y.testo && x.numero == y.numero;
                            });
}

}  // namespace

std::string QuandoInParole(const VersioneParcella& versione) {
  if (versione.Attuale()) return "Attuale";
  const Momento momento(versione.quando);
  const auto due = [](long n) { return Padded(static_cast<int>(n), 2); };
  return ShortDate(momento.giorno) + " " + due(momento.secondi / 3600) + ":" +
         due(momento.secondi / 60 % 60) + ":" + due(momento.secondi % 60);
}

std::vector<VersioneParcella> VersioniDi(const std::string& cartella,
                                         const ParcellaDelLavoro& parcella) {
  const WorkFolder folder(cartella);
  const std::vector<Generazione> testate = Generazioni(folder, parcella.file.FileInt),
                                 dati = Generazioni(folder, parcella.file.FileInp);
  std::set<std::string> quandoTestate, quandoDati;
  for (const Generazione& una : testate) quandoTestate.insert(una.quando);
  for (const Generazione& una : dati) quandoDati.insert(una.quando);
  std::set<std::string> tutti = quandoTestate;
  tutti.insert(quandoDati.begin(), quandoDati.end());

  std::vector<VersioneParcella> versioni;
  if (folder.Exists(parcella.file.FileInt) || folder.Exists(parcella.file.FileInp))
    versioni.push_back({});
  for (auto quando = tutti.rbegin(); quando != tutti.rend(); ++quando) {
    VersioneParcella una{*quando, Fino(testate, *quando), Fino(dati, *quando), {}, {}};
    const auto prima = std::next(quando) == tutti.rend() ? std::string() : *std::next(quando);
    if (EDiPassaggio(una, prima, quandoTestate, quandoDati)) continue;
    if (!versioni.empty() &&
        Contenuti(cartella, parcella, una) == Contenuti(cartella, parcella, versioni.back()))
      continue;
    versioni.push_back(std::move(una));
  }
  return versioni;
}

std::size_t VersioneDaOffrire(const std::string& cartella, const ParcellaDelLavoro& parcella,
                              const std::vector<VersioneParcella>& versioni) {
  if (versioni.size() < 2) return 0;
  if (versioni.size() == 2 || !DelloStessoInput(versioni[2].quando, versioni[1].quando)) return 1;
  // An input writes its data with the agreements of before, then with the new ones: what lies
  // between is a step of it.
  try {
    const bool passo = StessoCorpo(cartella, parcella, versioni[0], versioni[1]) &&
                       !StessoCorpo(cartella, parcella, versioni[1], versioni[2]);
    return passo ? 2 : 1;
  } catch (const RuntimeFailure&) {
    return 1;
  }
}

void RiportaVersione(const std::string& cartella, const ParcellaDelLavoro& parcella,
                     const VersioneParcella& versione) {
  const WorkFolder folder(cartella);
  std::vector<FileInsieme> files;
  if (versione.intestazione)
    files.push_back({parcella.file.FileInt, LeggiGenerazione(folder, *versione.intestazione)});
  if (versione.dati)
    files.push_back({parcella.file.FileInp, LeggiGenerazione(folder, *versione.dati)});
  ScriviNelLavoro(cartella, files);
}

}  // namespace orm
