// The amounts of a note as a table.
#include <algorithm>
#include <array>

#include "interchange/interchange.h"
#include "interchange/note_lines.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

// A text between quotes. One that a spreadsheet would take for a formula has an apostrophe in
// front, by which it stays a text.
std::string TestoCsv(std::string_view testo) {
  std::string campo = "\"";
  if (!testo.empty() && std::string_view("=+-@").find(testo.front()) != std::string_view::npos)
    campo += '\'';
  for (const char c : testo) {
    if (c == '"') campo += '"';
    campo += c;
  }
  return campo + '"';
}

}  // namespace

std::string ParcellaInCsv(const WorkFolder& folder, const std::string& codice, bool lire,
                          MarchiCsv marchi, const Date& oggi) {
  const bool italiani = marchi == MarchiCsv::Italiani;
  const char separa = italiani ? ';' : ',';
  std::string tabella = italiani ? "\xEF\xBB\xBF" : "";
  const auto riga = [&](const std::array<std::string, 8>& campi) {
    for (const std::string& campo : campi) {
      if (&campo != campi.data()) tabella += separa;
      tabella += campo;
    }
    tabella += "\r\n";
  };
  riga({"riga", "sezione", "titolo", "descrizione", "voce", "importo", "valuta", "tipo"});
  const Parcella nota = CalcolaDaCartella(folder, codice, lire, oggi);
  for (const RigaConImporto& r : RigheConImporto(nota)) {
    std::string importo = r.importo;
    if (italiani) std::ranges::replace(importo, '.', ',');
    // The dash before an item of works is no part of its name.
    const auto inizio = r.voce.starts_with("- ") ? std::size_t{2} : 0;
    riga({NumberText(static_cast<double>(r.riga)), TestoCsv(r.sezione), TestoCsv(r.titolo),
          TestoCsv(r.descrizione), TestoCsv(std::string_view(r.voce).substr(inizio)), importo,
          CodiceValuta(r.inEuro), r.tipo == TipoImporto::Lavori ? "lavori" : "onorari"});
  }
  return tabella;
}

}  // namespace orm
