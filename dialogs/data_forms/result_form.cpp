#include "dialogs/data_forms/result_form.h"

#include <utility>

namespace orm {

FormDiCalcolo::FormDiCalcolo(std::string nome, std::string titolo, Player& player)
    : Form(std::move(nome), std::move(titolo)), cmdSPIEGA(*this, player) {}

void FormDiCalcolo::OnDataChanged(Control& control) {
  if (calcolato_ && EDato(control)) SegnaCambiati();
}

void FormDiCalcolo::Calcolato(const std::string& verdetto, bool regge,
                              std::vector<Spiegazione> perche) {
  cmdSPIEGA.Di(std::move(perche));
  calcolato_ = true;
  PesaRisultati();
  lblEsito.SetStyle(regge ? Label::Style::Strong : Label::Style::Warning);
  lblEsito.SetText(verdetto);
}

void FormDiCalcolo::SenzaRisultati() {
  calcolato_ = false;
  PesaRisultati();
  cmdSPIEGA.Nessuna();
  lblEsito.SetStyle(Label::Style::Note);
  lblEsito.SetText(kDaCalcolare);
}

void FormDiCalcolo::SegnaCambiati() {
  if (!std::exchange(calcolato_, false)) return;
  PesaRisultati();
  cmdSPIEGA.Nessuna();
  lblEsito.SetStyle(Label::Style::Warning);
  lblEsito.SetText(kDatiCambiati);
  ADatiCambiati();
}

// The results stand in the numbers that nobody can write.
void FormDiCalcolo::PesaRisultati() {
  for (Control* control : Controls())
    if (auto* numero = dynamic_cast<NumberBox*>(control); numero != nullptr && numero->ReadOnly())
      numero->SetStale(!calcolato_);
}

}  // namespace orm
