#include "structures/loads/form_edge.h"

#include "structures/loads/loads.h"

namespace orm {
namespace {
NumberLimits Risultato(const char* unita) {
  return {.most = 99999999.99, .decimals = 2, .unit = unita};
}
}  // namespace

FrmStruttureCarichiEstremita::FrmStruttureCarichiEstremita()
    : FrmCarichi("frmSTRUTTURE_CarichiEstremita", "Sovraccarichi all'estremità di sbalzi "),
      fraCarico(*this, "fraCarico", "CARICO RIPARTITO  [ Kg/ml. ]"),
      optCARICO(*this, "optCARICO", kVociParapetto, gruppoCarico, "Kg/ml."),
      cdCarico(*this, "cdCarico", "Carico", Risultato("Kg/ml.")),
      fraCoppia(*this, "fraCoppia", "COPPIA RIPARTITA  [ Kg x m / ml. ]"),
      fraSpinta(*this, "fraSpinta", "SPINTA SUL PARAPETTO"),
      optSpinta(*this, "optSpinta", kVociSpinta, gruppoSpinta, "Kg x ml. / ml."),
      cdCorrimano(*this, "cdCorrimano", "Altezza del Corrimano",
                  {.most = 99.99, .decimals = 2, .unit = "ml."}),
      cdCoppia(*this, "cdCoppia", "Coppia", Risultato("Kg x m / ml.")),
      OKButton(*this, "OKButton", "&O.K.", Button::Role::Default) {
  cdCarico.SetReadOnly(true);
  cdCoppia.SetReadOnly(true);
  SetContent(Column({Group(fraCarico, {optCARICO.Contents(), Fields({cdCarico})}),
                     Group(fraCoppia, {Group(fraSpinta, {optSpinta.Contents()}),
                                       Fields({cdCorrimano, cdCoppia})}),
                     Buttons({OKButton})}));
  const auto aggiorna = [this] { Aggiorna(); };
  optCARICO.QuandoCambia(aggiorna);
  optSpinta.QuandoCambia(aggiorna);
  cdCorrimano.onChange = aggiorna;
  OKButton.onPress = [this] { Conferma(); };
}

void FrmStruttureCarichiEstremita::PerAvere(Cerca figura) {
  figura_ = figura;
  fraCarico.SetVisible(figura == Cerca::Carico);
  fraCoppia.SetVisible(figura == Cerca::Coppia);
}

double FrmStruttureCarichiEstremita::Carico() const { return optCARICO.Carico(); }

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
