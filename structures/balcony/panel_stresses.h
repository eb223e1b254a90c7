// Allowed stresses of the materials of a stone balcony and the stresses that a check found.
#pragma once

#include <array>
#include <functional>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/balcony/balcony.h"
#include "structures/steel_profiles.h"

namespace orm {

// Elements with a stress limit, in the order of the rows.
enum class MaterialeBalcone : std::size_t { PietraLastra, PietraMensole, Acciaio };

class TensioniBalcone {
 public:
  TensioniBalcone(Form& form, RunState& stato);
  Layout Materiali();
  Layout Risultati();
  void TieEvents(const std::function<void()>& cambiati);
  // Shows the rows that a kind of balcony has.
  void Scegli(TipoBalcone tipo);

  void Azzera();
  // Shows the results, marks those beyond what is allowed; true when there are none.
  bool Mostra(const RisultatiBalcone& risultati);
  // Whether a stress of the results is beyond what is allowed.
  bool Supera(const RisultatiBalcone& risultati) const;

  // The results are named in the order in which they are shown, the wall last.
  Frame fraMateriali;
  std::array<Label, 4> lblMateriali;
  std::array<FloatBox, 3> cdMaterialiS, cdMaterialiT;
  std::array<Button, 2> cdbMateriali;
  ComboBox cmbTipoDiFerro;
  Frame fraRisultati;
  std::array<Label, 3> lblRisultati;
  std::array<FloatBox, 7> cdOUT;

 private:
  double Ammessa(std::size_t elemento) const;
  void ChiediPietra(std::size_t pietra);
  void ScegliAcciaio();
  FloatBox& Risultato(std::size_t elemento) { return cdOUT[elemento - 1]; }

  RunState& stato_;
};

}  // namespace orm
