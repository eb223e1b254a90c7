// frmSTRUTTURE_CarichiEstremita: load (kg/ml) and couple (kg x m/ml) at the edge of a cantilever.
#pragma once

#include "structures/loads/load_form.h"

namespace orm {

class FrmStruttureCarichiEstremita : public FrmCarichi {
 public:
  enum class Cerca { Carico, Coppia };

  FrmStruttureCarichiEstremita();
  // Which of the two figures the caller wants; the other one's frame is hidden.
  void PerAvere(Cerca figura);
  double Totale() const override { return figura_ == Cerca::Carico ? Carico() : Coppia(); }
  double Carico() const;
  double Coppia() const;

  Frame fraCarico;
  OptionGroup gruppoCarico;
  SceltaCarico optCARICO;
  FloatBox cdCarico;
  Frame fraCoppia, fraSpinta;
  OptionGroup gruppoSpinta;
  SceltaCarico optSpinta;
  FloatBox cdCorrimano, cdCoppia;
  Button OKButton;

 private:
  void Aggiorna();
  Cerca figura_ = Cerca::Carico;
};

// The dialog of this run, for one of its figures. Show it with ChiediCarico.
FrmStruttureCarichiEstremita& CarichiEstremita(RunState& stato,
                                               FrmStruttureCarichiEstremita::Cerca figura);

}  // namespace orm
