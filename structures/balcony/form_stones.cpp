#include "structures/balcony/form_stones.h"

#include <cmath>
#include <cstddef>

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
    altraSigma_ = cdSigma.Value();
    altraTau_ = cdTau.Value();
  };
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
  const bool scritta = altra && altraSigma_ + altraTau_ > 0;
  const double sigma = scritta ? altraSigma_ : Sigma(), tau = scritta ? altraTau_ : Tau();
  cdSigma.SetValue(sigma);
  cdTau.SetValue(tau);
}

}  // namespace orm
