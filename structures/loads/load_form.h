// What the load dialogs have in common: their life, lists of choices with a load each, and how a
// verification dialog asks one of them for a figure.
#pragma once

#include <deque>
#include <span>
#include <string>

#include "dialogs/form.h"
#include "dialogs/form_values.h"
#include "shell/state/run_state.h"
#include "structures/loads/unit_loads.h"

namespace orm {

// A load in kg/mq or kg/ml, or another figure that a person gives.
inline const NumberLimits kLimitiCarico{.most = 999999.99, .decimals = 2};

// A dialog lives as long as the run of the program, so it comes up with its last choices. Left by
// its window it has the choices from before.
class FrmCarichi : public Form {
 public:
  using Form::Form;
  void OnOpen() override;
  void OnWindowClose() override;
  // The figure that the dialog was asked for.
  virtual double Totale() const = 0;

 protected:
  void Conferma();

 private:
  FormValues prima_;
};

// Shows the dialog and gives `campo` its figure and the focus; a dialog left by its window changes
// nothing.
void ChiediCarico(RunState& stato, FrmCarichi& form, FloatBox& campo);

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
