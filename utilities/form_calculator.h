// The calculator and converter.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"
#include "utilities/calculator.h"

namespace orm {

class FrmUtiCalcolatrice : public Form {
 public:
  explicit FrmUtiCalcolatrice(RunState& stato);

  Frame fraCalcolatrice{*this, "fraCalcolatrice", "CALCOLATRICE"};
  FloatBox cdNumero{*this,
                    "cdNumero",
                    "Numero",
                    {.least = -kMassimo, .most = kMassimo, .decimals = 10, .pointIsComma = true}};
  Button cmdPiu{*this, "cmdPiu", "+"};
  Button cmdMeno{*this, "cmdMeno", "-"};
  Button cmdPer{*this, "cmdPer", "x"};
  Button cmdDiviso{*this, "cmdDiviso", ":"};
  Button cmdUguale{*this, "cmdUguale", "=", Button::Role::Default};
  Button cmdAzzera{*this, "cmdAzzera", "&C", Button::Role::Close};  // of the reckoning
  Frame fraConvertitore{*this, "fraConvertitore", "CONVERTITORE  (1 Euro = 1936,27 Lire)"};
  InterBox ciLire{*this, "ciLire", "Lire", kLavori.lire};
  Button cmdInEuro{*this, "cmdInEuro", "Lire in &Euro"};
  FloatBox cdEuro{*this, "cdEuro", "Euro", kLavori.euro};
  Button cmdInLire{*this, "cmdInLire", "Euro in &Lire"};
  // The tape, to be read and copied; a line that is pointed at brings its number back.
  TestoBox Text1{*this,
                 "Text1",
                 "Nastro",
                 {.longest = 100000,
                  .lines = 10,
                  .readOnly = true,
                  .width = 40,
                  .columns = true,
                  .hint = "Un clic su una riga riporta il suo numero nella calcolatrice"}};
  Button cmdNastro{*this, "cmdNastro", "&Nastro nuovo"};
  Button cmdESCI{*this, "cmdESCI", "E&SCI", Button::Role::Close};

 private:
  static constexpr double kMassimo = 999999999999999.0;

  void Premi(char operazione);
  void Riprendi(int riga);
  void MostraNastro();
  void Aggiorna();

  RunState& stato_;
  Calcolatrice calcolatrice_;
};

}  // namespace orm
