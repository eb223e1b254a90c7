#include "tariff/forms/amount_box.h"

#include "runtime/text.h"
#include "tariff/money.h"

namespace orm {

ImportoBox::ImportoBox(Form& form, const RunState& stato, std::string nomeEuro,
                       std::string nomeLire, const std::string& didascalia,
                       const LimitiImporto& limiti)
    : cd(form, std::move(nomeEuro), didascalia, limiti.euro),
      ci(form, std::move(nomeLire), didascalia, limiti.lire),
      lire_(stato.ModoLire) {
  SetVisible(true);
}

void ImportoBox::SetValue(double valore) {
  cd.SetValue(valore);
  ci.SetValue(valore);
}

void ImportoBox::SetVisible(bool visibile) {
  cd.SetVisible(visibile && !lire_);
  ci.SetVisible(visibile && lire_);
}

void ImportoBox::SetCaption(const std::string& didascalia) {
  cd.SetCaption(didascalia);
  ci.SetCaption(didascalia);
}

void ImportoBox::Chiedi(const ImportoChiesto& importo) {
  chiesto_ = importo;
  SetVisible(importo.posto != nullptr);
  if (importo.posto != nullptr) SetValue(*importo.posto);
}

std::string ImportoBox::Eccesso(double altri) const {
  const double massimo = (lire_ ? ci.Limits() : cd.Limits()).most;
  const double somma = std::fabs(Value()) + altri;
  if (somma <= massimo) return "";
  std::string campo = chiesto_.addendi.riga;
  const auto aggiungi = [&campo](const std::string& nome) {
    if (!nome.empty()) campo += (campo.empty() ? "" : ", ") + TrimRight(nome);
  };
  if (const Frame* riquadro = ci.Parent()) aggiungi(riquadro->Caption());
  aggiungi(ci.Caption());
  std::string conGliAltri;
  if (altri != 0)
    conGliAltri = " CON " + std::string(chiesto_.addendi.altri) + " LA SOMMA È " +
                  FormattaCopia(somma, 2) + " E";
  return campo + ":" + conGliAltri + " NON PUÒ SUPERARE " + FormattaCopia(massimo, 2) + ".";
}

void ImportoBox::Prendi() const {
  if (chiesto_.posto != nullptr) *chiesto_.posto = Value();
}

Layout AmountFields(std::initializer_list<std::reference_wrapper<ImportoBox>> importi) {
  std::vector<Layout> campi;
  for (ImportoBox& importo : importi) {
    campi.emplace_back(importo.cd);
    campi.emplace_back(importo.ci);
  }
  return Fields(std::move(campi));
}

}  // namespace orm
