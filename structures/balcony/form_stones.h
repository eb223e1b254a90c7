// frmVER_PIETRE: allowed bending and shear stress of a stone.
#pragma once

#include <deque>

#include "structures/balcony/stones.h"
#include "structures/choices_form.h"

namespace orm {

class FrmVerPietre : public FormScelte {
 public:
  FrmVerPietre();
  std::vector<std::string> Hidden() const override;
  void SetHidden(const std::vector<std::string>& values) override;
  // Of the chosen stone's slider, or as typed for another stone; kg/cmq.
  double Sigma() const;
  double Tau() const;

  Frame fraPietra{*this, "fraPietra", "Tipo di pietra"};
  OptionGroup gruppo;
  std::deque<OptionButton> optPietra;  // (1) to (7), the last is any other stone
  std::deque<Slider> sldPietraS;       // (0) to (5)
  Frame fraTensioni{*this, "fraTensioni", "Tensioni ammissibili"};
  FloatBox cdSigma{*this, "cdSigma", "σ  a flessione", {.most = 9999.99, .unit = " [Kg/cmq]"}};
  FloatBox cdTau{*this, "cdTau", "τ", {.most = 9999.99, .unit = " [Kg/cmq]"}};
  Label lblValoriUsuali{*this, "lblValoriUsuali",
                        "Valori usuali dei manuali, da valutare per la pietra in opera.",
                        Label::Style::Note};

 private:
  void AggiungiPietra(const Pietra& pietra);
  Layout Disposizione();
  const Pietra* Scelta() const;  // null for another stone
  void Mostra();

  struct Altra {
    double sigma = 0, tau = 0;
  };
  Altra altra_;  // as typed for another stone, while one of the list shows
};

}  // namespace orm
