#include "tariff/forms/form_period.h"

#include "dialogs/message_boxes.h"

namespace orm {

FrmTariffe::FrmTariffe(Player& player, const TestiTariffe& testi, std::string dove, int ultimo,
                       const std::string& periodo, bool esiste)
    : Form(testi.nome, testi.titolo),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Frame1(*this, "Frame1", testi.riquadro),
      Option{{{*this, "Option1", testi.periodi[1 - 1], tipo},
              {*this, "Option2", testi.periodi[2 - 1], tipo},
              {*this, "Option3", testi.periodi[3 - 1], tipo},
              {*this, "Option4", testi.periodi[4 - 1], tipo},
              {*this, "Option5", testi.periodi[5 - 1], tipo}}},
      Command2(*this, "Command2", "FINE INPUT PERIODI"),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(
      Column({lblLotto, Group(Frame1, {Option[0], Option[1], Option[2], Option[3], Option[4]}),
              Buttons({Command1, Command2})}));
  int scelta = -1;
  for (int i = ultimo; i < 5; ++i)
    if (scelta < 0 || periodo == std::string(1, static_cast<char>('1' + i))) scelta = i;
  for (int i = 0; i < 5; ++i) Option[static_cast<std::size_t>(i)].SetVisible(i >= ultimo);
  tipo.Choose(scelta);
  Command1.SetEnabled(scelta >= 0);
  Tariffa = esiste && scelta >= 0 ? std::string(1, static_cast<char>('1' + scelta)) : "0";
  Command1.onPress = [this, &player] { Confirm(player); };
  Command2.onPress = [this] {
    Tariffa = "0";
    Close();
  };
}

std::optional<std::int16_t> FrmTariffe::Periodo() const {
  if (Tariffa == "0") return std::nullopt;
  return static_cast<std::int16_t>(Tariffa[0] - '0');
}

void FrmTariffe::Confirm(Player& player) {
  if (!Rifiuto.empty()) {
    player.Ask(Avviso(Rifiuto));
    return;
  }
  Tariffa = std::string(1, static_cast<char>('1' + tipo.Chosen()));
  Close();
}

}  // namespace orm
