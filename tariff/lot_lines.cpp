#include "tariff/lot_lines.h"

#include <cmath>

#include "runtime/numbers.h"
#include "tariff/chains/percentage_chains.h"
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
  LetturaTabella lettura;
  StringaPercentualeTabellaA(lire, periodo, classe, categoria, criteri, p.valore, p.testo,
                             &lettura);
  if (spiegazioni.Attive() && lire != 0)
    SpiegaTaglio(p, lire, lettura.percentuale,
                 [inLire = CatenaInLire(importo), lettura, periodo, c = std::string(classe),
                  k = std::string(categoria)] {
                   return Unite(inLire, CatenaTabellaA(lettura, periodo, c, k));
                 });
  return p;
}

Percentuale Parcella::PercentualeDaTabellaNuova(double importo, std::string_view classe,
                                                std::string_view categoria) const {
  if (importo == 0) return {0, "0 %"};
  double lire = ImportoInLire(importo), valore = 0;
  LetturaCurva lettura;
  PercentualeTabellaNuova(lire, classe, categoria, valore, &lettura);
  Percentuale p = PercentualeTagliata(lire, valore);
  if (spiegazioni.Attive())
    SpiegaTaglio(p, lire, valore,
                 [inLire = CatenaInLire(importo), lettura, lire, c = std::string(classe),
                  k = std::string(categoria)] {
                   return Unite(inLire, CatenaTabellaNuova(lettura, lire, c, k));
                 });
  return p;
}

Percentuale Parcella::PercentualeDaTabellaC(int periodo, double lire) const {
  double valore = 0;
  LetturaTabella lettura;
  PercentualeTabellaContabilita(periodo, lire, valore, &lettura);
  Percentuale p = PercentualeTagliata(lire, valore);
  if (spiegazioni.Attive())
    SpiegaTaglio(p, lire, valore, [=] { return CatenaTabellaC(lettura, periodo); });
  return p;
}

void Parcella::StampaLavori(double importo) {
  double mostrato = importo;
  const std::string testo = FormattaNumero(mostrato, DecimaliValuta());
  Ricorda(importo, mostrato, DecimaliValuta(), testo);
  uscita.Tab(kColonnaLavori);
  StampaCampo(testo, TipoImporto::Lavori);
}

void Parcella::StampaLavori(int colonna, std::string_view voce, double importo) {
  uscita.Tab(colonna).Text(voce);
  StampaLavori(importo);
}

void Parcella::StampaLavori(int colonna, std::string_view voce, const Conto& importo,
                            std::string_view campo) {
  StampaLavori(colonna, voce, importo);
  Spiega([&]() -> Catena { return {PassoDatoImporto(campo, importo)}; });
}

// An amount below 0 is shown without its minus.
void Parcella::StampaProgettoSpecifica(int colonna, const Conto& importo, std::string_view campo) {
  if (importo > 0) StampaLavori(colonna, " - LAVORI DI PROGETTO", importo, campo);
  if (importo >= 0) return;
  StampaLavori(colonna, " - LAVORI PROGETTO ORIGINARIO", std::fabs(importo));
  Spiega([&]() -> Catena {
    Passaggio senzaMeno = PassoImporto("Si mostra senza il meno", std::fabs(importo));
    senzaMeno.note = {
        "Il meno dice che questi lavori contano per la percentuale e non danno "
        "onorario"};
    return {PassoDatoImporto(campo, importo), std::move(senzaMeno)};
  });
}

void Parcella::StampaDirezioneSpecifica(int colonna, std::string_view TipoParcella,
                                        const Conto& importo, std::string_view campo) {
  if (importo > kDirezioneMinimaStampata)
    StampaLavori(colonna,
                 TipoParcella == "CONSUNTIVA" ? " - IMPORTO CONSUNTIVO LORDO"
                                              : " - LAVORI DIRETTI          ",
                 importo, campo);
}

void Parcella::StampaDirezioneOnorari(std::string_view TipoParcella, double importo,
                                      std::string_view campo) {
  if (importo > kDirezioneMinimaStampata)
    StampaLavori(3,
                 TipoParcella == "CONSUNTIVA" ? " - Importo consuntivo lordo" : " - Lavori diretti",
                 importo, campo);
}

// The percentage is the figure of the line: its steps stand behind those of the base, unless so
// many digits send the base to a line of its own.
void Parcella::StampaPercentuale(std::string_view voce, const Percentuale& percentuale,
                                 const Conto& base, int colonna, std::string_view regola) {
  const auto spiegaPercentuale = [&] {
    spiegazioni.Riga(uscita.Contents(), [&] {
      return percentuale.catena.empty() ? Catena{{"Su un importo di 0 la percentuale è 0"}}
                                        : percentuale.catena;
    });
  };
  uscita.Text(voce).Text(percentuale.testo);
  const bool aCapo = uscita.Column() > colonna;
  if (aCapo) spiegaPercentuale();
  uscita.Tab(colonna).Text(" su  ");
  StampaLavori(base);
  Spiega([&]() -> Catena { return {PassoImporto(std::string(regola), base)}; });
  if (!aCapo) spiegaPercentuale();
}

// The limit of Table A, where there are two.
void Parcella::StampaPercentuali(std::string_view voce, const PercentualiTabellaA& percentuali,
                                 const Conto& base, int colonna, std::string_view regola) {
  if (!percentuali.divise) return StampaPercentuale(voce, percentuali.entro, base, colonna, regola);
  const auto quote = QuoteDellImporto(percentuali, base);
  StampaPercentuale(voce, quote[0].percentuale, quote[0].importo, colonna,
                    "Limite della Tabella A");
  StampaPercentuale(voce, quote[1].percentuale, quote[1].importo, colonna,
                    std::string(regola) + ", meno il limite della Tabella A");
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
double Parcella::StampaCertificato(int periodo, const Conto& SommaDirezione) {
  uscita.Line("CERTIFICATO REGOLARE ESECUZIONE  ( tab. C )");
  const Percentuale p = PercentualeDaTabellaC(periodo, ImportoInLire(SommaDirezione));
  const Conto prodotto = p.valore * SommaDirezione * Coefficiente;
  const double intero = IntInLire(prodotto);
  double compenso = intero / 100;
  StampaRigaOnorario(1, " " + p.testo + " x " + TestoImporto(SommaDirezione) + StringaCoefficiente,
                     compenso);
  Spiega([&] {
    Catena catena = CatenaOnorario(
        p, prodotto,
        {"Percentuale per importo dei lavori diretti e coefficiente dei compensi accessori",
         Unite({PassoImporto("Somma dei lavori diretti", SommaDirezione)},
               CatenaInLire(SommaDirezione))});
    catena.push_back(
        PassoImporto("Certificato di regolare esecuzione, Tabella C: il centesimo del "
                     "prodotto",
                     Conto(intero) / 100));
    if (ModoLire) catena.back().Annota("Qui la parte intera si prende prima di dividere per 100");
    return catena;
  });
  return compenso;
}

}  // namespace orm
