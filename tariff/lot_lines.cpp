#include "tariff/lot_lines.h"

#include <cmath>

#include "runtime/numbers.h"
#include "tariff/accessory_compensations.h"
#include "tariff/final_account.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/percentages.h"
#include "tariff/report.h"

namespace orm {
namespace {

constexpr int kColonnaLavori = 48;

// Cuts the percentage of an amount in Lire to its decimals.
std::string TestoPercentuale(const RunState& stato, double lire, double& valore) {
  int decimali = 0;
  DecimaliPercentuale(lire, decimali, stato.criteri.DecimaliTabelle);
  return FormattaNumero(valore, decimali);
}

std::string ImportoLavori(const RunState& stato, double importo) {
  return StringaImporto(TestoImporto(stato, importo), TipoImporto::Lavori, stato.ModoLire);
}

}  // namespace

double ImportoInLire(const RunState& stato, double importo) {
  return stato.ModoLire ? importo : EuroInLire(importo);
}

double IntInLire(const RunState& stato, double valore) {
  return stato.ModoLire ? Int(valore) : valore;
}

Percentuale PercentualeTagliata(const RunState& stato, double lire, double valore) {
  Percentuale p{valore, ""};
  p.testo = TestoPercentuale(stato, lire, p.valore) + "%";
  return p;
}

Percentuale PercentualeDaTabellaA(const RunState& stato, double importo, int periodo,
                                  std::string_view classe, std::string_view categoria) {
  Percentuale p;
  double lire = ImportoInLire(stato, importo);
  StringaPercentualeTabellaA(lire, periodo, classe, categoria, stato.criteri, p.valore, p.testo);
  return p;
}

Percentuale PercentualeDaTabellaNuova(const RunState& stato, double importo,
                                      std::string_view classe, std::string_view categoria) {
  if (importo == 0) return {0, "0 %"};
  double lire = ImportoInLire(stato, importo), valore = 0;
  PercentualeTabellaNuova(lire, classe, categoria, valore);
  return PercentualeTagliata(stato, lire, valore);
}

Compensi StampaCompensiAccessori(RunState& stato, double importo) {
  Compensi compensi;
  CompensiAccessori(stato, ImportoInLire(stato, importo), ModoCompensi::Stampa,
                    compensi.Coefficiente, compensi.StringaCoefficiente);
  return compensi;
}

std::string TestoImporto(const RunState& stato, double importo) {
  return FormattaCopia(importo, stato.DecimaliValuta());
}

std::string TitoloLotto(std::size_t numero, std::string_view classe, std::string_view categoria) {
  return NumberText(static_cast<double>(numero)) + " - CLASSE/CATEGORIA    " +
         StringaClasseCategoria(classe, categoria);
}

void StampaLavori(RunState& stato, int colonna, std::string_view voce, double importo) {
  stato.NumFileUscita.Tab(colonna)
      .Text(voce)
      .Tab(kColonnaLavori)
      .Line(ImportoLavori(stato, importo));
}

void StampaProgettoSpecifica(RunState& stato, int colonna, double importo) {
  if (importo == 0) return;
  StampaLavori(stato, colonna,
               importo > 0 ? " - LAVORI DI PROGETTO" : " - LAVORI PROGETTO ORIGINARIO",
               std::fabs(importo));
}

void StampaPercentuale(RunState& stato, std::string_view voce, const Percentuale& percentuale,
                       double base, int colonna) {
  stato.NumFileUscita.Text(voce)
      .Text(percentuale.testo)
      .Tab(colonna)
      .Text(" su  ")
      .Tab(kColonnaLavori)
      .Line(ImportoLavori(stato, base));
}

std::string_view VoceDirezioneSpecifica(std::string_view TipoParcella) {
  return TipoParcella == "CONSUNTIVA" ? " - IMPORTO CONSUNTIVO LORDO"
                                      : " - LAVORI DIRETTI          ";
}

std::string_view VoceDirezioneOnorari(std::string_view TipoParcella) {
  return TipoParcella == "CONSUNTIVA" ? " - Importo consuntivo lordo" : " - Lavori diretti";
}

double StampaOnorario(RunState& stato, const RigaFormula& f, double onorario) {
  std::string etichetta(f.inizio);
  etichetta += FormattaCopia(f.aliquota, f.decimali) + " x " + f.percentuale.testo + " x " +
               TestoImporto(stato, f.importo);
  etichetta += f.StringaCoefficiente;
  StampaRigaOnorario(stato, 1, etichetta + " =", onorario);
  return onorario;
}

// In Lire the cut comes before the division by 100, as nowhere else in these notes.
double StampaCertificato(RunState& stato, int periodo, double SommaDirezione,
                         const Compensi& compensi) {
  stato.NumFileUscita.Line("CERTIFICATO REGOLARE ESECUZIONE  ( tab. C )");
  const double lire = ImportoInLire(stato, SommaDirezione);
  double percentuale = 0;
  PercentualeTabellaContabilita(periodo, lire, percentuale);
  const std::string testo = TestoPercentuale(stato, lire, percentuale);
  double compenso = IntInLire(stato, percentuale * SommaDirezione * compensi.Coefficiente) / 100;
  StampaRigaOnorario(
      stato, 1,
      " " + testo + "% x " + TestoImporto(stato, SommaDirezione) + compensi.StringaCoefficiente,
      compenso);
  return compenso;
}

double SenzaCompensi(double onorario, const Compensi& compensi) {
  return compensi.Coefficiente == 0 ? 0 : onorario / compensi.Coefficiente;
}

void ChiudiConCompensi(RunState& stato, double totale, const Compensi& compensi,
                       double NonConglobati) {
  const double onorari =
      IntInLire(stato, SenzaCompensi(totale - NonConglobati, compensi) + NonConglobati);
  ChiudiParcella(stato, onorari, totale - onorari);
}

}  // namespace orm
