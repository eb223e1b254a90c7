// frmGEN_Acconti: what was agreed with the client: advances received and reduction. Its answer is
// the closing line of the data file.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "runtime/data_file.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmGenAcconti : public Form {
 public:
  // Shows the closing values of the run state. "O.K." takes the new ones and writes them behind
  // `corpo`, the body of FileDatiAcconti. Leaving the form by its window changes nothing: the file
  // holds the values that the form was given already.
  FrmGenAcconti(RunState& stato, DataWriter corpo);

  Frame Frame1;
  FloatBox cdAccontiRicevuti;
  InterBox ciAccontiRicevuti;
  Label lblValuta;
  Image Image1;
  Frame Frame2;
  OptionGroup tipo;
  OptionButton optRiduzione2, optRiduzione1;
  FloatBox cdPercentualeRiduzione;
  Frame Frame3;
  OptionGroup applicazione;
  std::array<OptionButton, 3> optApplicazione;
  Button OK;

 private:
  void Confirm();
  RunState& stato_;
  DataWriter corpo_;
};

}  // namespace orm
