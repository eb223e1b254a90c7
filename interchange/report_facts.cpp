#include "interchange/report_facts.h"

#include <algorithm>
#include <cstdint>

#include "runtime/numbers.h"
#include "tariff/report.h"

namespace orm {
namespace {

std::string_view SenzaBianchi(std::string_view testo) {
  const auto inizio = std::min(testo.find_first_not_of(" \t\r"), testo.size());
  testo.remove_prefix(inizio);
  return testo.substr(0, testo.find_last_not_of(" \t\r") + 1);
}

// The text from the last line on that begins with `voce`; empty where there is none.
std::string_view DallaVoce(std::string_view testo, std::string_view voce) {
  for (auto dove = testo.rfind(voce); dove != std::string_view::npos;) {
    const auto prima = testo.find_last_not_of(" \t", dove == 0 ? 0 : dove - 1);
    if (dove == 0 || prima == std::string_view::npos || testo[prima] == '\n')
      return testo.substr(dove);
    dove = testo.rfind(voce, dove - 1);
  }
  return {};
}

// The first line of `righe`, without what it begins with.
std::string_view DopoLaVoce(std::string_view righe, std::string_view voce) {
  const auto riga = SenzaBianchi(righe.substr(0, std::min(righe.find('\n'), righe.size())));
  return riga.starts_with(voce) ? SenzaBianchi(riga.substr(voce.size())) : std::string_view();
}

std::string_view SenzaSimbolo(std::string_view testo) {
  // The Euro's mark in Windows-1252 and in UTF-8: a person may have saved the report in either.
  for (const std::string_view simbolo : {"L.", "\x80", "€"})
    if (testo.starts_with(simbolo)) return SenzaBianchi(testo.substr(simbolo.size()));
  return testo;
}

// "-1.234,50": figures in threes, no more than two behind the comma.
std::optional<double> Cifre(std::string_view testo) {
  std::string numero;
  const bool negativo = testo.starts_with('-');
  if (negativo) testo.remove_prefix(1);
  const auto virgola = std::min(testo.find(','), testo.size());
  const std::string_view intero = testo.substr(0, virgola), resto = testo.substr(virgola);
  for (std::size_t i = 0; i < intero.size(); ++i) {
    const bool posto = (intero.size() - i) % 4 == 0;
    if (posto ? intero[i] != '.' || i == 0 : intero[i] < '0' || intero[i] > '9')
      return std::nullopt;
    if (!posto) numero += intero[i];
  }
  if (numero.empty() || resto.size() > 3) return std::nullopt;
  if (!resto.empty()) {
    if (resto.size() < 2 || resto.find_first_not_of("0123456789", 1) != std::string::npos)
      return std::nullopt;
    numero += "." + std::string(resto.substr(1));
  }
  return ParseNumber((negativo ? "-" : "") + numero);
}

}  // namespace

std::optional<Netto> NettoDellaRelazione(std::string_view bytes, bool lire) {
  const std::string_view righe = DallaVoce(bytes, kVoceNetto);
  const std::string_view testo = SenzaSimbolo(DopoLaVoce(righe, kVoceNetto));
  const auto importo = Cifre(testo);
  if (!importo) return std::nullopt;
  Netto netto{*importo, (lire ? "L. " : "€ ") + std::string(testo), {}};
  const auto fine = righe.find('\n');
  if (lire && fine != std::string_view::npos)
    netto.euro = Cifre(DopoLaVoce(righe.substr(fine + 1), kVoceNettoInEuro));
  return netto;
}

std::optional<Date> GiornoDellaRelazione(std::string_view bytes) {
  constexpr std::string_view kLi = ", li ";  // between the city and the day
  for (std::string_view resto = DallaVoce(bytes, kVoceNetto); !resto.empty();) {
    const auto fine = std::min(resto.find('\n'), resto.size());
    const std::string_view riga = SenzaBianchi(resto.substr(0, fine));
    const auto li = riga.rfind(kLi);
    if (li != std::string_view::npos)
      if (const auto giorno = ParseDate(riga.substr(li + kLi.size()))) return giorno;
    resto.remove_prefix(std::min(fine + 1, resto.size()));
  }
  return std::nullopt;
}

}  // namespace orm
