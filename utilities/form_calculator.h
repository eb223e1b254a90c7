// The calculator and converter.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "utilities/calculator.h"

namespace orm {

class FrmUtiCalcolatrice : public Form {
 public:
  explicit FrmUtiCalcolatrice(RunState& run);

  Frame fraCalcolatrice{*this, "fraCalcolatrice", "CALCOLATRICE"};
  FloatBox cdNumero;
  Button cmdPiu{*this, "cmdPiu", "+"};
  Button cmdMeno{*this, "cmdMeno", "-"};
  Button cmdPer{*this, "cmdPer", "x"};
  Button cmdDiviso{*this, "cmdDiviso", ":"};
  Button cmdUguale{*this, "cmdUguale", "=", Button::Role::Default};
  Button cmdAzzera{*this, "cmdAzzera", "&C"};
  Frame fraConvertitore{*this, "fraConvertitore", "CONVERTITORE  (1 Euro = 1936,27 Lire)"};
  InterBox ciLire;
  Button cmdInEuro{*this, "cmdInEuro", "Lire in &Euro"};
  FloatBox cdEuro;
  Button cmdInLire{*this, "cmdInLire", "Euro in &Lire"};
  TestoBox Text1;  // the tape, to be read and copied
  Button cmdNastro{*this, "cmdNastro", "&Nastro nuovo"};
  Button cmdESCI{*this, "cmdESCI", "E&SCI", Button::Role::Close};

 private:
  void Premi(char operazione);
  void MostraNastro();

  RunState& run_;
  Calcolatrice calcolatrice_;
};

void MostraCalcolatrice(RunState& run);

}  // namespace orm
