#include "structures/balcony/defects.h"

#include <algorithm>
#include <vector>

namespace orm {
namespace {

constexpr const char* kLastra = "DIMENSIONI DELLA LASTRA NON ACCETTABILI !";
constexpr const char* kLastraRastremata = "  DIMENSIONI DELLA LASTRA NON ACCETTABILI !";
constexpr const char* kPutrella = "DIMENSIONI DELLA PUTRELLA NON ACCETTABILI !";
constexpr const char* kMensola = "DIMENSIONI DELLA MENSOLA NON ACCETTABILI !";
constexpr const char* kRastremazione = "LA RASTREMAZIONE DEVE ESSERE VERSO L'ESTERNO";

struct Prova {
  bool difetto;
  const char* parte;
  const char* motivo;
};

std::vector<Prova> ProveLastra(const DatiBalcone& d) {
  return {{d.t <= 0, kLastra, "  SEZIONE DI ALTEZZA NULLA  "},
          {d.b <= 0, kLastra, "  LARGHEZZA NULLA  "},
          {d.Lm <= 0, kLastra, "  CAMPATA CENTRALE TROPPO CORTA  "}};
}

std::vector<Prova> ProvePutrella(const DatiBalcone& d) {
  return {{d.Bm <= 0, kPutrella, "  LARGHEZZA NULLA  "},
          {d.pr <= 0, kPutrella, "  PRESA DI LUNGHEZZA NULLA  "}};
}

std::vector<Prova> ProveMensola(const DatiBalcone& d) {
  return {{d.b0 <= 0, kMensola, "  BASE NULLA  "},
          {d.hi <= 0, kMensola, "  SEZIONE DI ALTEZZA NULLA  "},
          {d.he > d.hi, kMensola, kRastremazione},
          {d.pr <= 0, kMensola, "  PRESA DI LUNGHEZZA NULLA  "},
          {d.Bm <= 0, kMensola, "     LUNGHEZZA NULLA   "}};
}

std::vector<Prova> ProveLastraSemplice(const DatiBalcone& d) {
  return {{d.lunghezza <= 0, kLastra, "     LUNGHEZZA NULLA   "},
          {d.si <= 0, kLastra, "  SEZIONE DI ALTEZZA NULLA ALL'INCASTRO  "},
          {d.se > d.si, kLastraRastremata, kRastremazione},
          {d.pr <= 0, kLastra, "  PRESA DI LUNGHEZZA NULLA   "},
          {d.a <= 0, kLastra, "     AGGETTO NULLO   "}};
}

std::vector<Prova> Prove(const DatiBalcone& d) {
  if (d.tipo == TipoBalcone::LastraSemplice) return ProveLastraSemplice(d);
  std::vector<Prova> prove = ProveLastra(d);
  const bool putrelle = d.tipo == TipoBalcone::Putrelle;
  for (const Prova& prova : putrelle ? ProvePutrella(d) : ProveMensola(d)) prove.push_back(prova);
  return prove;
}

}  // namespace

std::string DifettoBalcone(const DatiBalcone& dati) {
  const std::vector<Prova> prove = Prove(dati);
  const auto trovata =
      std::find_if(prove.begin(), prove.end(), [](const Prova& prova) { return prova.difetto; });
  return trovata == prove.end() ? "" : std::string(trovata->parte) + "\n" + trovata->motivo;
}

bool RastremazioneInversa(const DatiBalcone& dati) {
  return DifettoBalcone(dati).ends_with(kRastremazione);
}

}  // namespace orm
