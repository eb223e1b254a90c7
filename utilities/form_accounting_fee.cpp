// The accounting fee on screen.
#include "utilities/form_accounting_fee.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

#include "runtime/numbers.h"
#include "tariff/accounting_block.h"
#include "tariff/explanations.h"
#include "tariff/law/table_e.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"

namespace orm {
namespace {

// Rising for the works of class 1, then that of the other classes.
constexpr auto kCoefficienti = [] {
  std::array<double, kLavoriClasse1.size() + 1> tutti{};
  std::ranges::transform(kLavoriClasse1, tutti.begin(), &LavoriContabilita::coefficiente);
  std::sort(tutti.begin(), tutti.end() - 1);
  tutti.back() = kCoefficienteAltreClassi;
  return tutti;
}();

}  // namespace

std::vector<Spiegazione> SpiegaContabilita(const OnorarioContabilita& esito, bool lire,
                                           const std::string& voce) {
  std::vector<Spiegazione> perche;
  for (const FasciaContabilita& fascia : esito.fasce)
    perche.push_back(Risultato("Scaglione " + NumberText(static_cast<double>(perche.size() + 1)),
                               CatenaFascia(fascia, lire)));
  Passaggio somma{"Somma degli onorari degli scaglioni", esito.onorario, esito.onorario.Valore(),
                  lire ? "Lire" : "Euro"};
  perche.push_back(Risultato(voce, {Mostrato(std::move(somma), lire ? 0 : -2)}));
  return perche;
}

FrmUtiContabilita::FrmUtiContabilita(RunState& stato)
    : Form("frmUTI_CONTABILITA", "ONORARI A VIDEO - CONTABILITÀ LAVORI ( tab. E )"),
      lavori(*this, stato),
      cmdSPIEGA(*this, stato.player) {
  std::vector<std::string> coefficienti;
  for (const double coefficiente : kCoefficienti)
    coefficienti.push_back(CoefficienteInStringa(coefficiente));
  comCoefficiente.SetItems(std::move(coefficienti));
  comCoefficiente.SetIndex(0);

  lavori.optValuta1.onChange = lavori.optValuta2.onChange = [this] { ScegliValuta(); };
  for (Control* dato : std::initializer_list<Control*>{&lavori.ciImporto, &lavori.cdImporto,
                                                       &lavori.comPeriodo, &comCoefficiente})
    dato->onChange = [this] { SvuotaRisultati(); };
  cmdCALCOLA.onPress = [this] { Calcola(); };
  cmdESCI.onPress = [this] { Close(); };
  SetFirstFocus(lavori.Lire() ? static_cast<Control&>(lavori.ciImporto) : lavori.cdImporto);
  SetContent(
      Column({Group(lavori.fraValuta, {Row({lavori.optValuta1, lavori.optValuta2})}),
              Fields({lavori.ciImporto, lavori.cdImporto, lavori.comPeriodo, comCoefficiente}),
              Fields({Text1, Text2}), Buttons({cmdCALCOLA, cmdSPIEGA, cmdESCI})}));
}

void FrmUtiContabilita::ScegliValuta() {
  lavori.MostraImporto();
  SvuotaRisultati();
}

void FrmUtiContabilita::SvuotaRisultati() {
  Text1.SetText("");
  Text2.SetText("");
  cmdSPIEGA.Nessuna();
}

void FrmUtiContabilita::Calcola() {
  const bool lire = lavori.Lire();
  const RigaContabilita riga{lavori.Periodo(),
                             kCoefficienti[static_cast<std::size_t>(comCoefficiente.Index())],
                             lavori.Importo()};
  const OnorarioContabilita esito = CalcoloOnorarioContabilita({riga}, lire);
  std::string testo;
  for (const FasciaContabilita& fascia : esito.fasce)
    testo += (testo.empty() ? "" : "\n") + TestoFasciaContabilita(fascia, lire);
  Text1.SetText(testo);
  Text2.SetText((lire ? "L. " : "€ ") + FormattaCopia(esito.onorario, lire ? 0 : -2));
  cmdSPIEGA.Di(SpiegaContabilita(esito, lire, Text2.Caption()));
}

}  // namespace orm
