#include "tariff/accounting_block.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/law/table_e.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {
namespace {

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

double CalcoloMisureContabilita(RunState& stato, std::vector<RigaContabilita> righe,
                                std::string& testo) {
  if (righe.size() > kRigheContabilita)
    throw RuntimeFailure("La contabilità dei lavori è chiesta per più di " +
                         NumberText(kRigheContabilita) + " lotti o righe della parcella.");
  std::ranges::stable_sort(righe, {}, &RigaContabilita::periodo);
  Riunisci(righe);
  const OnorarioContabilita conto = CalcoloOnorarioContabilita(righe, stato.ModoLire);
  testo = FormattaCopia(conto.onorario, stato.DecimaliValuta());

  // Only a line feed stands between the lines of the block. The totals lie behind the cursor and
  // so begin lines of their own.
  ReportPrinter& stampa = stato.NumFileUscita;
  stampa.Text("MISURE E CONTABILITÀ LAVORI ( tab. E )");
  for (const FasciaContabilita& fascia : conto.fasce)
    stampa.LineFeed().Text(TestoFasciaContabilita(fascia, stato.ModoLire));
  stampa.Tab(23).Text("------------------------------ ");
  stampa.Tab(10).Text("Totali  ");
  stampa.Tab(20).Text(NumeroContabilita(conto.importo, stato.ModoLire));
  stampa.Tab(38).Line(NumeroContabilita(conto.onorario, stato.ModoLire));
  return conto.onorario;
}

double StampaContabilita(RunState& stato, const std::vector<RigaContabilita>& righe,
                         const Compensi& compensi) {
  if (righe.empty()) return 0;
  std::string testo;
  const double onorario = CalcoloMisureContabilita(stato, righe, testo);
  double compenso = IntInLire(stato, onorario * compensi.Coefficiente);
  StampaRigaOnorario(stato, 1, " " + testo + compensi.StringaCoefficiente + " =", compenso);
  return compenso;
}

}  // namespace orm
