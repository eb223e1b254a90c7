#include "cases/pdl/form_reports.h"

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_pdl_amounts.h"

namespace orm {
namespace {
// More than a row takes, so that the refusal can say how many it takes.
const NumberLimits kNumero{.least = 0, .most = 99, .decimals = 0};
}  // namespace

FrmPdlPerizie::FrmPdlPerizie(Player& player, std::string dove, std::int16_t numero)
    : Form("frmPDL_Perizie", "PERIZIE DI VARIANTE"),
      NumeroPerizie(numero),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      ciNumeroPerizie(*this, "ciNumeroPerizie", "NUMERO  PERIZIE NEL PERIODO TARIFFARIO", kNumero),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({lblLotto, Fields({ciNumeroPerizie}), Buttons({Command1})}));
  ciNumeroPerizie.SetValue(numero);
  Command1.onPress = [this, &player] { Confirm(player); };
}

void FrmPdlPerizie::Confirm(Player& player) {
  if (ciNumeroPerizie.Value() > kPerizieMassime) {
    player.Ask(Avviso("LE PERIZIE DI UN PERIODO TARIFFARIO POSSONO ESSERE AL MASSIMO " +
                      NumberText(kPerizieMassime) + "."));
    return;
  }
  NumeroPerizie = CheckedInt16(ciNumeroPerizie.Value());
  Close();
}

FrmPdlImpPer::FrmPdlImpPer(RunState& stato, std::string dove, const PeriziaPdl& perizia,
                           const ImportiPerizia& altri)
    : Form("frmPDL_ImpPer", "IMPORTI DEI LAVORI IN PERIZIA"),
      Perizia(perizia),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Frame1(*this, "Frame1", "TIPO DI PERIZIA"),
      Combo1(*this, "Combo1", "", {"1 - di variante e suppletiva", "2 - di assestamento!"}),
      Image1(*this, "Image1", Image::Subject::Euro),
      importo{{{*this, stato, "Importo1", "IMPORTO LAVORI SUPPLETIVI"},
               {*this, stato, "Importo2", "IMPORTO ESPROPRI IN PERIZIA"},
               {*this, stato, "Importo3", "IMPORTO LAVORI VARIATI"}}},
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  auto& [suppletivi, espropri, variati] = importo;
  SetContent(Column(
      {lblLotto, Group(Frame1, {Combo1}), Image1,
       Fields({suppletivi.cd, suppletivi.ci, espropri.cd, espropri.ci, variati.cd, variati.ci}),
       Buttons({Command1})}));
  Image1.SetVisible(!stato.ModoLire);
  Combo1.SetIndex(perizia.TipoPerizia.empty() ? -1 : perizia.TipoPerizia[0] - '1');
  suppletivi.SetValue(perizia.LavoriSuppletivi);
  espropri.SetValue(perizia.EsproPerizia);
  variati.SetValue(perizia.LavoriVariati);
  Command1.onPress = [this, &stato, altri] { Confirm(stato, altri); };
}

void FrmPdlImpPer::Confirm(RunState& stato, const ImportiPerizia& altri) {
  for (std::size_t i = 0; i < importo.size(); ++i)
    if (const std::string motivo = SommaEccessiva(importo[i], altri[i]); !motivo.empty()) {
      stato.player.Ask(Avviso(motivo));
      return;
    }
  if (Combo1.Index() >= 0) Perizia.TipoPerizia = Combo1.ShownText();
  Perizia.LavoriSuppletivi = importo[0].Value();
  Perizia.EsproPerizia = importo[1].Value();
  Perizia.LavoriVariati = importo[2].Value();
  Close();
}

}  // namespace orm
