// frmPDL_Prestazio: the services of Table B done in a row, or on the works that a report varies.
#pragma once

#include <array>

#include "dialogs/form.h"

namespace orm {

class FrmPdlPrestazio : public Form {
 public:
  enum class Modo { Riga, Perizia };  // a variation report has services of design alone

  FrmPdlPrestazio(std::string titolo, std::string dove, const std::string& tipo,
                  const std::string& stringa, Modo modo);
  // "T" or "P", and with "P" the letters; as given when the form was left by its window.
  std::string TipoDiPrestazione, StringaDellePrestazioni;

  Label lblLotto;
  Frame Frame1;
  OptionGroup scelta;
  OptionButton Option1, Option2;  // complete, partial
  Frame Frame2;
  std::array<CheckBox, 10> servizi;  // named by their letters
  Button Command1;

 private:
  void Confirm();
};

}  // namespace orm
