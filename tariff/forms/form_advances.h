// frmGEN_Acconti: what was agreed with the client: advances received and reduction. Its answer is
// the closing line of the data file.
#pragma once

#include <array>
#include <limits>

#include "runtime/data_file.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmGenAcconti : public FormInput {
 public:
  // Shows the closing values of the run state. "O.K." takes the new ones and writes them behind
  // `corpo`, the body of FileDatiAcconti. Leaving the form by its window changes nothing: the file
  // holds the values that the form was given already.
  FrmGenAcconti(RunState& stato, DataWriter corpo);

  Frame Frame1{*this, "Frame1", "Acconti ricevuti"};
  ImportoBox acconti{*this, stato_, "AccontiRicevuti", "", kAcconti};
  Label lblValuta{*this, "lblValuta", stato_.ModoLire ? "LIRE" : "EURO"};
  MarchioEuro Image1{*this, stato_};
  Frame Frame2{*this, "Frame2", "Riduzione"};
  OptionGroup tipo;
  OptionButton optRiduzione2{*this, "optRiduzione2", "Ex Art. 4 comma 12bis L. 155/89 ( max 20 %)",
                             tipo};
  OptionButton optRiduzione1{*this, "optRiduzione1", "Concordata", tipo};
  FloatBox cdPercentualeRiduzione{*this,
                                  "cdPercentualeRiduzione",
                                  "Percentuale di Riduzione ",
                                  {.most = 100, .decimals = 2, .unit = "%"}};
  Frame Frame3{*this, "Frame3", "Applicazione della riduzione su"};
  OptionGroup applicazione;
  std::array<OptionButton, 3> optApplicazione{
      {{*this, "optApplicazione(1)", "Onorari e Compensi Accessori", applicazione},
       {*this, "optApplicazione(2)", "solo Onorari", applicazione},
       {*this, "optApplicazione(3)", "solo Compensi Accessori", applicazione}}};
  Button OK{*this, "OK", "&O.K.", Button::Role::Default};

 private:
  static constexpr double kSenzaMassimo = std::numeric_limits<double>::infinity();

  void SegnaMassimo();
  void Conferma();
  const DataWriter corpo_;
};

}  // namespace orm
