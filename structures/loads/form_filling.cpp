#include "structures/loads/form_filling.h"

#include <initializer_list>

#include "dialogs/message_boxes.h"
#include "structures/loads/loads.h"

namespace orm {

FrmStruttureCarichiRiempimento::FrmStruttureCarichiRiempimento(RunState& stato)
    : FormCarichi("frmSTRUTTURE_CarichiRiempimento",
                  "Calcolo del carico ripartito dovuto al riempimento"),
      stato_(stato) {
  SetContent(
      Column({Option1, Row({Option2, cdCLS_1}), Row({Option3, cdCLS_2}), Fields({cmbTavellone}),
              lblTavelloni, Group(fraMisure, {Fields({cdSpazio, cdAltezza, cdTotale})}),
              Buttons({OKButton})}));
  for (FloatBox* campo : {&cdSpazio, &cdAltezza, &cdTotale}) campo->SetReadOnly(true);
  Option1.SetValue(true);
  cmbTavellone.SetIndex(0);
  Aggiorna();
  for (Control* campo : std::initializer_list<Control*>{&Option1, &Option2, &Option3, &cdCLS_1,
                                                        &cdCLS_2, &cmbTavellone})
    campo->onChange = [this] { Aggiorna(); };
  OKButton.onPress = [this] { Accetta(); };
}

void FrmStruttureCarichiRiempimento::Disponibile(double spazio, double altezza) {
  cdSpazio.SetValue(spazio);
  cdAltezza.SetValue(altezza);
  Aggiorna();
}

double FrmStruttureCarichiRiempimento::Totale() const {
  if (Option1.Value()) return CaricoRiempimento(kPesoClsNormale, cdAltezza.Value());
  if (Option2.Value()) return CaricoRiempimento(cdCLS_1.Value(), cdAltezza.Value());
  return CaricoRiempimentoMisto(cdCLS_2.Value(), cdAltezza.Value(), cdSpazio.Value(),
                                TavelloneDiLista(cmbTavellone.Index()));
}

void FrmStruttureCarichiRiempimento::Aggiorna() {
  cdCLS_1.SetEnabled(Option2.Value());
  cdCLS_2.SetEnabled(Option3.Value());
  cmbTavellone.SetEnabled(Option3.Value());
  cdTotale.SetValue(Totale());
}

void FrmStruttureCarichiRiempimento::Accetta() {
  const Tavellone tavellone = TavelloneDiLista(cmbTavellone.Index());
  if (Option3.Value() && tavellone.altezza > cdAltezza.Value()) {
    stato_.player.Ask(Avviso("L'ALTEZZA DEL TAVELLONE SUPERA QUELLA A DISPOSIZIONE !"));
  } else if (Option3.Value() && tavellone.lunghezza > cdSpazio.Value()) {
    stato_.player.Ask(Avviso("LA LARGHEZZA DEL TAVELLONE SUPERA QUELLA A DISPOSIZIONE !"));
  } else {
    Esci(Uscita::Conferma);
  }
}

FrmStruttureCarichiRiempimento& CarichiRiempimento(RunState& stato, double spazio, double altezza) {
  auto& form = stato.memoria.The<FrmStruttureCarichiRiempimento>(stato);
  form.Disponibile(spazio, altezza);
  return form;
}

}  // namespace orm
