#include "structures/loads/form_filling.h"

#include "structures/loads/hollow_tiles.h"
#include "structures/loads/loads.h"
#include "tariff/message_boxes.h"

namespace orm {
namespace {
constexpr const char* kKgMc = "Kg/mc";
const NumberLimits kCentimetri{.most = 9999.99, .decimals = 2, .unit = "cm"};
NumberLimits PesoSpecifico() { return {.most = 9999.99, .decimals = 2, .unit = kKgMc}; }
}  // namespace

FrmStruttureCarichiRiempimento::FrmStruttureCarichiRiempimento(RunState& stato)
    : FrmCarichi("frmSTRUTTURE_CarichiRiempimento",
                 "Calcolo del carico ripartito dovuto al riempimento"),
      Option1(*this, "Option1", "Cls normale", gruppo),
      Option2(*this, "Option2", "Cls alleggerito", gruppo),
      Option3(*this, "Option3", "Riempimento misto cls e tavelloni", gruppo),
      cdCLS_1(*this, "cdCLS_1", "", PesoSpecifico()),
      cdCLS_2(*this, "cdCLS_2", "", PesoSpecifico()),
      cmbTavellone(*this, "cmbTavellone", "Tipo di Tavellone", NomiTavelloni()),
      lblTavelloni(*this, "lblTavelloni", kNotaTavelloni, Label::Style::Note),
      fraMisure(*this, "fraMisure", "Riempimento"),
      cdSpazio(*this, "cdSpazio", "Spazio fra le putrelle", kCentimetri),
      cdAltezza(*this, "cdAltezza", "Altezza a disposizione", kCentimetri),
      cdTotale(*this, "cdTotale", "TOTALE",
               {.least = -9999999.99, .most = 9999999.99, .decimals = 2, .unit = "Kg/mq"}),
      OKButton(*this, "OKButton", "&O.K.", Button::Role::Default),
      stato_(stato) {
  Arrange();
  Option1.SetValue(true);
  cmbTavellone.SetIndex(0);
  Aggiorna();
  for (OptionButton* opt : {&Option1, &Option2, &Option3}) opt->onChange = [this] { Aggiorna(); };
  for (FloatBox* campo : {&cdCLS_1, &cdCLS_2}) campo->onChange = [this] { Aggiorna(); };
  cmbTavellone.onChange = [this] { Aggiorna(); };
  OKButton.onPress = [this] { Accetta(); };
}

void FrmStruttureCarichiRiempimento::Arrange() {
  for (FloatBox* campo : {&cdSpazio, &cdAltezza, &cdTotale}) campo->SetReadOnly(true);
  SetContent(
      Column({Option1, Row({Option2, cdCLS_1}), Row({Option3, cdCLS_2}), Fields({cmbTavellone}),
              lblTavelloni, Group(fraMisure, {Fields({cdSpazio, cdAltezza, cdTotale})}),
              Buttons({OKButton})}));
}

void FrmStruttureCarichiRiempimento::Disponibile(double spazio, double altezza) {
  cdSpazio.SetValue(spazio);
  cdAltezza.SetValue(altezza);
  Aggiorna();
}

double FrmStruttureCarichiRiempimento::Totale() const {
  if (Option1.Value()) return CaricoRiempimento(kPesoClsNormale, cdAltezza.Value());
  if (Option2.Value()) return CaricoRiempimento(cdCLS_1.Value(), cdAltezza.Value());
  if (cdSpazio.Value() == 0) return 0;  // refused by the boxes: any tile is too wide
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
    Conferma();
  }
}

FrmStruttureCarichiRiempimento& CarichiRiempimento(RunState& stato, double spazio, double altezza) {
  auto& form = stato.memoria.The<FrmStruttureCarichiRiempimento>(stato);
  form.Disponibile(spazio, altezza);
  return form;
}

}  // namespace orm
