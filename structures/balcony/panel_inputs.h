// Panel of a stone balcony: what a person gives, kind, measures, loads, seismic zone.
#pragma once

#include <array>
#include <functional>
#include <span>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/balcony/balcony.h"
#include "structures/loads/load_form.h"
#include "structures/numbered_controls.h"
#include "structures/steel_profiles.h"

namespace orm {

// A measure: its caption, its letter in the drawing, its place in the data.
struct VoceMisura {
  const char* etichetta;
  const char* lettera;
  double DatiBalcone::*misura;
};

inline constexpr std::array kTipiBalcone = {"Lastra su putrelle in ferro",
                                            "Lastra su mensole in pietra", "Lastra semplice"};

// The measures of one kind of balcony: cdGeo1(1), ..., cdGeo2(1), ..., cdGeo3(1), ...
struct PannelloMisure {
  PannelloMisure(Form& form, TipoBalcone tipo);
  void Leggi(DatiBalcone& dati) const;

  std::span<const VoceMisura> voci;
  Frame fraGeo;
  std::deque<FloatBox> cdGeo;
};

class PannelloDatiBalcone {
  Form& form_;  // before the controls, which are built on it
  RunState& stato_;

 public:
  PannelloDatiBalcone(Form& form, RunState& stato);
  Layout Contents();
  // `cambiati` runs after any change, `altroTipo` before it when another kind was chosen.
  void TieEvents(const std::function<void()>& cambiati, const std::function<void()>& altroTipo);
  TipoBalcone Tipo() const { return static_cast<TipoBalcone>(gruppoTipo.Chosen()); }
  DatiBalcone Leggi() const;

  Frame fraTipo{form_, "fraTipo", "TIPO"};
  OptionGroup gruppoTipo;
  Schiera<OptionButton> optTipo{
      form_, "optTipo", 0, {kTipiBalcone.begin(), kTipiBalcone.end()}, gruppoTipo};
  std::array<PannelloMisure, 3> misure{{{form_, TipoBalcone::Putrelle},
                                        {form_, TipoBalcone::Mensole},
                                        {form_, TipoBalcone::LastraSemplice}}};
  ComboBox cmbPutrella{form_, "cmbPutrella", "Putrella NP [ H in mm ]", AltezzeNP()};
  Label lblModuli{form_, "lblModuli", kNotaModuli, Label::Style::Note};
  Frame fraCarichi{form_, "fraCarichi", "CARICHI"};
  FloatBox cdBordo{form_, "cdCarichi(1)", "Carico sui bordi liberi  [Kg/ml]", kLimitiCarico};
  FloatBox cdRipartito{form_, "cdCarichi(2)", "Sovraccarico ripartito  [Kg/mq]", kLimitiCarico};
  FloatBox cdPietra{form_, "cdCarichi(3)", "Peso specifico della pietra  [Kg/mc]", kLimitiCarico};
  Button cmdCalc_Est{form_, "cmdCalc_Est", "Analisi..."};
  Button cmdCalc_Acc{form_, "cmdCalc_Acc", "Analisi..."};
  Frame fraZona{form_, "fraZona", "ZONA SISMICA"};
  OptionGroup gruppoZona;
  OptionButton optSi{form_, "optZona(0)", "Si", gruppoZona};
  OptionButton optNo{form_, "optZona(1)", "No", gruppoZona};
  Button cmdCAR_SISMICHE{form_, "cmdCAR_SISMICHE", "Azioni sismiche..."};

 private:
  void Aggiorna();
};

}  // namespace orm
