#include "dialogs/data_forms/result_form.h"

#include <utility>

namespace orm {

FormDiCalcolo::FormDiCalcolo(std::string nome, std::string titolo)
    : Form(std::move(nome), std::move(titolo)) {}

void FormDiCalcolo::OnDataChanged(Control& control) {
  if (calcolato_ && EDato(control)) SegnaCambiati();
}

void FormDiCalcolo::Calcolato(const std::string& verdetto, bool regge) {
  calcolato_ = true;
  lblEsito.SetStyle(regge ? Label::Style::Strong : Label::Style::Warning);
  lblEsito.SetText(verdetto);
}

void FormDiCalcolo::SenzaRisultati() {
  calcolato_ = false;
  lblEsito.SetStyle(Label::Style::Note);
  lblEsito.SetText(kDaCalcolare);
}

void FormDiCalcolo::SegnaCambiati() {
  if (!std::exchange(calcolato_, false)) return;
  lblEsito.SetStyle(Label::Style::Warning);
  lblEsito.SetText(kDatiCambiati);
  ADatiCambiati();
}

}  // namespace orm
