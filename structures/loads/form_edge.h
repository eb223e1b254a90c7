// frmSTRUTTURE_CarichiEstremita: load (kg/ml) and couple (kg x m/ml) at the edge of a cantilever.
#pragma once

#include "structures/loads/load_form.h"

namespace orm {

class FrmStruttureCarichiEstremita : public FormCarichi {
 public:
  enum class Cerca { Carico, Coppia };

  FrmStruttureCarichiEstremita();
  // Which of the two figures the caller wants; the other one's frame is hidden.
  void PerAvere(Cerca figura);
  double Totale() const override { return figura_ == Cerca::Carico ? Carico() : Coppia(); }
  double Carico() const { return optCARICO.Carico(); }
  double Coppia() const;

  Frame fraCarico{*this, "fraCarico", "CARICO RIPARTITO  [ Kg/ml. ]"};
  OptionGroup gruppoCarico;
  SceltaCarico optCARICO{*this, "optCARICO", kVociParapetto, gruppoCarico, "Kg/ml."};
  FloatBox cdCarico{*this, "cdCarico", "Carico", FinoA(99999999.99, "Kg/ml.")};
  Frame fraCoppia{*this, "fraCoppia", "COPPIA RIPARTITA  [ Kg x m / ml. ]"};
  Frame fraSpinta{*this, "fraSpinta", "SPINTA SUL PARAPETTO"};
  OptionGroup gruppoSpinta;
  SceltaCarico optSpinta{*this, "optSpinta", kVociSpinta, gruppoSpinta, "Kg x ml. / ml."};
  FloatBox cdCorrimano{*this, "cdCorrimano", "Altezza del Corrimano", FinoA(99.99, "ml.")};
  FloatBox cdCoppia{*this, "cdCoppia", "Coppia", FinoA(99999999.99, "Kg x m / ml.")};
  Button cmdAzzera{*this, "cmdAzzera", "&Azzera"};

 private:
  void Aggiorna();
  Cerca figura_ = Cerca::Carico;
};

// The dialog of this run, for one of its figures. Show it with ChiediCarico.
FrmStruttureCarichiEstremita& CarichiEstremita(RunState& stato,
                                               FrmStruttureCarichiEstremita::Cerca figura);

}  // namespace orm
