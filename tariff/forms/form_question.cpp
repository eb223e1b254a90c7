#include "tariff/forms/form_question.h"

namespace orm {

FrmGenSiNo::FrmGenSiNo(std::string titolo, std::string domanda, std::string avvertenza,
                       const std::string& risposta)
    : Form("frmGEN_SiNo", std::move(titolo)),
      Risposta(risposta == "SI" ? "SI" : "NO"),
      Label1(*this, "Label1", std::move(domanda)),
      OptionSI(*this, "OptionSI", "- SI", scelta),
      OptionNO(*this, "OptionNO", "- NO", scelta),
      Avvertenza(*this, "Avvertenza", std::move(avvertenza), Label::Style::Warning),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(
      Column({Row({Label1, Column({OptionSI, OptionNO})}), Avvertenza, Buttons({Command1})}));
  scelta.Choose(risposta == "SI" ? 0 : 1);
  Avvertenza.SetVisible(!Avvertenza.Text().empty());
  Command1.onPress = [this] {
    Risposta = OptionSI.Value() ? "SI" : "NO";
    Close();
  };
}

std::string ChiediSiNo(Player& player, std::string titolo, std::string domanda,
                       std::string avvertenza, const std::string& risposta) {
  FrmGenSiNo form(std::move(titolo), std::move(domanda), std::move(avvertenza), risposta);
  player.Show(form);
  return form.Risposta;
}

}  // namespace orm
