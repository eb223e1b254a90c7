#include "structures/loads/form_seismic.h"

namespace orm {

FrmStruttureCarichiSismici::FrmStruttureCarichiSismici()
    : FormScelte("frmSTRUTTURE_CarichiSismici", "Azioni sismiche") {
  SetContent(Column({Group(fraProtezione, {Option1, Option2, Option3}),
                     Group(fraRiduzione, {Option4, Option5, Option6}), Buttons({OKButton})}));
  Option3.SetValue(true);
  Option4.SetValue(true);
}

CoefficientiSismici FrmStruttureCarichiSismici::Coefficienti() const {
  return {kVociProtezione[static_cast<std::size_t>(protezione.Chosen())].coefficiente,
          kVociRiduzione[static_cast<std::size_t>(riduzione.Chosen())].coefficiente};
}

FrmStruttureCarichiSismici& CarichiSismici(RunState& stato) {
  return stato.memoria.The<FrmStruttureCarichiSismici>();
}

void ChiediCarichiSismici(RunState& stato, Control& chiamante,
                          const std::function<void()>& cambiati) {
  FrmStruttureCarichiSismici& form = CarichiSismici(stato);
  form.Presenta(stato.player);
  chiamante.Owner().MoveFocus(chiamante);
  if (form.Confermato()) cambiati();
}

}  // namespace orm
