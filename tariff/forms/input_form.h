// The forms of an input step: what they say when they do not take what was entered, and how one
// that asks a row of a list is left.
#pragma once

#include <span>

#include "tariff/forms/amount_box.h"
#include "tariff/forms/row_list.h"

namespace orm {

class FormInput : public Form {
 public:
  FormInput(RunState& stato, std::string nome, std::string titolo, std::string passo)
      : Form(std::move(nome), std::move(titolo), std::move(passo)), stato_(stato) {}

 protected:
  // Tells why what was entered is not taken: the form stays open. False for an empty reason, which
  // refuses nothing.
  bool Rifiuta(const std::string& motivo);
  // Takes amounts and leaves the form, or refuses the first that is too great for the report.
  void Conferma(std::span<const ImportoBox> importi);

  RunState& stato_;
};

class FormRiga : public FormInput {
 public:
  // Shows the form. False at the end of the list. Closing the window keeps a row that exists as it
  // is, and ends the list where a new one was asked.
  bool Chiedi();

 protected:
  // `riga`: how the list names its rows; `fine`: the button that ends the list.
  FormRiga(RunState& stato, std::string nome, std::string titolo, std::string passo,
           PostoRiga posto, const NomeRiga& riga, Button& fine)
      : FormInput(stato, std::move(nome), std::move(titolo), std::move(passo)),
        posto_(std::move(posto)),
        riga_(riga),
        fine_(fine) {}
  void OnOpen() override;
  // The foot of the form: beside the button that ends the list stands what it takes away.
  Layout Fondo(Button& conferma);

  // The same as Rifiuta, with the words that tell how the list ends.
  bool RifiutaRiga(const std::string& motivo);
  // Of a value that must not be 0.
  bool RifiutaNullo(double valore, const std::string& motivo) {
    return valore == 0 && RifiutaRiga(motivo);
  }

  const PostoRiga posto_;
  Label lblToglie{*this, "lblToglie", "", Label::Style::Note};

 private:
  const NomeRiga riga_;
  Button& fine_;
};

}  // namespace orm
