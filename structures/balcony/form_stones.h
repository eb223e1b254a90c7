// frmVER_PIETRE: allowed bending and shear stress of a stone.
#pragma once

#include <deque>

#include "dialogs/form.h"
#include "dialogs/form_values.h"
#include "structures/balcony/stones.h"

namespace orm {

// The form keeps its choice for as long as its caller keeps it; left by its window it has the
// choice from before.
class FrmVerPietre : public Form {
 public:
  FrmVerPietre();
  void OnOpen() override;
  void OnWindowClose() override;
  // Of the chosen stone's slider, or as typed for another stone; kg/cmq.
  double Sigma() const;
  double Tau() const;

  Frame fraPietra;
  OptionGroup gruppo;
  std::deque<OptionButton> optPietra;  // (1) to (7), the last is any other stone
  std::deque<Slider> sldPietraS;       // (0) to (5)
  Frame fraTensioni;
  FloatBox cdSigma, cdTau;
  Label lblValoriUsuali;
  Button OKButton;

 private:
  void Arrange();
  void TieEvents();
  const Pietra* Scelta() const;  // null for another stone
  void Mostra();

  FormValues prima_;
  double altraSigma_ = 0, altraTau_ = 0;  // as typed for another stone, while one of the list shows
};

}  // namespace orm
