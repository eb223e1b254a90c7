// The fee of surveys of buildings: a rate for the area of each plan and elevation, for the volume
// of each section.
#include "cases/rim/data.h"
#include "cases/rim/rim.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/unit_rate.h"

namespace orm {
namespace {

class NotaRim : public Parcella {
 public:
  NotaRim(Parcella parcella, const DatiRim& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaOnorari();
  void CalcolaMaggiorazioni();

 private:
  void CalcolaElaborato(const ElaboratoRim& e);

  const DatiRim& d;
};

void NotaRim::StampaDati() {
  const auto riga = [this](const char* etichetta, double quantita) {
    uscita.Tab(5).Text(etichetta).Tab(kColonnaLavori).Bare(quantita).EndLine();
  };
  uscita.Line(kRigaDatiParcella);
  for (const ElaboratoRim& e : d.Elaborati) {
    uscita.Text(Numero() + " " + e.Tipo().nome);
    if (e.Pianta()) uscita.Text(" ").Text(kScaleRim[e.PostoScala()]);
    uscita.EndLine();
    riga(e.Sezione() ? " - Volume [mc] " : " - Superficie [mq] ", e.Quantita);
    if (e.Numero > 1) riga(" - Numero ", e.Numero);
  }
}

void NotaRim::CalcolaOnorari() {
  uscita.Line(kRigaOnorariCompensi);
  progressivo = 0;
  for (const ElaboratoRim& e : d.Elaborati) CalcolaElaborato(e);
}

void NotaRim::CalcolaElaborato(const ElaboratoRim& e) {
  const auto [u, testoU] = CifraInValuta(e.Tariffa(), ModoLire);
  const auto [f, testoF] = CifraInValuta(e.QuotaFissa(), ModoLire);
  const double q = e.Quantita, n = e.Numero;
  const std::string primo = FormattaCopia(q, 5) + " x " + testoU;
  std::string formula = primo;
  double onorario = q * u;
  if (e.Pianta()) {
    onorario += (n - 1) * kPianiOltreIlPrimo * q * u;
    if (n > 1)
      formula += " + " + FormattaCopia(n - 1, 0) + " x " + TestoQuota(kPianiOltreIlPrimo) + primo;
  }
  if (f != 0) {
    onorario += n * f;
    formula += " + " + FormattaCopia(n, 0) + " x " + testoF;
  }
  StampaVoce(e.Tipo().nome, formula, onorario);
}

void NotaRim::CalcolaMaggiorazioni() {
  std::size_t quante = 0;
  for (const std::string* risposta :
       {&d.RilievoStrutture, &d.RilievoImpianti, &d.EdificioVincolato})
    if (*risposta == "SI") ++quante;
  if (quante == 0) return;
  const double quota = kMaggiorazioniRim[quante - 1];
  StampaVoce("MAGGIORAZIONI", TestoQuota(quota) + TestoImporto(TotaleGenerale),
             quota * TotaleGenerale);
}

}  // namespace

Parcella CalcoloRim(Parcella parcella, const DatiRim& dati, double& totale) {
  NotaRim nota(std::move(parcella), dati);
  nota.ApriParcella("per le prestazioni di rilievo di manufatti relative a :");
  nota.StampaDati();
  nota.CalcolaOnorari();
  nota.CalcolaMaggiorazioni();
  totale = nota.TotaleGenerale;
  nota.ChiudiParcella(totale, 0);
  return nota;
}

}  // namespace orm
