#include "structures/loads/form_edge.h"

#include "structures/loads/loads.h"

namespace orm {

FrmStruttureCarichiEstremita::FrmStruttureCarichiEstremita()
    : FormCarichi("frmSTRUTTURE_CarichiEstremita", "Sovraccarichi all'estremità di sbalzi ") {
  SetContent(Column({Group(fraCarico, {optCARICO.Contents(), Fields({cdCarico})}),
                     Group(fraCoppia, {Group(fraSpinta, {optSpinta.Contents()}),
                                       Fields({cdCorrimano, cdCoppia})}),
                     Buttons({OKButton, cmdAzzera})}));
  cdCarico.SetReadOnly(true);
  cdCoppia.SetReadOnly(true);
  const auto aggiorna = [this] { Aggiorna(); };
  optCARICO.QuandoCambia(aggiorna);
  optSpinta.QuandoCambia(aggiorna);
  cdCorrimano.onChange = aggiorna;
  cmdAzzera.onPress = [this] {
    (figura_ == Cerca::Carico ? gruppoCarico : gruppoSpinta).Choose(-1);
  };
}

void FrmStruttureCarichiEstremita::PerAvere(Cerca figura) {
  figura_ = figura;
  fraCarico.SetVisible(figura == Cerca::Carico);
  fraCoppia.SetVisible(figura == Cerca::Coppia);
}

double FrmStruttureCarichiEstremita::Coppia() const {
  return CoppiaCorrimano(optSpinta.Carico(), cdCorrimano.Value());
}

void FrmStruttureCarichiEstremita::Aggiorna() {
  cdCarico.SetValue(Carico());
  cdCoppia.SetValue(Coppia());
}

FrmStruttureCarichiEstremita& CarichiEstremita(RunState& stato,
                                               FrmStruttureCarichiEstremita::Cerca figura) {
  auto& form = stato.memoria.The<FrmStruttureCarichiEstremita>();
  form.PerAvere(figura);
  return form;
}

}  // namespace orm
