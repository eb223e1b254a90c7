// The fee of expropriation plans: a fixed rate for each unit.
#include <limits>
#include <vector>

#include "cases/ppe/data.h"
#include "cases/ppe/ppe.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/table_expropriation.h"
#include "tariff/money.h"
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
  Conto Prodotto(std::int16_t numero, const TariffaPpe& tariffa) const;
  Passaggio PassoTariffa(const TariffaPpe& tariffa) const;
  void CalcolaQuantita(const char* titolo, std::int16_t numero, const TariffaPpe& tariffa);
  void CalcolaVerbale();
  void StampaBlocco(const char* titolo, const std::string& formula, const Conto& conto,
                    const std::vector<const TariffaPpe*>& tariffe);

  const DatiPpe& d;
};

// In Lire a product is one of 32-bit whole numbers, and a greater one a failure; the sums are not.
Conto NotaPpe::Prodotto(std::int16_t numero, const TariffaPpe& tariffa) const {
  try {
    if (ModoLire) CheckedProduct32(numero, tariffa.lire);
    return Conto(numero) * Tariffa(tariffa);
  } catch (const RuntimeFailure& failure) {
    const int massimo = std::numeric_limits<std::int32_t>::max() / tariffa.lire;
    throw RuntimeFailure(failure.Reason() + "\n" + NumberText(numero) + Testo(tariffa) +
                         " : in Lire il numero può essere al massimo " + NumberText(massimo) + ".");
  }
}

void NotaPpe::StampaDati() {
  const auto riga = [this](const char* etichetta, std::int16_t numero, const char* campo) {
    if (numero == 0) return;
    uscita.Text(etichetta).Bare(numero).EndLine();
    SpiegaDato(campo, numero);
  };
  uscita.Line(kRigaDatiParcella);
  riga("Numero Partite catastali    : ", d.NumPartite, "Numero PARTITE CATASTALI");
  riga("Numero Particelle catastali : ", d.NumParticelle, "Numero PARTICELLE CATASTALI");
  if (d.NumParticelleVerbale + d.NumFabbricati != 0) {
    uscita.Line("Redazione verbale di consistenza");
    riga("relativo a Numero Particelle catastali : ", d.NumParticelleVerbale,
         "VERBALE DI CONSISTENZA, Numero delle PARTICELLE CATASTALI");
    riga("relativo a Numero Fabbricati           : ", d.NumFabbricati,
         "VERBALE DI CONSISTENZA, Numero FABBRICATI");
  }
  riga("Numero Frazionamenti : ", d.NumFrazionamenti, "Numero dei FRAZIONAMENTI");
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
    StampaBlocco(titolo, " n° " + ConSegno(numero) + Testo(tariffa), Prodotto(numero, tariffa),
                 {&tariffa});
}

// In Euro most rates are those in Lire, brought over to the cent before anything is counted.
Passaggio NotaPpe::PassoTariffa(const TariffaPpe& tariffa) const {
  std::string regola = "Legge 143/1949, compenso fisso per " + std::string(tariffa.cosa);
  if (!ModoLire && tariffa.euro != 0) {
    Passaggio passo = PassoImporto(std::move(regola), tariffa.euro);
    passo.Annota("Questa cifra in Euro non è la conversione delle Lire");
    return passo;
  }
  return Parcella::PassoTariffa(std::move(regola), tariffa.lire);
}

void NotaPpe::CalcolaVerbale() {
  if (d.NumParticelleVerbale + d.NumFabbricati == 0) return;
  std::string formula = Testo(kTariffaVerbale);
  Conto importo = Tariffa(kTariffaVerbale);
  std::vector<const TariffaPpe*> tariffe{&kTariffaVerbale};
  const auto addendo = [&](std::int16_t numero, const TariffaPpe& tariffa) {
    if (numero == 0) return;
    formula += " +" + ConSegno(numero) + Testo(tariffa);
    importo += Prodotto(numero, tariffa);
    tariffe.push_back(&tariffa);
  };
  addendo(d.NumParticelleVerbale, kTariffaParticellaVerbale);
  addendo(d.NumFabbricati, kTariffaFabbricato);
  StampaBlocco("Onorario per verbale di consistenza ", formula, importo, tariffe);
}

// The fee of a block: its text, how it comes about, and the amount.
void NotaPpe::StampaBlocco(const char* titolo, const std::string& formula, const Conto& conto,
                           const std::vector<const TariffaPpe*>& tariffe) {
  uscita.Line(titolo).Text(formula + " ");
  double importo = conto;
  StampaImporto(importo);
  Spiega([&] {
    Catena catena;
    for (const TariffaPpe* tariffa : tariffe) catena.push_back(PassoTariffa(*tariffa));
    const bool verbale = tariffe[0] == &kTariffaVerbale;
    catena.push_back(PassoImporto(verbale ? "Onorario: la quota fissa, e ogni numero dei dati per "
                                            "il suo compenso"
                                          : "Onorario: il numero dei dati per il compenso fisso",
                                  conto));
    if (tariffe[0] == &kTariffaPartita && ModoLire)
      catena.back().note = {"La riga scrive 106.0000, con uno zero di troppo, e conta 106.000"};
    return catena;
  });
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
  nota.ChiudiParcella(nota.TotaleGenerale, 0);
  return nota;
}

}  // namespace orm
