// What a person gives for a floor of NP beams and hollow tiles, slab or cantilever alike: measures,
// materials, loads of the floor and on the beam.
#pragma once

#include <array>
#include <functional>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/steel_beams/beams.h"

namespace orm {

// Captions that differ between the two.
struct VociPutrelle {
  const char* lunghezza;
  const char* carichiDiretti;
};

class IngressiPutrelle {
 public:
  IngressiPutrelle(Form& form, RunState& stato, const VociPutrelle& voci);
  // "GEOMETRIA DELLO SCHEMA" and "MATERIALI", then the loads and the notes.
  Layout Schema();
  Layout Carichi();
  // `cambiati` runs after any change.
  void TieEvents(const std::function<void()>& cambiati);
  void Leggi(DatiPutrelle& dati) const;

  Frame fraGeometria;
  FloatBox cdLunghezza, cdAltezza;
  Frame fraMateriali;
  ComboBox cmbPutrella, cmbTipoDiFerro, cmbTavellone;
  Label lblTavelloni, lblModuli;
  Frame fraCarichi;
  std::array<FloatBox, NumeroCarichiRipartiti> cdCR;
  Button cmdCALC_RIEMPIMENTO, cmdCALCOLAPERMANENTE, cmdCalc_Acc;
  Frame fraDiretti;
  std::array<FloatBox, 2> cdCD;  // own weight of the beam, further load
  Label lblBlu;

 private:
  void ScegliPutrella();
  void ScegliTavellone();
  RunState& stato_;
};

}  // namespace orm
