// Panel of a stone balcony: allowed stresses of the materials and the stresses that a check found.
#pragma once

#include <functional>
#include <vector>

#include "dialogs/data_forms/explanations.h"
#include "shell/state/run_state.h"
#include "structures/balcony/balcony.h"
#include "structures/numbered_controls.h"
#include "structures/steel_profiles.h"

namespace orm {

class PannelloTensioniBalcone {
  Form& form_;  // before the controls, which are built on it
  RunState& stato_;

 public:
  PannelloTensioniBalcone(Form& form, RunState& stato);
  Layout Materiali();
  Layout Risultati(Label& esito);
  void TieEvents(const std::function<void()>& cambiati);
  // Shows the rows that a kind of balcony has.
  void Scegli(TipoBalcone tipo);

  void Azzera();
  void MostraLimiti();  // once more when results have come
  // Shows the results and marks those beyond what is allowed.
  void Mostra(const RisultatiBalcone& risultati);
  // Of the results that the kind has, each with what it is held against.
  std::vector<Spiegazione> Spiegate(const RisultatiBalcone& risultati, CateneBalcone perche) const;
  // Whether a stress of the results is beyond what is allowed.
  bool Supera(const RisultatiBalcone& risultati) const;

  // The materials in the order of the rows, which the results follow: σ and τ of each, then the
  // wall.
  static constexpr const char *kLastra = "Pietra lastra", *kMensole = "Pietra mensole ",
                              *kAcciaio = "Acciaio";
  static constexpr const char *kSigma = "σ  [Kg/cmq]", *kTau = "τ  [Kg/cmq]";
  Frame fraMateriali{form_, "fraMateriali", "TENSIONI AMMISSIBILI"};
  Schiera<Label> lblMateriali{form_, "lblMateriali", 0, {"", kSigma, kTau, ""}};
  Schiera<FloatBox> cdMaterialiS{form_,
                                 "cdMaterialiS",
                                 0,
                                 {kLastra, kMensole, kAcciaio},
                                 NumberLimits{.most = 9999.99, .decimals = 2}};
  Schiera<FloatBox> cdMaterialiT{form_,
                                 "cdMaterialiT",
                                 0,
                                 {kLastra, kMensole, kAcciaio},
                                 NumberLimits{.most = 9999.99, .decimals = 2}};
  Schiera<Button> cdbMateriali{form_, "cdbMateriali", 0, {"Pietra...", "Pietra..."}};
  ComboBox cmbTipoDiFerro{form_, "cmbTipoDiFerro", "", NomiGradiAcciaio()};
  Frame fraRisultati{form_, "fraRisultati", "RISULTATI"};
  Schiera<Label> lblRisultati{form_, "lblRisultati", 0, {"", kSigma, kTau}};
  Schiera<FloatBox> cdOUT{
      form_,
      "cdOUT",
      0,
      {kLastra, kLastra, kMensole, kMensole, kAcciaio, kAcciaio, "Incremento su Muratura  "},
      NumberLimits{.least = -999999.9, .most = 999999.9, .decimals = 1}};

 private:
  double Ammessa(std::size_t mostrato) const;
  bool Supera(const RisultatiBalcone& risultati, std::size_t mostrato) const;
  void ChiediPietra(std::size_t pietra);
  void ScegliAcciaio();
};

}  // namespace orm
