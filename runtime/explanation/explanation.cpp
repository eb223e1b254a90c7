#include "runtime/explanation/explanation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <utility>

namespace orm {
namespace {

// One blank between words, none at the ends.
std::string SenzaSpaziDoppi(std::string_view riga) {
  std::string testo;
  testo.reserve(riga.size());
  for (const char c : riga)
    if (c != ' ' || (!testo.empty() && testo.back() != ' ')) testo += c;
  if (testo.ends_with(' ')) testo.pop_back();
  return testo;
}

// The greatest double has 309 digits, the least 1074 decimals.
constexpr std::size_t kCifreMassime = 1500;

// "1234567.25" as "1.234.567,25".
std::string Italiana(std::string testo, bool negativa) {
  const auto punto = std::min(testo.find('.'), testo.size());
  if (punto < testo.size()) testo[punto] = ',';
  for (auto i = static_cast<std::ptrdiff_t>(punto) - 3; i > 0; i -= 3)
    testo.insert(static_cast<std::size_t>(i), ".");
  return negativa ? "-" + testo : testo;
}

}  // namespace

void Passaggio::Annota(std::string_view nota) { note.emplace_back(nota); }

Catena Unite(Catena prima, Catena poi) {
  if (prima.empty()) return poi;
  std::move(poi.begin(), poi.end(), std::back_inserter(prima));
  return prima;
}

const Catena& StessiPassaggi::Passi() const {
  if (passi_) fatti_ = Svolta(std::exchange(passi_, nullptr)());
  return fatti_;
}

Passaggio InComune(std::function<Catena()> passi, std::string cifra) {
  return {.regola = "",
          .cifra = std::move(cifra),
          .comuni = std::make_shared<const StessiPassaggi>(std::move(passi))};
}

Catena Svolta(const Catena& catena) {
  Catena passi;
  for (const Passaggio& passo : catena) {
    if (!passo.comuni) {
      passi.push_back(passo);
      continue;
    }
    for (const Passaggio& comune : passo.comuni->Passi()) passi.emplace_back(comune).cifra.clear();
    passi.back().cifra = passo.cifra;
  }
  return passi;
}

std::string_view Spiegazione::Cifra() const {
  const auto principale = std::find_if(passi.rbegin(), passi.rend(),
                                       [](const Passaggio& passo) { return !passo.cifra.empty(); });
  return principale == passi.rend() ? std::string_view() : principale->cifra;
}

void Spiegazioni::Aggiungi(std::string_view stampato, Catena passi) {
  const auto nuovo = stampato.substr(std::min(letto_, stampato.size()));
  fini_ += static_cast<std::size_t>(std::count(nuovo.begin(), nuovo.end(), '\n'));
  letto_ = stampato.size();
  const bool finita = stampato.ends_with('\n');
  const std::size_t numero = finita ? fini_ : fini_ + 1;
  if (righe_.empty() || righe_.back().riga != numero) righe_.push_back({numero, "", {}});
  svolte_ = std::min(svolte_, righe_.size() - 1);
  Spiegazione& spiegazione = righe_.back();
  while (stampato.ends_with('\n') || stampato.ends_with('\r')) stampato.remove_suffix(1);
  spiegazione.testo = stampato.substr(stampato.rfind('\n') + 1);
  spiegazione.passi = Unite(std::move(spiegazione.passi), std::move(passi));
}

const std::vector<Spiegazione>& Spiegazioni::Righe() const {
  for (; svolte_ < righe_.size(); ++svolte_) {
    Spiegazione& riga = righe_[svolte_];
    riga.testo = SenzaSpaziDoppi(riga.testo);
    riga.passi = Svolta(riga.passi);
  }
  return righe_;
}

const Spiegazione* Spiegazioni::Della(std::size_t riga) const {
  const auto trovata = std::ranges::lower_bound(Righe(), riga, {}, &Spiegazione::riga);
  return trovata == righe_.end() || trovata->riga != riga ? nullptr : &*trovata;
}

std::string CifraEsatta(double valore) {
  if (valore == 0) return "0";
  std::array<char, kCifreMassime> cifre;
  char* const fine = cifre.data() + cifre.size();
  return Italiana(
      {cifre.data(),
       std::to_chars(cifre.data(), fine, std::fabs(valore), std::chars_format::fixed).ptr},
      valore < 0);
}

std::string CifraADecimali(double valore, int decimali) {
  std::array<char, kCifreMassime> cifre;
  char* const fine = cifre.data() + cifre.size();
  return Italiana({cifre.data(), std::to_chars(cifre.data(), fine, std::fabs(valore),
                                               std::chars_format::fixed, std::max(decimali, 0))
                                     .ptr},
                  valore < 0);
}

std::string CadeNelTaglio(const Taglio& taglio) {
  const std::string prima = CifraEsatta(taglio.prima);
  const auto virgola = prima.find(',');
  const int decimali =
      virgola == std::string::npos ? 0 : static_cast<int>(prima.size() - virgola - 1);
  return CifraADecimali(taglio.prima - taglio.dopo, decimali);
}

std::string ScriviConto(std::string_view forma, std::initializer_list<Termine> termini) {
  std::string conto;
  for (const Termine& termine : termini) {
    const auto posto = std::min(forma.find("{}"), forma.size());
    conto += forma.substr(0, posto);
    forma.remove_prefix(std::min(posto + 2, forma.size()));
    if (const auto* testo = std::get_if<std::string>(&termine)) {
      conto += *testo;
      continue;
    }
    const double numero = std::get<double>(termine);
    const bool chiuso = numero < 0 && !conto.empty();
    conto += chiuso ? "(" + CifraEsatta(numero) + ")" : CifraEsatta(numero);
  }
  return conto += forma;
}

}  // namespace orm
