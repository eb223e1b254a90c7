#include "structures/steel_beams/report.h"

#include <array>
#include <string>

#include "runtime/numbers.h"
#include "structures/loads/hollow_tiles.h"
#include "structures/structural_report.h"

namespace orm {
namespace {

// The words in which the two reports differ.
struct ParoleRelazione {
  const char* titolo;
  const char* elemento;
  const char* lunghezza;
  const char* altezza;
  const char* ripartiti;
  const char* diretti;
};
constexpr ParoleRelazione kSolaio = {" VERIFICA SICUREZZA SOLAIO PUTRELLE E LATERIZI",
                                     "Solaio n. :",
                                     "Luce netta                        ml. :  ",
                                     "Altezza totale sezione solaio     cm. :  ",
                                     "CARICHI RIPARTITI SUL SOLAIO",
                                     "CARICHI DIRETTAMENTE RIPARTITI SULLA PUTRELLA"};
constexpr ParoleRelazione kSbalzo = {" VERIFICA SICUREZZA SBALZI A PUTRELLE E LATERIZI",
                                     "Sbalzo n. :",
                                     "Lunghezza                         ml. :  ",
                                     "Altezza totale sezione sbalzo     cm. :  ",
                                     "CARICHI RIPARTITI SULLO SBALZO",
                                     "CARICHI DIRETTAMENTE APPLICATI LUNGO LA PUTRELLA"};

constexpr std::array<const char*, NumeroCarichiRipartiti> kCarichi = {
    "Solettina di ripartizione", "Peso Tavelloni",     "Peso Riempimento",
    "Altro Ripartito",           "Carichi Permanenti", "Sovraccarico di esercizio"};

void StampaDati(ReportPrinter& r, const ParoleRelazione& parole, bool primo, int numero,
                const DatiPutrelle& dati) {
  if (primo) r.Line(parole.titolo);
  r.Line();
  r.Text(parole.elemento).Bare(numero).EndLine();
  StampaDato(r, parole.lunghezza, FormatPattern(dati.lunghezza, kDueDecimali));
  StampaDato(r, parole.altezza, FormatPattern(dati.altezza, kDueDecimali));
  StampaDato(r, "Putrella NP                        mm :  ", dati.putrella);
  StampaDato(r, "Tipo di acciaio                       :  ", dati.acciaio);
  StampaDato(r, "Tipo di laterizio                     :  ", NomeTavellone(dati.tavellone));
}

void StampaCarichi(ReportPrinter& r, const ParoleRelazione& parole, const DatiPutrelle& dati) {
  StampaSezione(r, parole.ripartiti);
  for (std::size_t i = 0; i < kCarichi.size(); ++i)
    StampaValore(r, kCarichi[i], dati.ripartiti[i], kDueDecimali, "Kg/mq");
  StampaSezione(r, parole.diretti);
  StampaValore(r, "Peso Proprio Putrella", dati.pesoProprio, kDueDecimali, "Kg/m");
  StampaValore(r, "Diretto ripartito", dati.diretto, kDueDecimali, "Kg/m");
}

void StampaTensione(ReportPrinter& r, const char* nome, double calcolata, double ammessa) {
  StampaValoreConLimite(r, nome, calcolata, kDueDecimali, "Kg/cmq", kAmmessa, ammessa);
}

void StampaSollecitazioni(ReportPrinter& r, const VerificaPutrella& risultati) {
  StampaSezione(r, "SOLLECITAZIONI");
  StampaValore(r, "Taglio max", risultati.taglio, kDueDecimali, "Kg");
  StampaValore(r, "Momento max", risultati.momento, kDueDecimali, "Kg x ml");
}

// Of the loads above only the couple has no seismic part.
void StampaSisma(ReportPrinter& r, const FattoriSismici& sisma) {
  if (sisma.kv == 0) return;
  r.Text("Taglio e momento comprendono l'azione sismica : I x 0,4 = ");
  r.Text(FormatPattern(sisma.kv, "0.00")).Text(", s = ").Line(FormatPattern(sisma.s, "0.00"));
}

void StampaTensioni(ReportPrinter& r, const VerificaPutrella& risultati) {
  StampaSezione(r, "TENSIONI");
  StampaTensione(r, "Tensione normale max acciaio", risultati.calcolate.sigma,
                 risultati.ammesse.sigma);
  StampaTensione(r, "Tensione tangenziale max acciaio", risultati.calcolate.tau,
                 risultati.ammesse.tau);
}

bool TensioniOltre(const VerificaPutrella& risultati) {
  return risultati.calcolate.sigma > risultati.ammesse.sigma ||
         risultati.calcolate.tau > risultati.ammesse.tau;
}

void StampaFreccia(ReportPrinter& r, const char* nome, const Freccia& freccia) {
  StampaValoreConLimite(r, nome, freccia.calcolata, kDueDecimali, "cm", kAccettata,
                        freccia.accettata);
}

bool Oltre(const Freccia& freccia) { return freccia.calcolata > freccia.accettata; }

}  // namespace

void StampaSolaioP(ReportPrinter& relazione, bool primo, int numero, const DatiSolaioP& dati,
                   const RisultatiSolaioP& risultati) {
  StampaDati(relazione, kSolaio, primo, numero, dati);
  StampaCarichi(relazione, kSolaio, dati);
  StampaSollecitazioni(relazione, risultati);
  StampaTensioni(relazione, risultati);
  StampaSezione(relazione, "FRECCE");
  StampaFreccia(relazione, "Freccia per carico permanente", risultati.permanente);
  StampaFreccia(relazione, "Freccia per carico totale", risultati.totale);
  StampaValoriOltre(relazione, TensioniOltre(risultati) || Oltre(risultati.permanente) ||
                                   Oltre(risultati.totale));
}

void StampaSbalzoP(ReportPrinter& relazione, bool primo, int numero, const DatiSbalzoP& dati,
                   const VerificaPutrella& risultati) {
  StampaDati(relazione, kSbalzo, primo, numero, dati);
  StampaCarichi(relazione, kSbalzo, dati);
  StampaSezione(relazione, "CARICHI DI ESTREMITÁ per ml.");
  StampaValore(relazione, "Carico", dati.caricoEstremo, kDueDecimali, "Kg/ml");
  StampaValore(relazione, "Coppia", dati.coppiaEstrema, kDueDecimali, "Kg x m/ml");
  StampaSollecitazioni(relazione, risultati);
  StampaSisma(relazione, dati.sisma);
  StampaTensioni(relazione, risultati);
  StampaValoriOltre(relazione, TensioniOltre(risultati));
}

}  // namespace orm
