// frmSTC_Dati: the data of a condition survey.
#pragma once

#include "cases/stc/data.h"
#include "dialogs/form.h"

namespace orm {

class FrmStcDati : public Form {
 public:
  explicit FrmStcDati(const DatiStc& dati);
  DatiStc Dati() const;  // as given when the form was left by its window

  double Maggiorazione;
  InterBox casellainteri1, casellainteri2, casellainteri3;
  CheckBox Check1;
  InterBox casellainteri4, casellainteri5;
  DatePicker DTPicker1;
  Label lblGiorno;
  Button Command1;

 private:
  DatiStc dati_;
  void Confirm();
};

}  // namespace orm
