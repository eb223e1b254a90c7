// What stands beside the boxes of services: the aliquot of each, the sum of those that are ticked,
// and the buttons that tick all of them or none.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "dialogs/form.h"
#include "tariff/money.h"

namespace orm {

// When the aliquot counts: with the choice of `scelta`, as often as `volte` says, by its share.
struct ContoAliquota {
  const CheckBox* scelta = nullptr;  // nullptr: the box itself
  NumberBox* volte = nullptr;        // nullptr: once
  double quota = 1;
};

class AliquoteServizi {
 public:
  explicit AliquoteServizi(Form& form) : form_(form) {}

  // The line of a box. Without an aliquot the tables have none for the works.
  Layout Riga(CheckBox& casella, std::optional<double> aliquota, ContoAliquota conto = {}) {
    Label& testo =
        testi_.emplace_back(form_, "lblAliquota_" + casella.Name(), "", Label::Style::Note);
    const std::string quota = conto.quota == 1 ? "" : " x " + FormattaCopia(conto.quota, 3);
    if (aliquota) testo.SetText(FormattaCopia(*aliquota, 3) + quota);
    if (conto.scelta == nullptr) conto.scelta = &casella;
    voci_.push_back({&casella, &testo, aliquota.value_or(0), conto});
    return Row({casella, testo});
  }
  Layout Piede() { return Row({cmdTutte, cmdNessuna, lblSomma}); }

  // Follows the boxes from here on: to be called when the form has set their own rules.
  void Segui() {
    const auto anche = [this](Control& control) {
      control.onChange = [this, prima = std::move(control.onChange)] {
        if (prima) prima();
        Somma();
      };
    };
    for (const Voce& voce : voci_) {
      anche(*voce.casella);
      if (voce.conto.volte != nullptr) anche(*voce.conto.volte);
      voce.testo->SetVisible(voce.casella->OwnVisible());
    }
    cmdTutte.onPress = [this] { Spunta(true); };
    cmdNessuna.onPress = [this] { Spunta(false); };
    Somma();
  }

  void Somma() {
    double somma = 0;
    for (const Voce& voce : voci_)
      if (voce.casella->IsShown() && voce.conto.scelta->Value())
        somma += voce.aliquota * voce.conto.quota *
                 (voce.conto.volte == nullptr ? 1 : voce.conto.volte->Value());
    lblSomma.SetText("Somma delle aliquote scelte: " + FormattaCopia(somma, 3));
  }

 private:
  struct Voce {
    CheckBox* casella;
    Label* testo;
    double aliquota;
    ContoAliquota conto;
  };

  void Spunta(bool tutte) {
    for (const Voce& voce : voci_)
      if (voce.casella->IsShown()) voce.casella->SetValue(tutte);
  }

  Form& form_;
  Button cmdTutte{form_, "cmdTutte", "&TUTTE"};
  Button cmdNessuna{form_, "cmdNessuna", "&NESSUNA"};
  Label lblSomma{form_, "lblSomma"};
  std::deque<Label> testi_;
  std::deque<Voce> voci_;
};

}  // namespace orm
