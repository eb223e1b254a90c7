// Two versions of a note, field by field.
#include <algorithm>
#include <array>
#include <map>

#include "cases/fee_case.h"
#include "jobs/field_words.h"
#include "jobs/note_versions.h"
#include "jobs/version_files.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/files/user_files.h"

namespace orm {
namespace {

// A field that begins a row of a list, and what such a row is called.
struct Inizio {
  std::string_view campo, nome;
};
constexpr Inizio kInizi[] = {{"Classe", "Lotto"},     {"Sottoclasse", "Riga"},
                             {"Descrizione", "Bene"}, {"TipoElaborato", "Elaborato"},
                             {"Terreno", "Terreno"},  {"Attivita", "Attività"}};
// Within a row.
constexpr Inizio kInternoDi = {"LavoriSuppletivi", "perizia"};
// The number of rows of a lot, where lots hold several: what begins with a class is a row then.
constexpr Inizio kConti[] = {
    {"RigheLottoCS", "Lotto"}, {"PeriodiDelLotto", "Lotto"}, {"PeriodiDelGruppo", "Gruppo"}};
// With these the rows are at an end.
constexpr std::string_view kDopoLeRighe[] = {"CostoIndagini", "PercDiRiduzione"};

struct CampoAlPosto {
  std::string dove;
  CampoLetto campo;
};

// Goes through the fields of a file and tells where each stands: "Lotto 2, riga 1".
class Posti {
 public:
  CampoAlPosto Prossimo(const CampoLetto& campo) {
    if (std::ranges::count(kDopoLeRighe, campo.nome) > 0) dove_.clear();
    const auto* conto = std::ranges::find(kConti, campo.nome, &Inizio::campo);
    if (conto != std::end(kConti)) {
      lotti_ = conto->nome;
      righeDeiLotti_.push_back(static_cast<int>(campo.numero));
    }
    const auto* inizio = std::ranges::find(kInizi, campo.nome, &Inizio::campo);
    if (inizio != std::end(kInizi)) {
      dove_ = righeDeiLotti_.empty() ? NomeConNumero(inizio->nome, ++conta_[inizio->nome])
                                     : RigaDelLotto(++conta_[inizio->nome]);
      interni_ = 0;
    }
    if (campo.nome == kInternoDi.campo) ++interni_;
    const bool interno = interni_ > 0 && !dove_.empty();
    CampoAlPosto alPosto{interno ? dove_ + ", " + NomeConNumero(kInternoDi.nome, interni_) : dove_,
                         campo};
    // Two kinds of rows have a scale, each with scales of its own.
    if (campo.nome == "Scala" && dove_.starts_with("Terreno")) alPosto.campo.nome = kScalaTerreno;
    return alPosto;
  }

 private:
  static std::string NomeConNumero(std::string_view nome, int numero) {
    return std::string(nome) + " " + NumberText(numero);
  }
  std::string RigaDelLotto(int riga) const {
    int lotto = 1;
    for (const int righe : righeDeiLotti_) {
      if (riga <= righe) break;
      riga -= righe;
      ++lotto;
    }
    return NomeConNumero(lotti_, lotto) + ", " + NomeConNumero("riga", riga);
  }

  std::string dove_;
  std::string_view lotti_;
  std::vector<int> righeDeiLotti_;
  std::map<std::string_view, int> conta_;
  int interni_ = 0;
};

using Elenco = std::vector<CampoAlPosto>;

void Aggiungi(Elenco& elenco, const std::vector<CampoLetto>& campi) {
  Posti posti;
  for (const CampoLetto& campo : campi) {
    CampoAlPosto alPosto = posti.Prossimo(campo);
    if (SiMostra(campo)) elenco.push_back(std::move(alPosto));
  }
}

Elenco ElencoDi(const std::string& cartella, const ParcellaDelLavoro& parcella,
                const VersioneParcella& versione) {
  Elenco elenco;
  const FileDiVersione testa = IntestazioneDi(cartella, parcella, versione);
  if (testa.folder.Exists(testa.nome)) {
    Intestazione intestazione = LeggiIntestazione(testa.folder, testa.nome);
    FieldList campi;
    Campi(campi, intestazione);
    Aggiungi(elenco, campi.All());
  }
  const FileDiVersione dati = DatiDi(cartella, parcella, versione);
  const FeeCase* caso = FindFeeCase(parcella.codice);
  if (caso != nullptr && dati.folder.Exists(dati.nome))
    Aggiungi(elenco, caso->campi(dati.folder, dati.nome));
  return elenco;
}

// The value of that place in the other version; nothing where it has no such row.
class Altra {
 public:
  explicit Altra(const Elenco& elenco) {
    for (const CampoAlPosto& c : elenco) valori_.try_emplace({c.dove, c.campo.nome}, &c.campo);
  }
  const CampoLetto* Valore(const CampoAlPosto& c) const {
    const auto trovato = valori_.find({c.dove, c.campo.nome});
    return trovato == valori_.end() ? nullptr : trovato->second;
  }

 private:
  std::map<std::pair<std::string, std::string>, const CampoLetto*> valori_;
};

bool Uguali(const CampoLetto& a, const CampoLetto& b) {
  return a.testo == b.testo && a.numero == b.numero;
}

}  // namespace

std::vector<Differenza> Confronta(const std::string& cartella, const ParcellaDelLavoro& parcella,
                                  const VersioneParcella& prima, const VersioneParcella& dopo) {
  const Elenco vecchia = ElencoDi(cartella, parcella, prima),
               nuova = ElencoDi(cartella, parcella, dopo);
  const Altra inNuova(nuova), inVecchia(vecchia);
  const auto parole = [&](const CampoLetto* campo) {
    return campo == nullptr ? kAssente : ValoreInParole(*campo, parcella.lire);
  };
  std::vector<Differenza> differenze;
  const auto aggiungi = [&](const CampoAlPosto& c, const CampoLetto* p, const CampoLetto* d) {
    differenze.push_back({c.dove, ParoleDelCampo(c.campo.nome), parole(p), parole(d)});
  };
  for (const CampoAlPosto& c : vecchia) {
    const CampoLetto* altro = inNuova.Valore(c);
    if (altro == nullptr || !Uguali(c.campo, *altro)) aggiungi(c, &c.campo, altro);
  }
  for (const CampoAlPosto& c : nuova)
    if (inVecchia.Valore(c) == nullptr) aggiungi(c, nullptr, &c.campo);
  return differenze;
}

}  // namespace orm
