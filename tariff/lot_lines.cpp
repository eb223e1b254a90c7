#include "tariff/lot_lines.h"

#include <cmath>

#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/percentages.h"

namespace orm {

std::string TitoloLotto(std::size_t numero, std::string_view classe, std::string_view categoria) {
  return NumberText(static_cast<double>(numero)) + " - CLASSE/CATEGORIA    " +
         StringaClasseCategoria(classe, categoria);
}

std::string TestoQuota(double quota) { return FormattaCopia(quota, -2) + " x "; }

Percentuale Parcella::PercentualeTagliata(double lire, double valore) const {
  int decimali = 0;
  DecimaliPercentuale(lire, decimali, criteri.DecimaliTabelle);
  Percentuale p{valore, ""};
  p.testo = FormattaNumero(p.valore, decimali) + "%";
  return p;
}

Percentuale Parcella::PercentualeDaTabellaA(double importo, int periodo, std::string_view classe,
                                            std::string_view categoria) const {
  Percentuale p;
  double lire = ImportoInLire(importo);
  StringaPercentualeTabellaA(lire, periodo, classe, categoria, criteri, p.valore, p.testo);
  return p;
}

Percentuale Parcella::PercentualeDaTabellaNuova(double importo, std::string_view classe,
                                                std::string_view categoria) const {
  if (importo == 0) return {0, "0 %"};
  double lire = ImportoInLire(importo), valore = 0;
  PercentualeTabellaNuova(lire, classe, categoria, valore);
  return PercentualeTagliata(lire, valore);
}

Percentuale Parcella::PercentualeDaTabellaC(int periodo, double lire) const {
  double valore = 0;
  PercentualeTabellaContabilita(periodo, lire, valore);
  return PercentualeTagliata(lire, valore);
}

void Parcella::StampaLavori(double importo) {
  uscita.Tab(kColonnaLavori);
  StampaCampo(TestoImporto(importo), TipoImporto::Lavori);
}

void Parcella::StampaLavori(int colonna, std::string_view voce, double importo) {
  uscita.Tab(colonna).Text(voce);
  StampaLavori(importo);
}

void Parcella::StampaProgettoSpecifica(int colonna, double importo) {
  if (importo == 0) return;
  StampaLavori(colonna, importo > 0 ? " - LAVORI DI PROGETTO" : " - LAVORI PROGETTO ORIGINARIO",
               std::fabs(importo));
}

void Parcella::StampaDirezioneSpecifica(int colonna, std::string_view TipoParcella,
                                        double importo) {
  if (importo > kDirezioneMinimaStampata)
    StampaLavori(colonna,
                 TipoParcella == "CONSUNTIVA" ? " - IMPORTO CONSUNTIVO LORDO"
                                              : " - LAVORI DIRETTI          ",
                 importo);
}

void Parcella::StampaDirezioneOnorari(std::string_view TipoParcella, double importo) {
  if (importo > kDirezioneMinimaStampata)
    StampaLavori(3,
                 TipoParcella == "CONSUNTIVA" ? " - Importo consuntivo lordo" : " - Lavori diretti",
                 importo);
}

void Parcella::StampaPercentuale(std::string_view voce, const Percentuale& percentuale, double base,
                                 int colonna) {
  uscita.Text(voce).Text(percentuale.testo).Tab(colonna).Text(" su  ");
  StampaLavori(base);
}

double Parcella::StampaOnorario(const RigaFormula& f, double onorario) {
  const std::string aliquota = FormattaCopia(f.aliquota, f.decimali);
  std::string etichetta(f.inizio);
  etichetta += f.percentualePrima ? f.percentuale.testo + " x " + aliquota
                                  : aliquota + " x " + f.percentuale.testo;
  etichetta += " x " + f.importo;
  etichetta += f.fattori;
  if (f.conCompensi) etichetta += StringaCoefficiente;
  onorario = IntInLire(onorario);
  StampaRigaOnorario(1, etichetta + " =", onorario);
  return onorario;
}

void Parcella::StampaVoce(std::string_view titolo, std::string formula, double onorario) {
  uscita.Line(Numero() + " " + std::string(titolo));
  onorario = IntInLire(onorario);
  StampaRigaOnorario(1, formula, onorario);
  TotaleGenerale += onorario;
}

// In Lire the cut comes before the division by 100, as nowhere else in these notes.
double Parcella::StampaCertificato(int periodo, double SommaDirezione) {
  uscita.Line("CERTIFICATO REGOLARE ESECUZIONE  ( tab. C )");
  const Percentuale p = PercentualeDaTabellaC(periodo, ImportoInLire(SommaDirezione));
  double compenso = IntInLire(p.valore * SommaDirezione * Coefficiente) / 100;
  StampaRigaOnorario(1, " " + p.testo + " x " + TestoImporto(SommaDirezione) + StringaCoefficiente,
                     compenso);
  return compenso;
}

}  // namespace orm
