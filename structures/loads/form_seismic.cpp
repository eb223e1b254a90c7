#include "structures/loads/form_seismic.h"

namespace orm {

FrmStruttureCarichiSismici::FrmStruttureCarichiSismici()
    : FrmCarichi("frmSTRUTTURE_CarichiSismici", "Azioni sismiche"),
      fraProtezione(*this, "fraProtezione", "Coefficente di protezione sismica I"),
      Option1(*this, "Option1", kVociProtezione[0].nome, gruppoProtezione),
      Option2(*this, "Option2", kVociProtezione[1].nome, gruppoProtezione),
      Option3(*this, "Option3", kVociProtezione[2].nome, gruppoProtezione),
      fraRiduzione(*this, "fraRiduzione", "Coefficente di riduzione dei sovraccarichi accidentali"),
      Option4(*this, "Option4", kVociRiduzione[0].nome, gruppoRiduzione),
      Option5(*this, "Option5", kVociRiduzione[1].nome, gruppoRiduzione),
      Option6(*this, "Option6", kVociRiduzione[2].nome, gruppoRiduzione),
      OKButton(*this, "OKButton", "&O.K.", Button::Role::Default) {
  SetContent(Column({Group(fraProtezione, {Option1, Option2, Option3}),
                     Group(fraRiduzione, {Option4, Option5, Option6}), Buttons({OKButton})}));
  Option3.SetValue(true);
  Option4.SetValue(true);
  OKButton.onPress = [this] { Conferma(); };
}

CoefficientiSismici FrmStruttureCarichiSismici::Coefficienti() const {
  const auto chosen = [](const OptionGroup& gruppo) {
    return static_cast<std::size_t>(gruppo.Chosen());
  };
  return {kVociProtezione[chosen(gruppoProtezione)].coefficiente,
          kVociRiduzione[chosen(gruppoRiduzione)].coefficiente};
}

FrmStruttureCarichiSismici& CarichiSismici(RunState& stato) {
  return stato.memoria.The<FrmStruttureCarichiSismici>();
}

void ChiediCarichiSismici(RunState& stato, Control& chiamante) {
  stato.player.Show(CarichiSismici(stato));
  chiamante.Owner().MoveFocus(chiamante);
}

}  // namespace orm
