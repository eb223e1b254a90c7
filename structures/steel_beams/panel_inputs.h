// Panel of a floor of NP beams and hollow tiles, slab or cantilever alike: measures, materials,
// loads of the floor and on the beam.
#pragma once

#include <functional>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/loads/hollow_tiles.h"
#include "structures/loads/load_form.h"
#include "structures/numbered_controls.h"
#include "structures/steel_beams/beams.h"

namespace orm {

// Captions that differ between the two.
struct VociPutrelle {
  const char* lunghezza;
  const char* carichiDiretti;
};

class PannelloDatiPutrelle {
  Form& form_;  // before the controls, which are built on it
  RunState& stato_;
  VociPutrelle voci_;

 public:
  PannelloDatiPutrelle(Form& form, RunState& stato, const VociPutrelle& voci);
  // "GEOMETRIA DELLO SCHEMA" and "MATERIALI", then the loads and the notes.
  Layout Schema();
  Layout Carichi();
  // `cambiati` runs after any change.
  void TieEvents(const std::function<void()>& cambiati);
  void Leggi(DatiPutrelle& dati) const;

  Frame fraGeometria{form_, "fraGeometria", "GEOMETRIA DELLO SCHEMA"};
  FloatBox cdLunghezza{form_, "cdLunghezza", voci_.lunghezza, {.most = 99.99, .decimals = 2}};
  FloatBox cdAltezza{
      form_, "cdAltezza", "Altezza totale sezione [cm]", {.most = 999.9, .decimals = 1}};
  Frame fraMateriali{form_, "fraMateriali", "MATERIALI"};
  ComboBox cmbPutrella{form_, "cmbPutrella", "Putrella NP [ H in mm ]", AltezzeNP()};
  ComboBox cmbTipoDiFerro{form_, "cmbTipoDiFerro", "Tipo di Acciaio", NomiGradiAcciaio()};
  ComboBox cmbTavellone{form_, "cmbTavellone", "Tipo di Tavellone", NomiTavelloni()};
  Label lblTavelloni{form_, "lblTavelloni", kNotaTavelloni, Label::Style::Note};
  Label lblModuli{form_, "lblModuli", kNotaModuli, Label::Style::Note};
  Frame fraCarichi{form_, "fraCarichi", "CARICHI RIPARTITI a mq."};
  Schiera<FloatBox> cdCR{form_,
                         "cdCR",
                         0,
                         {"Solettina di ripartizione [Kg/mq]", "Peso Tavelloni [Kg/mq]",
                          "Peso Riempimento [Kg/mq]", "Altro Ripartito [Kg/mq]",
                          "Carichi Permanenti  [Kg/mq]", "Sovraccarico di esercizio [Kg/mq]"},
                         kLimitiCarico};
  Label lblRiempimento{form_, "lblRiempimento", "", Label::Style::Warning};
  Button cmdCALC_RIEMPIMENTO{form_, "cmdCALC_RIEMPIMENTO", "Analisi..."};
  Button cmdCALCOLAPERMANENTE{form_, "cmdCALCOLAPERMANENTE", "Analisi..."};
  Button cmdCalc_Acc{form_, "cmdCalc_Acc", "Analisi..."};
  Frame fraDiretti{form_, "fraDiretti", voci_.carichiDiretti};
  FloatBox cdPesoProprio{form_, "cdCD(0)", "Peso Proprio Putrella [Kg/m]", kLimitiCarico};
  FloatBox cdDiretto{form_, "cdCD(1)", "Diretto ripartito [Kg/m]", kLimitiCarico};
  Label lblBlu{form_, "lblBlu",
               "I valori dei campi in blu sono calcolati automaticamente\n"
               "dalla procedura in funzione dei valori forniti in altri campi.",
               Label::Style::Note};

 private:
  void ScegliPutrella();
  void ScegliTavellone();
  double AltezzaDaRiempire() const;
  void SegnaRiempimento();

  double altezzaDelPeso_ = 0;  // to be filled when the weight of the filling was given, cm
};

}  // namespace orm
