#include "tariff/accounting_block.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/law/table_e.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

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

void Parcella::CalcoloMisureContabilita(double& onorario, std::string& testo) {
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
  for (const FasciaContabilita& fascia : conto.fasce)
    uscita.LineFeed().Text(TestoFasciaContabilita(fascia, ModoLire));
  uscita.Tab(23).Text("------------------------------ ");
  uscita.Tab(10).Text("Totali  ");
  uscita.Tab(20).Text(NumeroContabilita(conto.importo, ModoLire));
  uscita.Tab(38).Line(NumeroContabilita(conto.onorario, ModoLire));
}

double Parcella::StampaContabilita() {
  if (contemp.empty()) return 0;
  double onorario = 0;
  std::string testo;
  CalcoloMisureContabilita(onorario, testo);
  double compenso = IntInLire(onorario * Coefficiente);
  StampaRigaOnorario(1, " " + testo + StringaCoefficiente + " =", compenso);
  return compenso;
}

}  // namespace orm
