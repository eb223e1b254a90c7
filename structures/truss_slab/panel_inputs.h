// What a person gives for a truss-joist slab: the controls, the rule of the least height, and the
// self weight that follows from block, thickness and module.
#pragma once

#include <array>
#include <functional>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

class IngressiSolaio {
 public:
  IngressiSolaio(Form& form, RunState& stato);
  Layout Contents();
  void ValoriIniziali();
  // `cambiati` runs after any change.
  void TieEvents(const std::function<void()>& cambiati);

  // Data that come all together, as they were left: no question about their height.
  void Riprendi(const std::function<void()>& scrivi);
  // Takes the span that was typed; false when it was refused with a message and set back.
  bool AccettaLuce();
  DatiSolaioT Leggi() const;
  // The diameters in the span take the place of what was asked; stubs that were left free stay
  // free.
  void ScriviFerri(const RisultatiSolaioT& risultati);

  // Arrays count from 1.
  Frame fraSchema;
  OptionGroup gruppoSchema;
  std::array<OptionButton, 2> optSchema;
  Frame fraPosizione;
  OptionGroup gruppoPosizione;
  OptionButton Option1, Option2;
  Frame fraGeometria;
  FloatBox cdLuce;
  ComboBox cmbSolettina, cmbTavellone;
  Label lblBlocchi, lblLaterizio;
  Label lblAltezza;  // in its place while the floor is lower than the law wants
  ComboBox cmbTipoDiFerro, cmbTipoDiCls;
  Frame fraCoefficienti;
  ComboBox cmbCCM_SIN, cmbCCM_DEX, cmbCCM_MEZ;
  Frame fraCarichi;
  std::array<FloatBox, 3> cdCR;
  Button cmdCALCOLAPERMANENTE, cmdCalc_Acc;
  Frame cmbFerri;
  std::array<ComboBox, 5> cmbFERRI;
  Label lblVuoto, lblAutomatica, lblZero;

 private:
  bool AltezzaScarsa() const;
  void SegnalaAltezza();
  bool AltezzaAmmessa();
  bool AccettaScelta(ComboBox& lista, int& accettata);  // false: set back, nothing has changed
  void AggiornaPesoProprio();
  const ModuloSolaio& Modulo() const { return kModuliSolaio[optSchema[1].Value() ? 1 : 0]; }
  double Solettina() const;

  RunState& stato_;
  double luce_ = 0;  // as last accepted, and so the two choices
  int solettina_ = 0;
  int blocco_ = 2;        // R 38 x 20, high enough for a usual room
  bool ritorno_ = false;  // while choices are set, not made
};

}  // namespace orm
