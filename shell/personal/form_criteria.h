// frmPER_Criteri: the criteria of calculation, asked from the menu and before every calculation.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmPerCriteri : public Form {
 public:
  // Starts from the criteria of the run state. With a case at work only the groups that count for
  // it are active; the values of the others are kept. "O.K." takes all and writes CRITERI.PER.
  explicit FrmPerCriteri(RunState& stato);

  Frame fraCompensi;
  OptionGroup tipoPercentuale;
  OptionButton Option1, Option2, Option3, Option13;
  Frame fraPercentuale;
  FloatBox Percentualecompensi;
  Frame fraResidenza;
  OptionGroup residenza;
  OptionButton Option6, Option7, Option8;
  Frame fraDirezione;
  OptionGroup direzione;
  OptionButton Option4, Option5;
  Frame fraDecimali;
  InterBox casellainteri1, casellainteri2;
  Frame fraCompensiSu;
  std::array<CheckBox, 2> chkCA;
  Frame fraParere;
  CheckBox chkStampaParere;
  FloatBox cdQuotaFissa, cdQuotaPercentuale;
  TestoBox tboxPresidente;
  Frame fraSpese;
  CheckBox chkAggiuntive;
  std::array<CheckBox, 4> chkSpese;
  std::array<FloatBox, 3> cdPercentualeAggiuntive;
  Button btnOK;

 private:
  void Show(const Criteri& criteri);
  Criteri Taken() const;
  void EnableGroups();
  RunState& stato_;
};

}  // namespace orm
