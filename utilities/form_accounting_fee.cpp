// The accounting fee on screen.
#include "utilities/form_accounting_fee.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "tariff/accounting_block.h"
#include "tariff/forms/amount_box.h"
#include "tariff/law/table_e.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"

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

void MostraContabilita(RunState& run) {
  FrmUtiContabilita form(run);
  run.player.Show(form);
}

FrmUtiContabilita::FrmUtiContabilita(RunState& run)
    : Form("frmUTI_CONTABILITA", "ONORARI A VIDEO - CONTABILITÀ LAVORI ( tab. E )"),
      ciImporto(*this, "ciImporto", "IMPORTO DEI LAVORI", kLavori.lire),
      cdImporto(*this, "cdImporto", "IMPORTO DEI LAVORI", kLavori.euro) {
  std::vector<std::string> periodi, coefficienti;
  for (int periodo = 1; periodo <= kPeriodo2001; ++periodo)
    periodi.push_back(NomePeriodoTariffario(periodo));
  for (const double coefficiente : kCoefficienti)
    coefficienti.push_back(CoefficienteInStringa(coefficiente));
  comPeriodo.SetItems(std::move(periodi));
  comPeriodo.SetIndex(kPeriodo1987 - 1);
  comCoefficiente.SetItems(std::move(coefficienti));
  comCoefficiente.SetIndex(0);
  valuta.Choose(run.ModoLire ? 0 : 1);
  ScegliValuta();

  optValuta1.onChange = optValuta2.onChange = [this] { ScegliValuta(); };
  for (Control* dato :
       std::initializer_list<Control*>{&ciImporto, &cdImporto, &comPeriodo, &comCoefficiente})
    dato->onChange = [this] { SvuotaRisultati(); };
  cmdCALCOLA.onPress = [this] { Calcola(); };
  cmdESCI.onPress = [this] { Close(); };
  SetFirstFocus(run.ModoLire ? static_cast<Control&>(ciImporto) : cdImporto);
  SetContent(Column({Group(fraValuta, {Row({optValuta1, optValuta2})}),
                     Fields({ciImporto, cdImporto, comPeriodo, comCoefficiente}),
                     Fields({Text1, Text2}), Buttons({cmdESCI, cmdCALCOLA})}));
}

void FrmUtiContabilita::ScegliValuta() {
  ciImporto.SetVisible(optValuta1.Value());
  cdImporto.SetVisible(!optValuta1.Value());
  SvuotaRisultati();
}

void FrmUtiContabilita::SvuotaRisultati() {
  Text1.SetText("");
  Text2.SetText("");
}

void FrmUtiContabilita::Calcola() {
  const bool lire = optValuta1.Value();
  const double importo = lire ? ciImporto.Value() : cdImporto.Value();
  const RigaContabilita riga{comPeriodo.Index() + 1,
                             kCoefficienti[static_cast<std::size_t>(comCoefficiente.Index())],
                             importo};
  const OnorarioContabilita esito = CalcoloOnorarioContabilita({riga}, lire);
  std::string testo;
  for (const FasciaContabilita& fascia : esito.fasce)
    testo += (testo.empty() ? "" : "\n") + TestoFasciaContabilita(fascia, lire);
  Text1.SetText(testo);
  Text2.SetText((lire ? "L. " : "€ ") + NumeroContabilita(esito.onorario, lire));
}

}  // namespace orm
