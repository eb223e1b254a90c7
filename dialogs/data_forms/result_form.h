// A form whose results stand for the data that they were reckoned from: as soon as one of these
// changes the form says so, until the results are reckoned anew or go.
#pragma once

#include <string>

#include "dialogs/data_forms/explanations.h"

namespace orm {

class FormDiCalcolo : public Form {
 public:
  static constexpr const char* kDatiCambiati = "dati cambiati: ricalcolare";
  static constexpr const char* kDaCalcolare = "risultati da calcolare";

  FormDiCalcolo(std::string nome, std::string titolo, Player& player);
  void OnOpen() override { PesaRisultati(); }
  void OnDataChanged(Control& control) override;

  Label lblEsito{*this, "lblEsito", kDaCalcolare, Label::Style::Note};  // in every layout
  PulsanteSpiega cmdSPIEGA;                                             // likewise

 protected:
  // The results that are shown are those of the data; `regge`: none is beyond its limit;
  // `perche`: how each came about.
  void Calcolato(const std::string& verdetto, bool regge, std::vector<Spiegazione> perche);
  void SenzaRisultati();
  // Data of the results have changed, in this form or elsewhere.
  void SegnaCambiati();
  // What else the form shows of its results and is no longer true.
  virtual void ADatiCambiati() {}
  // A control that only chooses what is shown is none.
  virtual bool EDato(const Control&) const { return true; }

 private:
  void PesaRisultati();

  bool calcolato_ = false;
};

}  // namespace orm
