// What the load dialogs have in common: lists of choices with a load each, and how a verification
// dialog asks one of them for a figure. A dialog lives as long as the run of the program.
#pragma once

#include <deque>
#include <functional>
#include <span>
#include <string>

#include "shell/state/run_state.h"
#include "structures/choices_form.h"
#include "structures/loads/unit_loads.h"

namespace orm {

// A load in kg/mq or kg/ml, or another figure that a person gives.
inline const NumberLimits kLimitiCarico{.most = 999999.99, .decimals = 2};
inline NumberLimits FinoA(double massimo, const std::string& unita) {
  return {.most = massimo, .decimals = 2, .unit = unita};
}

class FormCarichi : public FormScelte {
 public:
  using FormScelte::FormScelte;
  // The figure that the dialog was asked for.
  virtual double Totale() const = 0;
};

// Shows the dialog and gives `campo` its figure and the focus; a dialog left by its window changes
// nothing. A figure that the field could not show is told, and the dialog comes up again.
void ChiediCarico(RunState& stato, FormCarichi& form, FloatBox& campo);

// Option buttons with a load each; a choice without a load of its own has a field beside it, open
// while it is chosen.
class SceltaCarico {
 public:
  SceltaCarico(Form& form, const std::string& nome, std::span<const VoceCarico> voci,
               OptionGroup& gruppo, const std::string& unita);
  Layout Contents();
  double Carico() const;  // 0 when nothing is chosen
  void QuandoCambia(const std::function<void()>& azione);

 private:
  struct Voce {
    Voce(Form& form, const std::string& nome, const VoceCarico& voce, OptionGroup& gruppo)
        : opt(form, nome, voce.nome, gruppo), carico(voce.carico) {}
    OptionButton opt;
    double carico;
    FloatBox* campo = nullptr;
  };
  std::deque<Voce> voci_;
  std::deque<FloatBox> campi_;
};

}  // namespace orm
