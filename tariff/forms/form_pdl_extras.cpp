#include "tariff/forms/form_pdl_extras.h"

#include <algorithm>

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"
#include "tariff/accounting_block.h"
#include "tariff/forms/lot_chain.h"
#include "tariff/law/table_e.h"

namespace orm {
namespace {

// The option of a kind of works, its coefficient behind its name.
std::string Voce(std::size_t i) {
  return kLavoriClasse1[i].nome + CoefficienteInStringa(kLavoriClasse1[i].coefficiente);
}

}  // namespace

FrmPdlAltri::FrmPdlAltri(Player& player, std::string titolo, std::string dove,
                         const PrestazioniAggiuntive& date)
    : Form("frmPDL_Altri", std::move(titolo)),
      Prestazioni(date),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Frame1(*this, "Frame1", "PRESTAZIONI AGGIUNTIVE"),
      Check1(*this, "Check1", "SORVEGLIANZA"),
      Check2(*this, "Check2", "MISURE e CONTABILITA'"),
      Check3(*this, "Check3", "REVISIONE PREZZI"),
      Check4(*this, "Check4", "PERIZIE DI VARIANTE"),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(
      Column({lblLotto, Group(Frame1, {Check1, Check2, Check3, Check4}), Buttons({Command1})}));
  Check1.SetValue(date.Sorveglianza);
  Check2.SetValue(date.Contabilita);
  Check3.SetValue(date.Revisione);
  Check4.SetValue(date.Perizie);
  Check2.onChange = [this] { ShowRevision(); };
  ShowRevision();
  Command1.onPress = [this, &player] { Confirm(player); };
}

// A revision of prices is nothing without accounting.
void FrmPdlAltri::ShowRevision() {
  Check3.SetVisible(Check2.Value());
  if (!Check2.Value()) Check3.SetValue(false);
}

void FrmPdlAltri::SoloContabilita() {
  Check2.onChange = {};
  for (CheckBox* check : {&Check1, &Check3, &Check4}) check->SetVisible(false);
}

void FrmPdlAltri::Confirm(Player& player) {
  if (Check2.Value() && !Rifiuto.empty()) {
    player.Ask(Avviso(Rifiuto));
    return;
  }
  Prestazioni = {Check1.Value(), Check2.Value(), Check3.Value(), Check4.Value()};
  Close();
}

FrmPdlCont::FrmPdlCont(std::string dove, const std::string& risposta)
    : Form("frmPDL_Cont", "MISURE e CONTABILITA'"),
      Risposta(risposta),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Frame1(*this, "Frame1", "TIPO DI LAVORI EDILI "),
      Option{{{*this, "Option1", Voce(0), tipo},
              {*this, "Option2", Voce(1), tipo},
              {*this, "Option3", Voce(2), tipo},
              {*this, "Option4", Voce(3), tipo}}},
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({lblLotto, Group(Frame1, {Option[0], Option[1], Option[2], Option[3]}),
                     Buttons({Command1})}));
  if (risposta < "1" || risposta > "4") Risposta = "1";
  tipo.Choose(Risposta[0] - '1');
  Command1.onPress = [this] {
    Risposta = std::string(1, static_cast<char>('1' + std::max(tipo.Chosen(), 0)));
    Close();
  };
}

double ChiediCoefficienteContabilita(Player& player, const std::string& dove,
                                     const std::string& Classe, double attuale) {
  if (Classe != "1") return kCoefficienteAltreClassi;
  const auto noto = std::ranges::find(kLavoriClasse1, attuale, &LavoriContabilita::coefficiente);
  const auto indice = noto - kLavoriClasse1.begin();
  FrmPdlCont form(
      dove, noto == kLavoriClasse1.end() ? "" : std::string(1, static_cast<char>('1' + indice)));
  player.Show(form);
  return kLavoriClasse1[static_cast<std::size_t>(form.Risposta[0] - '1')].coefficiente;
}

std::string RifiutoContabilita(std::size_t righe) {
  if (righe < kRigheContabilita) return "";
  return OltreIlMassimo(kRigheContabilita, "LOTTI O RIGHE CON MISURE E CONTABILITÀ");
}

}  // namespace orm
