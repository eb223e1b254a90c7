// The fee of estimates: for each good the percentage of Table F, which the person gives.
#include "cases/pes/data.h"
#include "cases/pes/pes.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

class NotaPes : public Parcella {
 public:
  NotaPes(Parcella parcella, const DatiPes& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaSpecifica();
  void CalcolaCompensi();
  void CalcolaOnorari();

 private:
  const DatiPes& d;
};

void NotaPes::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (const BenePes& bene : d.Beni) {
    uscita.Line(Numero() + " " + bene.Descrizione);
    StampaLavori(5, " - Valore stimato ", bene.Valore, "VALORE STIMATO");
  }
}

void NotaPes::CalcolaCompensi() {
  Conto somma = Zero();
  for (const BenePes& bene : d.Beni) somma += bene.Valore;
  CompensiSuLavori(somma, "Somma dei valori stimati");
}

void NotaPes::CalcolaOnorari() {
  uscita.Line(kRigaOnorariCompensi);
  progressivo = 0;
  for (const BenePes& bene : d.Beni) {
    double P = bene.PercentualeTabellaF;
    const std::string percentuale = FormattaNumero(P, 5);
    const Conto onorario = Conto(bene.Valore) * P / 100 * Coefficiente;
    StampaVoce(bene.Descrizione,
               percentuale + "% x " + TestoImporto(bene.Valore) + StringaCoefficiente + " =",
               onorario, [&] {
                 Passaggio tabellaF =
                     PassoDato("PERCENTUALE DELLA TABELLA F", bene.PercentualeTabellaF, "%");
                 tabellaF.tagli = {{TipoTaglio::Decimali, 5, bene.PercentualeTabellaF, P}};
                 return CatenaOnorario({P, percentuale, {std::move(tabellaF)}}, onorario,
                                       {"Perizia estimativa (artt. 24-28), Tabella F: valore "
                                        "stimato e percentuale, per il coefficiente dei compensi"});
               });
  }
}

}  // namespace

Parcella CalcoloPes(Parcella parcella, const DatiPes& dati) {
  NotaPes nota(std::move(parcella), dati);
  nota.ApriParcella("per le prestazioni di perizia estimativa relative a :");
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaOnorari();
  nota.ChiudiConCompensi();
  return nota;
}

}  // namespace orm
