#include "interchange/note_lines.h"

#include <algorithm>
#include <string_view>

namespace orm {
namespace {

struct VoceDiTotale {
  std::string_view inizio;
  const char* nome;
};
// How the lines of the final account begin; the first that fits counts.
constexpr VoceDiTotale kTotali[] = {
    {"TOTALE (Onorari e Compensi)", "totale"},
    {"Rid", "riduzione"},
    {"TOTALE RIDOTTO", "totaleRidotto"},
    {"a detrarre ACCONTI", "acconti"},
    {"COMPETENZE", "competenze"},
    {"ed in EURO", "competenzeInEuro"},
    {"Contributo INARCASSA", "contributoInarcassa"},
    {"Contributo INPS", "contributoInps"},
    {"I.V.A.", "iva"},
    {"Tassa Rilascio Parere", "tassaParere"},
    {"Totale onere finanziario Committente", "onereCommittente"},
};

std::string_view SenzaBordi(std::string_view testo, std::string_view bordo) {
  const auto inizio = std::min(testo.find_first_not_of(bordo), testo.size());
  return testo.substr(inizio, testo.find_last_not_of(bordo) + 1 - inizio);
}

// The number in a field, "L.    1.234,50".
std::string NumeroDelCampo(std::string_view campo) {
  campo.remove_prefix(campo.find_last_of(" \xAC") + 1);  // a blank, or the end of the Euro sign
  std::string numero(campo);
  std::erase(numero, '.');
  std::ranges::replace(numero, ',', '.');
  return numero;
}

const char* NomeDelTotale(std::string_view sezione, std::string_view voce) {
  if (sezione != SenzaBordi(kRigaTotali, "= ")) return nullptr;
  const auto trovato = std::ranges::find_if(
      kTotali, [voce](const VoceDiTotale& totale) { return voce.starts_with(totale.inizio); });
  return trovato == std::end(kTotali) ? nullptr : trovato->nome;
}

}  // namespace

std::vector<std::string_view> RigheDellaRelazione(const Parcella& nota) {
  std::vector<std::string_view> righe;
  const std::string_view testo = nota.uscita.Contents();
  for (std::size_t da = 0; da < testo.size();) {
    const std::size_t fine = std::min(testo.find('\n', da), testo.size());
    righe.push_back(testo.substr(da, fine - da));
    if (righe.back().ends_with('\r')) righe.back().remove_suffix(1);
    da = fine + 1;
  }
  return righe;
}

std::vector<RigaConImporto> RigheConImporto(const Parcella& nota) {
  std::vector<RigaConImporto> righe;
  RigaConImporto lette;  // what is known of the line that is read
  std::string_view sopra;
  auto importo = nota.stampati.begin();
  for (const std::string_view riga : RigheDellaRelazione(nota)) {
    if (importo == nota.stampati.end()) break;
    ++lette.riga;
    const bool titolo = IsTitolo(riga);
    const std::string_view testo = SenzaBordi(riga, "= ");
    if (riga.starts_with("===") && !testo.empty()) {
      lette.sezione = testo;
      lette.titolo.clear();
    } else if (titolo) {
      lette.titolo = SenzaBordi(riga, " ");
    }
    const auto inizio = static_cast<std::size_t>(riga.data() - nota.uscita.Contents().data());
    if (importo->campo <= inizio + riga.size()) {
      RigaConImporto& nuova = righe.emplace_back(lette);
      nuova.voce = SenzaBordi(riga.substr(0, importo->campo - inizio), " ");
      nuova.descrizione = SenzaBordi(sopra, " ");
      if (nuova.voce.empty()) nuova.voce.swap(nuova.descrizione);
      if (titolo) nuova.titolo.clear();
      nuova.importo = NumeroDelCampo(riga.substr(importo->campo - inizio));
      nuova.tipo = importo->tipo;
      nuova.inEuro = importo->inEuro;
      nuova.totale = NomeDelTotale(nuova.sezione, nuova.voce);
      ++importo;
      sopra = {};
    } else {
      sopra = titolo || riga.starts_with("===") ? std::string_view() : riga;
    }
  }
  return righe;
}

}  // namespace orm
