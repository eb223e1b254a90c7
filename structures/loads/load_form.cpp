#include "structures/loads/load_form.h"

#include <utility>
#include <vector>

#include "dialogs/message_boxes.h"
#include "structures/numbered_controls.h"

namespace orm {

void ChiediCarico(RunState& stato, FormCarichi& form, FloatBox& campo) {
  const NumberLimits& limiti = campo.Limits();
  const auto entra = [&] { return form.Totale() >= limiti.least && form.Totale() <= limiti.most; };
  form.Presenta(stato.player);
  while (form.Confermato() && !entra()) {
    stato.player.Ask(Avviso("IL CARICO NON STA NEL SUO CAMPO\nPUÒ ANDARE DA " +
                            ShownNumber(limiti.least, limiti) + " A " +
                            ShownNumber(limiti.most, limiti)));
    form.Presenta(stato.player);
  }
  if (form.Confermato()) campo.SetValue(form.Totale());
  campo.Owner().MoveFocus(campo);
}

SceltaCarico::SceltaCarico(Form& form, const std::string& nome, std::span<const VoceCarico> voci,
                           OptionGroup& gruppo, const std::string& unita) {
  for (const VoceCarico& voce : voci) {
    Voce& nuova = voci_.emplace_back(form, NomeIndicizzato(nome, voci_.size()), voce, gruppo);
    if (voce.campo == nullptr) continue;
    NumberLimits limiti = kLimitiCarico;
    limiti.unit = unita;
    nuova.campo = &campi_.emplace_back(form, voce.campo, "", limiti);
    nuova.campo->SetEnabled(false);
  }
}

Layout SceltaCarico::Contents() {
  std::vector<Layout> lines;
  for (Voce& voce : voci_)
    lines.push_back(voce.campo == nullptr ? Layout(voce.opt) : Row({voce.opt, *voce.campo}));
  return Column(std::move(lines));
}

double SceltaCarico::Carico() const {
  for (const Voce& voce : voci_)
    if (voce.opt.Value()) return voce.campo == nullptr ? voce.carico : voce.campo->Value();
  return 0;
}

void SceltaCarico::QuandoCambia(const std::function<void()>& azione) {
  for (Voce& voce : voci_) {
    voce.opt.onChange = [&voce, azione] {
      if (voce.campo != nullptr) voce.campo->SetEnabled(voce.opt.Value());
      azione();
    };
    if (voce.campo != nullptr) voce.campo->onChange = azione;
  }
}

}  // namespace orm
