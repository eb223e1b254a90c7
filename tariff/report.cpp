// The frame of a report.
#include "tariff/report.h"

#include <algorithm>

#include "runtime/failure.h"
#include "tariff/money.h"
#include "tariff/user_data.h"

namespace orm {
namespace {

// The text of a fee, which is cut to it.
std::string ImportoOnorario(const RunState& stato, double& valore) {
  return StringaImporto(FormattaNumero(valore, stato.DecimaliValuta()), TipoImporto::Onorari,
                        stato.ModoLire);
}

}  // namespace

std::string StringaImporto(std::string_view testo, TipoImporto tipo, bool modoLire) {
  const std::size_t larghezza = tipo == TipoImporto::Lavori ? 16 : 14;
  const std::size_t lunghezza = Characters(testo);
  if (lunghezza > larghezza)
    throw RuntimeFailure("L'importo " + std::string(testo) +
                         " è troppo lungo per la sua colonna nella parcella.");
  return (modoLire ? "L. " : "€") + Blanks(larghezza - lunghezza) + std::string(testo);
}

void StampaRigaOnorario(RunState& stato, int tab, std::string& etichetta, double& valore) {
  constexpr std::size_t lunga = 54;
  const std::string importo = ImportoOnorario(stato, valore);
  if (Characters(etichetta) >= lunga) {
    const auto rientro = std::min(etichetta.find_first_not_of(' '), etichetta.size());
    etichetta = Blanks(rientro) + TogliSpazi(etichetta);
  }
  ReportPrinter& stampa = stato.NumFileUscita;
  if (Characters(etichetta) < lunga)
    stampa.Tab(tab).Text(etichetta).Tab(kColonnaImporto).Line(importo);
  else
    stampa.Line(etichetta + " " + importo);
}

void StampaRigaOnorario(RunState& stato, int tab, std::string&& etichetta, double& valore) {
  StampaRigaOnorario(stato, tab, etichetta, valore);
}

void StampaFormula(RunState& stato, std::string_view formula, double& valore) {
  constexpr std::size_t lunga = 44;
  const std::string importo = ImportoOnorario(stato, valore);
  ReportPrinter& stampa = stato.NumFileUscita;
  stampa.Text(formula);
  if (Characters(formula) < lunga)
    stampa.Tab(kColonnaImporto).Line(importo);
  else
    stampa.Line(" " + importo);
}

void StampaAllineataVirgola(RunState& stato, std::string_view testo, int colonna) {
  const auto virgola = testo.find(',');
  const auto prima = static_cast<int>(Characters(testo.substr(0, virgola)));
  stato.NumFileUscita.Tab(colonna - prima).Line(testo);
}

void ApriParcella(RunState& stato, const std::string& fileIntestazione, std::string_view frase) {
  const DatiProfessionista utente = LeggiDatiProfessionista(stato.folder);
  const Intestazione intestazione = LeggiIntestazione(stato.folder, fileIntestazione);
  ReportPrinter& stampa = stato.NumFileUscita;
  stampa.Tab(15).Line("PARCELLA DELLE COMPETENZE PROFESSIONALI");
  stampa.Tab(3).Line("( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )");
  stampa.Line("dovute da : " + intestazione.Committente);
  stampa.Line("all' " + utente.Professione + " " + utente.Nome);
  stampa.Line(frase);
  stampa.Line(intestazione.Oggetto);
  if (!intestazione.Documenti.empty()) stampa.Line(intestazione.Documenti);
  if (!intestazione.Note.empty()) stampa.Line(intestazione.Note);
}

}  // namespace orm
