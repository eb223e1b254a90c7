#include "tariff/accounting_block.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/explanations.h"
#include "tariff/law/table_e.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// Of a band, in the currency of the note; the last one has no upper limit.
std::pair<double, double> LimitiDellaFascia(std::size_t fascia, bool modoLire) {
  const auto limite = [&](std::size_t n) {
    if (n == 0 || n > kLimitiTabellaELire.size()) return 0.0;
    return modoLire ? kLimitiTabellaELire[n - 1] : kLimitiTabellaEEuro[n - 1];
  };
  return {limite(fascia - 1), limite(fascia)};
}

// What the coefficient stands for; nothing for one that the table does not know.
std::string TipoDiLavori(double coefficiente) {
  if (coefficiente == kCoefficienteAltreClassi) return " per le classi oltre la I";
  const auto* tipo =
      std::ranges::find(kLavoriClasse1, coefficiente, &LavoriContabilita::coefficiente);
  return tipo == kLavoriClasse1.end() ? "" : ", " + TrimRight(tipo->nome);
}

// The first row of its kind takes the amounts of the later ones.
void Riunisci(std::vector<RigaContabilita>& righe) {
  std::vector<RigaContabilita> unite;
  for (const RigaContabilita& riga : righe) {
    const auto uguale = std::ranges::find_if(unite, [&riga](const RigaContabilita& altra) {
      return altra.periodo == riga.periodo && altra.coefficiente == riga.coefficiente;
    });
    if (uguale == unite.end())
      unite.push_back(riga);
    else
      uguale->importo += riga.importo;
  }
  righe = std::move(unite);
}

}  // namespace

std::string CoefficienteInStringa(double coefficiente) {
  const bool noto =
      coefficiente == kCoefficienteAltreClassi ||
      std::ranges::count(kLavoriClasse1, coefficiente, &LavoriContabilita::coefficiente) > 0;
  return FormattaCopia(noto ? coefficiente : kLavoriClasse1.front().coefficiente, -2);
}

std::string NumeroContabilita(double valore, bool modoLire) {
  const std::string testo = FormattaCopia(valore, modoLire ? 0 : -2);
  const std::size_t lunghezza = Characters(testo);
  return (lunghezza < 15 ? Blanks(15 - lunghezza) : "") + testo;
}

std::string TestoFasciaContabilita(const FasciaContabilita& fascia, bool modoLire) {
  return FormattaCopia(fascia.aliquota, -5) + "% x " + CoefficienteInStringa(fascia.coefficiente) +
         " x " + NumeroContabilita(fascia.parte, modoLire) + " = " +
         NumeroContabilita(fascia.onorario, modoLire);
}

Catena CatenaFascia(const FasciaContabilita& f, bool modoLire) {
  const int decimali = modoLire ? 0 : -2;
  const std::string valuta = modoLire ? "Lire" : "Euro";
  const auto limiti = LimitiDellaFascia(f.fascia, modoLire);
  const std::string fascia =
      f.fascia > kLimitiTabellaELire.size()
          ? "oltre " + CifraEsatta(limiti.first) + " " + valuta
          : "da " + CifraEsatta(limiti.first) + " a " + CifraEsatta(limiti.second) + " " + valuta;
  Passaggio aliquota{
      "Tabella E, fascia " + fascia +
          ": percentuale del D.M. 25-2-1965 per il "
          "coefficiente del " +
          SiglaDecreto(f.periodo < 1 || f.periodo > kPeriodo1987 ? kPeriodo1987 : f.periodo),
      f.aliquota, f.aliquota.Valore(), "%"};
  Passaggio parte{"Parte dell'importo che sta in questa fascia", f.parte, f.parte.Valore(), valuta};
  Passaggio coefficiente{"Coefficiente della Tabella E" + TipoDiLavori(f.coefficiente), "",
                         f.coefficiente};
  const std::string mostrato = CoefficienteInStringa(f.coefficiente);
  if (mostrato == FormattaCopia(f.coefficiente, -2))
    coefficiente = Mostrato(std::move(coefficiente), -2);
  else
    coefficiente.Annota("La riga mostra " + mostrato + ": quello dei dati non è nella lista");
  Passaggio onorario{"Onorario della fascia, che entra nel totale con tutte le sue cifre",
                     f.onorario, f.onorario.Valore(), valuta};
  aliquota = Mostrato(std::move(aliquota), -5, "%");
  if (Toglie(aliquota.tagli[0]))
    aliquota.Annota("La riga ne mostra cinque decimali, il conto li prende tutti");
  return {std::move(aliquota), std::move(coefficiente), Mostrato(std::move(parte), decimali),
          Mostrato(std::move(onorario), decimali)};
}

void Parcella::CalcoloMisureContabilita(Conto& onorario, std::string& testo) {
  if (contemp.size() > kRigheContabilita)
    throw RuntimeFailure("La contabilità dei lavori è chiesta per più di " +
                         NumberText(kRigheContabilita) + " lotti o righe della parcella.");
  std::ranges::stable_sort(contemp, {}, &RigaContabilita::periodo);
  Riunisci(contemp);
  const OnorarioContabilita conto = CalcoloOnorarioContabilita(contemp, ModoLire);
  onorario = conto.onorario;
  testo = TestoImporto(onorario);
  contemp.clear();

  // Only a line feed stands between the lines of the block. The totals lie behind the cursor and
  // so begin lines of their own.
  uscita.Text("MISURE E CONTABILITÀ LAVORI ( tab. E )");
  for (const FasciaContabilita& fascia : conto.fasce) {
    uscita.LineFeed().Text(TestoFasciaContabilita(fascia, ModoLire));
    spiegazioni.Riga(uscita.Contents(), [&] { return CatenaFascia(fascia, ModoLire); });
  }
  uscita.Tab(23).Text("------------------------------ ");
  uscita.Tab(10).Text("Totali  ");
  uscita.Tab(20).Text(NumeroContabilita(conto.importo, ModoLire));
  uscita.Tab(38).Line(NumeroContabilita(conto.onorario, ModoLire));
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    return {Mostrato(PassoImporto("Importo dei lavori con contabilità, somma delle righe",
                                  conto.importo),
                     DecimaliValuta()),
            Mostrato(PassoImporto("Onorario di misura e contabilità, somma delle fasce con tutte "
                                  "le loro cifre",
                                  conto.onorario),
                     DecimaliValuta())};
  });
}

double Parcella::StampaContabilita() {
  if (contemp.empty()) return 0;
  Conto onorario;
  std::string testo;
  CalcoloMisureContabilita(onorario, testo);
  const Conto prodotto = onorario * Coefficiente;
  double compenso = IntInLire(prodotto);
  StampaRigaOnorario(1, " " + testo + StringaCoefficiente + " =", compenso);
  Spiega([&] {
    Catena catena = CatenaCompensi;
    catena.push_back(PassoOnorario(
        "Misura e contabilità, Tabella E: totale delle fasce per il coefficiente dei compensi",
        prodotto));
    catena.back().Annota(
        "Il totale delle fasce entra nel conto con tutte le sue cifre, non solo con quelle della "
        "riga");
    return catena;
  });
  return compenso;
}

}  // namespace orm
