// The fee of surveys of buildings: a rate for the area of each plan and elevation, for the volume
// of each section.
#include "cases/rim/data.h"
#include "cases/rim/rim.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/unit_rate.h"

namespace orm {
namespace {

// What the forms call them.
const char* CampoQuantita(const ElaboratoRim& e) {
  return e.Sezione() ? "VOLUME [mc]" : "SUPERFICIE [mq]";
}
const char* Unita(const ElaboratoRim& e) { return e.Sezione() ? "mc" : "mq"; }
const char* CampoNumero(const ElaboratoRim& e) {
  return e.Pianta() ? "NUMERO DEI PIANI" : "NUMERO DEI PROSPETTI";
}

class NotaRim : public Parcella {
 public:
  NotaRim(Parcella parcella, const DatiRim& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaOnorari();
  void CalcolaMaggiorazioni();

 private:
  void CalcolaElaborato(const ElaboratoRim& e);
  Catena CatenaElaborato(const ElaboratoRim& e, const Conto& onorario) const;

  const DatiRim& d;
};

void NotaRim::StampaDati() {
  const auto riga = [this](const char* etichetta, double quantita, const char* campo,
                           const char* unita) {
    uscita.Tab(5).Text(etichetta).Tab(kColonnaLavori).Bare(quantita).EndLine();
    SpiegaDato(campo, quantita, unita);
  };
  uscita.Line(kRigaDatiParcella);
  for (const ElaboratoRim& e : d.Elaborati) {
    uscita.Text(Numero() + " " + e.Tipo().nome);
    if (e.Pianta()) uscita.Text(" ").Text(kScaleRim[e.PostoScala()]);
    uscita.EndLine();
    riga(e.Sezione() ? " - Volume [mc] " : " - Superficie [mq] ", e.Quantita, CampoQuantita(e),
         Unita(e));
    if (e.Numero > 1) riga(" - Numero ", e.Numero, CampoNumero(e), "");
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
  Conto onorario = Conto(q) * u;
  if (e.Pianta() && n != 1) {
    onorario += Conto(n - 1) * kPianiOltreIlPrimo * q * u;
    if (n > 1)
      formula += " + " + FormattaCopia(n - 1, 0) + " x " + TestoQuota(kPianiOltreIlPrimo) + primo;
  }
  if (f != 0) {
    onorario += Conto(n) * f;
    formula += " + " + FormattaCopia(n, 0) + " x " + testoF;
  }
  StampaVoce(e.Tipo().nome, formula, onorario, [&] { return CatenaElaborato(e, onorario); });
}

Catena NotaRim::CatenaElaborato(const ElaboratoRim& e, const Conto& onorario) const {
  std::string voce = std::string("D.M. 4-4-2001, Tabella B3.2, ") + e.Tipo().nome;
  if (e.Pianta()) voce += std::string(", scala ") + kScaleRim[e.PostoScala()];
  Catena catena{PassoTariffa(
      voce + (e.Sezione() ? ": tariffa a metro cubo" : ": tariffa a metro quadro"), e.Tariffa())};
  if (e.QuotaFissa() != 0)
    catena.push_back(PassoTariffa(
        voce + (e.Pianta() ? ": quota fissa di ogni piano" : ": quota fissa di ogni prospetto"),
        e.QuotaFissa()));
  catena.push_back(PassoDato(CampoQuantita(e), e.Quantita, Unita(e)));
  if (!e.Sezione()) catena.push_back(PassoDato(CampoNumero(e), e.Numero));
  std::string regola = "Onorario: misura per tariffa";
  if (e.Pianta() && e.Numero > 1)
    regola += "; ogni piano oltre il primo, di uguale superficie, ne dà 0,75";
  if (e.QuotaFissa() != 0) regola += "; in più le quote fisse";
  catena.push_back(PassoOnorario(std::move(regola), onorario));
  if (e.Pianta() && e.QuotaFissa() == 0)
    catena.back().Annota("A questa scala le piante non hanno quota fissa");
  return catena;
}

void NotaRim::CalcolaMaggiorazioni() {
  std::size_t quante = 0;
  std::string quali;
  for (const auto& [risposta, nome] : {std::pair{&d.RilievoStrutture, "rilievo delle strutture"},
                                       {&d.RilievoImpianti, "impianti tecnici complessi"},
                                       {&d.EdificioVincolato, "edificio vincolato"}})
    if (*risposta == "SI") quali += (quante++ == 0 ? "" : ", ") + std::string(nome);
  if (quante == 0) return;
  const double quota = kMaggiorazioniRim[quante - 1];
  const Conto maggiorazione = quota * TotaleGenerale;
  StampaVoce("MAGGIORAZIONI", TestoQuota(quota) + TestoImporto(TotaleGenerale), maggiorazione,
             [&]() -> Catena {
               return {
                   PassoOnorario("D.M. 4-4-2001, Tabella B3.2, maggiorazioni di 0,30 ciascuna, "
                                 "sommate, sugli onorari (" +
                                     quali + ")",
                                 maggiorazione)};
             });
}

}  // namespace

Parcella CalcoloRim(Parcella parcella, const DatiRim& dati, double& totale) {
  NotaRim nota(std::move(parcella), dati);
  nota.ApriParcella("per le prestazioni di rilievo di manufatti relative a :");
  nota.StampaDati();
  nota.CalcolaOnorari();
  nota.CalcolaMaggiorazioni();
  totale = nota.TotaleGenerale;
  nota.ChiudiParcella(nota.TotaleGenerale, 0);
  return nota;
}

}  // namespace orm
