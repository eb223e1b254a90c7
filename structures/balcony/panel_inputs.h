// What a person gives for a stone balcony: kind, measures, loads, seismic zone.
#pragma once

#include <array>
#include <deque>
#include <functional>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/balcony/balcony.h"

namespace orm {

// A panel of measures for one kind of balcony; the letter of the drawing stands behind each field.
struct PannelloMisure {
  PannelloMisure(Form& form, TipoBalcone tipo);
  Layout Contents();
  double Misura(int indice) const { return cdGeo[static_cast<std::size_t>(indice) - 1].Value(); }

  Frame fraGeo;
  std::deque<FloatBox> cdGeo;  // cdGeo1(1), ..., cdGeo2(1), ..., cdGeo3(1), ...
};

class IngressiBalcone {
 public:
  IngressiBalcone(Form& form, RunState& stato);
  Layout Contents();
  // `cambiati` runs after any change.
  void TieEvents(const std::function<void()>& cambiati);
  TipoBalcone Tipo() const { return static_cast<TipoBalcone>(gruppoTipo.Chosen()); }
  DatiBalcone Leggi() const;

  // The measures and loads count from 1, the options from 0.
  Frame fraTipo;
  OptionGroup gruppoTipo;
  std::array<OptionButton, 3> optTipo;
  std::array<PannelloMisure, 3> misure;
  ComboBox cmbPutrella;
  Label lblModuli;
  Frame fraCarichi;
  std::array<FloatBox, 3> cdCarichi;
  Button cmdCalc_Est, cmdCalc_Acc;
  Frame fraZona;
  OptionGroup gruppoZona;
  std::array<OptionButton, 2> optZona;
  Button cmdCAR_SISMICHE;

 private:
  void ScegliTipo();
  void ScegliZona();
  void LeggiSuMensole(const PannelloMisure& pannello, DatiBalcone& dati) const;
  RunState& stato_;
};

}  // namespace orm
