#include "jobs/job_search.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

// The accented letters of Latin 1 from U+00C0 on, without accents; a full stop stands for itself.
constexpr std::string_view kSenzaAccento =
    "aaaaaaaceeeeiiiidnooooo.ouuuuy.saaaaaaaceeeeiiiidnooooo.ouuuuy.y";

char32_t Semplice(char32_t c) {
  if (c >= U'A' && c <= U'Z') return c + (U'a' - U'A');
  if (c >= 0xC0 && c <= 0xFF && kSenzaAccento[c - 0xC0] != '.')
    return static_cast<unsigned char>(kSenzaAccento[c - 0xC0]);
  if (c == 0x2019) return U'\'';
  return c;
}

bool SonoCifre(std::string_view testo) {
  return !testo.empty() && testo.find_first_not_of("0123456789") == std::string_view::npos;
}

struct Importo {
  std::string intero, cents;
};

// "12.500,00", "12500", "12500.5": an amount as people type it, or nothing.
std::optional<Importo> ImportoScritto(std::string_view testo) {
  auto marca = testo.rfind(',');
  // A full stop alone parts decimals where what follows cannot be thousands.
  if (marca == std::string_view::npos && testo.find('.') == testo.rfind('.'))
    if (const auto punto = testo.find('.'); testo.size() - punto != 4) marca = punto;
  Importo importo;
  for (const char c : testo.substr(0, std::min(marca, testo.size())))
    if (c != '.') importo.intero += c;
  if (marca < testo.size()) importo.cents = testo.substr(marca + 1);
  if (!SonoCifre(importo.intero) || importo.cents.size() > 2) return std::nullopt;
  if (!importo.cents.empty() && !SonoCifre(importo.cents)) return std::nullopt;
  if (importo.cents.size() == 1) importo.cents += '0';
  importo.intero.erase(0,
                       std::min(importo.intero.find_first_not_of('0'), importo.intero.size() - 1));
  return importo;
}

// By its first figures an amount is found from the third on: fewer are numbers of a text.
bool Risponde(double importo, const std::string& intero, const std::string& cents) {
  const auto tutti = std::llround(std::fabs(importo) * 100);
  const std::string cifre = NumberText(static_cast<double>(tutti / 100));
  if (cents.empty()) return cifre == intero || (intero.size() >= 3 && cifre.starts_with(intero));
  const std::string centesimi = NumberText(static_cast<double>(100 + tutti % 100)).substr(1);
  return cifre == intero && centesimi == cents;
}

}  // namespace

std::string SenzaAccenti(std::string_view utf8) {
  std::string testo;
  testo.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const char32_t c = Semplice(NextCharacter(utf8, i));
    if (c != U' ' || (!testo.empty() && testo.back() != ' ')) AppendCharacter(testo, c);
  }
  return TrimRight(testo);
}

Richiesta::Richiesta(std::string_view testo) {
  const std::string tutto = SenzaAccenti(testo);
  for (std::size_t inizio = 0; inizio < tutto.size();) {
    const auto fine = std::min(tutto.find(' ', inizio), tutto.size());
    Parola parola{tutto.substr(inizio, fine - inizio), {}, {}};
    inizio = fine + 1;
    if (parola.testo == "€" || parola.testo == "£" || parola.testo == "l.") continue;
    if (const auto importo = ImportoScritto(parola.testo)) {
      parola.intero = importo->intero;
      parola.cents = importo->cents;
    }
    parole_.push_back(std::move(parola));
  }
}

bool Richiesta::EImporto(const Parola& parola, const ParcellaDelLavoro& parcella) {
  if (parola.intero.empty() || !parcella.netto) return false;
  return Risponde(parcella.netto->importo, parola.intero, parola.cents) ||
         (parcella.netto->euro && Risponde(*parcella.netto->euro, parola.intero, parola.cents));
}

bool Richiesta::Trova(const Lavoro& lavoro, const ParcellaDelLavoro& parcella) const {
  const std::string testo =
      SenzaAccenti(lavoro.nome + "\n" + parcella.codice + "\n" + parcella.nome + "\n" +
                   parcella.committente + "\n" + parcella.oggetto);
  return std::ranges::all_of(parole_, [&](const Parola& parola) {
    return testo.find(parola.testo) != std::string::npos || EImporto(parola, parcella);
  });
}

bool Richiesta::TrovaNome(const std::string& nome) const {
  const std::string testo = SenzaAccenti(nome);
  return std::ranges::all_of(
      parole_, [&](const Parola& parola) { return testo.find(parola.testo) != std::string::npos; });
}

Ricerca::Ricerca(Lavori& lavori, std::string_view testo) : lavori_(lavori), richiesta_(testo) {}

void Ricerca::Esamina(const std::string& nome) {
  LavoroTrovato trovato{nome, {}};
  bool lui = richiesta_.TrovaNome(nome);
  if (!richiesta_.Vuota()) {
    try {
      const Lavoro& lavoro = lavori_.DettagliGiaVisti(nome);
      for (std::size_t i = 0; i < lavoro.parcelle.size(); ++i)
        if (!lui && richiesta_.Trova(lavoro, lavoro.parcelle[i])) trovato.parcelle.push_back(i);
    } catch (const RuntimeFailure&) {
      // Gone since it was listed, or closed to us: its name is all that there is of it.
    }
  }
  lui |= !trovato.parcelle.empty();
  if (lui) trovati_.push_back(std::move(trovato));
}

bool Ricerca::Prosegui(std::chrono::milliseconds tempo) {
  const auto fine = std::chrono::steady_clock::now() + tempo;
  const auto& voci = lavori_.Voci();
  while (prossimo_ < voci.size()) {
    Esamina(voci[prossimo_++].nome);
    if (std::chrono::steady_clock::now() >= fine) break;
  }
  return prossimo_ >= voci.size();
}

}  // namespace orm
