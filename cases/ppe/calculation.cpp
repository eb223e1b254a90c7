// The fee of expropriation plans: a fixed rate for each unit.
#include <limits>

#include "cases/ppe/data.h"
#include "cases/ppe/ppe.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/table_expropriation.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// A number behind a text keeps the blank of its sign place: " n°  5", " + 1".
std::string ConSegno(std::int16_t numero) { return (numero < 0 ? "" : " ") + NumberText(numero); }

class NotaPpe : public Parcella {
 public:
  NotaPpe(Parcella parcella, const DatiPpe& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaOnorari();

 private:
  double Tariffa(const TariffaPpe& tariffa) const {
    return tariffa.euro != 0 && !ModoLire ? tariffa.euro : InValuta(tariffa.lire);
  }
  const char* Testo(const TariffaPpe& tariffa) const {
    return ModoLire ? tariffa.testoLire : tariffa.testoEuro;
  }
  double Prodotto(std::int16_t numero, const TariffaPpe& tariffa) const;
  void CalcolaQuantita(const char* titolo, std::int16_t numero, const TariffaPpe& tariffa);
  void CalcolaVerbale();
  void StampaBlocco(const char* titolo, const std::string& formula, double importo);

  const DatiPpe& d;
};

// In Lire a product is one of 32-bit whole numbers, and a greater one a failure; the sums are not.
double NotaPpe::Prodotto(std::int16_t numero, const TariffaPpe& tariffa) const {
  if (!ModoLire) return numero * Tariffa(tariffa);
  try {
    return CheckedProduct32(numero, tariffa.lire);
  } catch (const RuntimeFailure& failure) {
    const int massimo = std::numeric_limits<std::int32_t>::max() / tariffa.lire;
    throw RuntimeFailure(failure.Reason() + "\n" + NumberText(numero) + Testo(tariffa) +
                         " : in Lire il numero può essere al massimo " + NumberText(massimo) + ".");
  }
}

void NotaPpe::StampaDati() {
  const auto riga = [this](const char* etichetta, std::int16_t numero) {
    if (numero != 0) uscita.Text(etichetta).Bare(numero).EndLine();
  };
  uscita.Line(kRigaDatiParcella);
  riga("Numero Partite catastali    : ", d.NumPartite);
  riga("Numero Particelle catastali : ", d.NumParticelle);
  if (d.NumParticelleVerbale + d.NumFabbricati != 0) {
    uscita.Line("Redazione verbale di consistenza");
    riga("relativo a Numero Particelle catastali : ", d.NumParticelleVerbale);
    riga("relativo a Numero Fabbricati           : ", d.NumFabbricati);
  }
  riga("Numero Frazionamenti : ", d.NumFrazionamenti);
}

void NotaPpe::CalcolaOnorari() {
  uscita.Line(kRigaOnorariCompensi);
  CalcolaQuantita("Onorario in funzione delle Partite ", d.NumPartite, kTariffaPartita);
  CalcolaQuantita("Onorario in funzione delle Particelle ", d.NumParticelle, kTariffaParticella);
  CalcolaVerbale();
  CalcolaQuantita("Onorario in funzione dei frazionamenti ", d.NumFrazionamenti,
                  kTariffaFrazionamento);
}

void NotaPpe::CalcolaQuantita(const char* titolo, std::int16_t numero, const TariffaPpe& tariffa) {
  if (numero != 0)
    StampaBlocco(titolo, " n° " + ConSegno(numero) + Testo(tariffa), Prodotto(numero, tariffa));
}

void NotaPpe::CalcolaVerbale() {
  if (d.NumParticelleVerbale + d.NumFabbricati == 0) return;
  std::string formula = Testo(kTariffaVerbale);
  const auto addendo = [&](std::int16_t numero, const TariffaPpe& tariffa) {
    if (numero != 0) formula += " +" + ConSegno(numero) + Testo(tariffa);
    return Prodotto(numero, tariffa);
  };
  double importo = Tariffa(kTariffaVerbale);
  importo += addendo(d.NumParticelleVerbale, kTariffaParticellaVerbale);
  importo += addendo(d.NumFabbricati, kTariffaFabbricato);
  StampaBlocco("Onorario per verbale di consistenza ", formula, importo);
}

// The fee of a block: its text, how it comes about, and the amount.
void NotaPpe::StampaBlocco(const char* titolo, const std::string& formula, double importo) {
  uscita.Line(titolo).Text(formula + " ");
  StampaImporto(importo);
  TotaleGenerale += importo;
}

}  // namespace

Parcella CalcoloPpe(Parcella parcella, const DatiPpe& dati, double& totale) {
  NotaPpe nota(std::move(parcella), dati);
  nota.ApriParcella(
      "per le prestazioni di redazione di piani particellari di esproprio relative a :");
  nota.StampaDati();
  nota.CalcolaOnorari();
  totale = nota.TotaleGenerale;
  nota.ChiudiParcella(totale, 0);
  return nota;
}

}  // namespace orm
