// A dialog of choices that outlives its showing, as its caller keeps it: it comes up with its last
// choices, and left by its window it has those from before.
#pragma once

#include <string>
#include <utility>

#include "dialogs/form.h"
#include "dialogs/form_values.h"
#include "dialogs/player.h"

namespace orm {

class FormScelte : public Form {
 public:
  FormScelte(std::string nome, std::string titolo) : Form(std::move(nome), std::move(titolo)) {
    OKButton.onPress = [this] { Esci(Uscita::Conferma); };
  }
  void OnOpen() override { Fissa(); }
  // What was given up is a draft like any other's; the choices are those from before.
  void Presenta(Player& player) {
    player.Show(*this);
    if (!Confermato()) Ripristina();
  }

  Button OKButton{*this, "OKButton", "&O.K.", Button::Role::Default};

 protected:
  // The choices to which a leaving without confirming goes back are those of now.
  void Fissa() { prima_ = FormValues(*this); }
  void Ripristina() { prima_.PutInto(*this); }

 private:
  FormValues prima_;
};

}  // namespace orm
