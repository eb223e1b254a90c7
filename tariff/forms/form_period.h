// The tariff period of a note, in a list of a case's dialog, and that of a row, in a dialog which
// the cases with lots of rows show under their own names.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "tariff/forms/input_form.h"
#include "tariff/law/table_periods.h"

namespace orm {

// The decrees from 1965 to 1987, with the dates of their validity.
using NomiPeriodi = std::array<std::string, kPeriodo1987>;
NomiPeriodi NomiDeiDecreti();

// The list of these decrees. A period that it lacks shows none, and stays.
struct ElencoDecreti : ComboBox {
  explicit ElencoDecreti(Form& form);
  void Mostra(const std::string& periodo);  // "1" to "5"
  void Prendi(std::string& periodo) const;
};

struct TestiTariffe {
  std::string nome, titolo, riquadro;
  NomiPeriodi periodi;
};

// frmPDL_Tariffe: the periods of the tariff.
TestiTariffe TestiPdlTariffe();

class FrmTariffe : public FormRiga {
 public:
  // Periods of a lot only go forward: those up to `ultimo`, the last one used, are not offered.
  // `periodo` is chosen at first, or the first one offered.
  FrmTariffe(RunState& stato, const TestiTariffe& testi, const PostoRiga& posto, int ultimo,
             const std::string& periodo);

  // Shows the form: 1 to 5, or nothing at the end of the periods, which comes by itself where a
  // new row has none left to choose. A row that exists is not dropped unseen.
  std::optional<std::int16_t> ChiediPeriodo();

  Frame Frame1{*this, "Frame1"};
  OptionGroup tipo;
  std::array<OptionButton, kPeriodo1987> Option{{{*this, "Option1", "", tipo},
                                                 {*this, "Option2", "", tipo},
                                                 {*this, "Option3", "", tipo},
                                                 {*this, "Option4", "", tipo},
                                                 {*this, "Option5", "", tipo}}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
  Button Command2{*this, "Command2", "FINE INPUT PERIODI"};

 private:
  void Conferma();
  std::int16_t periodo_ = 0;  // at first what is chosen then, 0 where none is left to choose
};

}  // namespace orm
