#include "structures/balcony/form_stones.h"

#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "structures/numbered_controls.h"

namespace orm {
namespace {
constexpr double kPassiPerKg = 10;  // so that the usual values lie on a step
}  // namespace

FrmVerPietre::FrmVerPietre() : FormScelte("frmVER_PIETRE", "TENSIONI AMMISSIBILI PIETRA") {
  for (const Pietra& pietra : kPietre) AggiungiPietra(pietra);
  optPietra.emplace_back(*this, NomeIndicizzato("optPietra", kPietre.size() + 1), kAltraPietra,
                         gruppo);
  SetContent(Disposizione());
  optPietra[0].SetValue(true);
  for (OptionButton& opt : optPietra) opt.onChange = [this] { Mostra(); };
  for (Slider& slider : sldPietraS) slider.onChange = [this] { Mostra(); };
  cdSigma.onChange = cdTau.onChange = [this] {
    if (Scelta() != nullptr) return;
    altra_ = {cdSigma.Value(), cdTau.Value()};
  };
  Mostra();
}

std::vector<std::string> FrmVerPietre::Hidden() const {
  return {NumberText(altra_.sigma), NumberText(altra_.tau)};
}

void FrmVerPietre::SetHidden(const std::vector<std::string>& values) {
  const auto letto = [](const FloatBox& campo, const std::string& testo) {
    const double valore = ParseNumber(testo).value_or(0);
    return valore >= campo.Limits().least && valore <= campo.Limits().most ? valore : 0;
  };
  altra_ = {letto(cdSigma, values[0]), letto(cdTau, values[1])};
  Mostra();
}

void FrmVerPietre::AggiungiPietra(const Pietra& pietra) {
  const std::size_t posto = sldPietraS.size();
  const auto& [minimo, massimo, usuale] = pietra.sigma;
  optPietra.emplace_back(*this, NomeIndicizzato("optPietra", posto + 1), pietra.nome, gruppo);
  sldPietraS.emplace_back(*this, NomeIndicizzato("sldPietraS", posto), "", minimo, massimo,
                          static_cast<int>(std::lround((massimo - minimo) * kPassiPerKg)));
  sldPietraS.back().SetValue(usuale);
}

Layout FrmVerPietre::Disposizione() {
  std::vector<Layout> righe;
  for (std::size_t i = 0; i < sldPietraS.size(); ++i)
    righe.push_back(Row({optPietra[i], sldPietraS[i]}));
  return Column({Group(fraPietra, {Fields(std::move(righe)), optPietra.back()}),
                 Group(fraTensioni, {Fields({cdSigma, cdTau})}), lblValoriUsuali,
                 Buttons({OKButton})});
}

const Pietra* FrmVerPietre::Scelta() const {
  const auto scelta = static_cast<std::size_t>(gruppo.Chosen());
  return scelta < kPietre.size() ? &kPietre[scelta] : nullptr;
}

double FrmVerPietre::Sigma() const {
  const auto scelta = static_cast<std::size_t>(gruppo.Chosen());
  return Scelta() == nullptr ? cdSigma.Value() : sldPietraS[scelta].Value();
}

double FrmVerPietre::Tau() const {
  const Pietra* pietra = Scelta();
  return pietra == nullptr ? cdTau.Value() : TauDiPietra(*pietra, Sigma());
}

void FrmVerPietre::Mostra() {
  const bool altra = Scelta() == nullptr;
  for (std::size_t i = 0; i < sldPietraS.size(); ++i)
    sldPietraS[i].SetEnabled(optPietra[i].Value());
  cdSigma.SetReadOnly(!altra);
  cdTau.SetReadOnly(!altra);
  const bool scritta = altra && altra_.sigma + altra_.tau > 0;
  const auto [sigma, tau] = scritta ? altra_ : Altra{Sigma(), Tau()};
  cdSigma.SetValue(sigma);
  cdTau.SetValue(tau);
}

}  // namespace orm
