// The money of a note and the frame of its report.
#include "tariff/report.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {

double Parcella::ImportoInLire(double importo) const {
  return ModoLire ? importo : EuroInLire(importo);
}

double Parcella::InValuta(double lire) const { return ModoLire ? lire : LireInEuro(lire); }

double Parcella::IntInLire(double valore) const { return ModoLire ? Int(valore) : valore; }

std::string Parcella::TestoImporto(double importo) const {
  return FormattaCopia(importo, DecimaliValuta());
}

bool IsTitolo(std::string_view riga) {
  if (riga.starts_with("===")) return true;
  riga.remove_prefix(std::min(riga.find_first_not_of(' '), riga.size()));
  const auto cifre = std::min(riga.find_first_not_of("0123456789"), riga.size());
  return cifre > 0 && riga.substr(cifre).starts_with(" - ");
}

namespace {

// Where a report stands, in the words of its reader: under which heading, on what line.
std::string DoveSiTrova(std::string_view stampato) {
  std::string_view titolo;
  while (true) {
    const auto fine = stampato.find("\r\n");
    if (fine == std::string_view::npos) break;
    if (IsTitolo(stampato.substr(0, fine))) titolo = stampato.substr(0, fine);
    stampato.remove_prefix(fine + 2);
  }
  std::string dove;
  for (const std::string_view riga : {titolo, stampato}) {
    const auto inizio = std::min(riga.find_first_not_of(" =-"), riga.size());
    const auto fine = std::min(riga.find_last_not_of(" =-") + 1, riga.size());
    if (inizio < fine)
      dove += (dove.empty() ? "\nNella parcella : " : ", ") +
              std::string(riga.substr(inizio, fine - inizio));
  }
  return dove;
}

}  // namespace

std::string Parcella::StringaImporto(std::string_view testo, TipoImporto tipo) const {
  const std::size_t larghezza = tipo == TipoImporto::Lavori ? 16 : 14;
  const std::size_t lunghezza = Characters(testo);
  if (lunghezza > larghezza)
    throw RuntimeFailure("L'importo " + std::string(testo) + " è troppo lungo per la colonna " +
                         (tipo == TipoImporto::Lavori ? "degli importi" : "degli onorari") +
                         ", di " + NumberText(static_cast<double>(larghezza)) + " caratteri." +
                         DoveSiTrova(uscita.Contents()));
  return (ModoLire ? "L. " : "€") + Blanks(larghezza - lunghezza) + std::string(testo);
}

void Parcella::StampaCampo(std::string_view testo, TipoImporto tipo, bool inEuro) {
  const std::string campo = StringaImporto(testo, tipo);
  SegnaImporto(tipo, inEuro);
  uscita.Line(campo);
}

void Parcella::ApriParcella(std::string_view frase) {
  stampati.reserve(64);  // as many as most notes have
  uscita.Tab(15).Line("PARCELLA DELLE COMPETENZE PROFESSIONALI");
  uscita.Tab(3).Line("( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )");
  uscita.Line("dovute da : " + intestazione.Committente);
  uscita.Line("all' " + utente.Professione + " " + utente.Nome);
  uscita.Line(frase);
  uscita.Line(intestazione.Oggetto);
  if (!intestazione.Documenti.empty()) uscita.Line(intestazione.Documenti);
  if (!intestazione.Note.empty()) uscita.Line(intestazione.Note);
}

std::string Parcella::Numero() { return NumberText(static_cast<double>(++progressivo)) + " -"; }

void Parcella::ConcludiRiga(double& valore, int decimali, bool inColonna) {
  const double prima = valore;
  const std::string testo = FormattaNumero(valore, decimali);
  Ricorda(prima, valore, decimali, testo);
  if (inColonna)
    uscita.Tab(kColonnaImporto);
  else
    uscita.Text(" ");
  StampaCampo(testo, TipoImporto::Onorari, !ModoLire || decimali != DecimaliValuta());
}

void Parcella::StampaRigaOnorario(int tab, std::string& etichetta, double& valore) {
  constexpr std::size_t lunga = 54;
  if (Characters(etichetta) >= lunga) {
    const auto rientro = std::min(etichetta.find_first_not_of(' '), etichetta.size());
    etichetta = Blanks(rientro) + TogliSpazi(etichetta);
  }
  const bool inColonna = Characters(etichetta) < lunga;
  if (inColonna) uscita.Tab(tab);
  uscita.Text(etichetta);
  ConcludiRiga(valore, DecimaliValuta(), inColonna);
}

void Parcella::StampaRigaOnorario(int tab, std::string&& etichetta, double& valore) {
  StampaRigaOnorario(tab, etichetta, valore);
}

void Parcella::StampaFormula(std::string_view formula, double& valore) {
  constexpr std::size_t lunga = 44;
  uscita.Text(formula);
  ConcludiRiga(valore, DecimaliValuta(), Characters(formula) < lunga);
}

void Parcella::StampaAllineataVirgola(std::string_view testo, int colonna) {
  const auto prima = static_cast<int>(Characters(testo.substr(0, testo.find(','))));
  uscita.Tab(colonna - prima).Line(testo);
}

}  // namespace orm
