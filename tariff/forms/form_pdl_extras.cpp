#include "tariff/forms/form_pdl_extras.h"

#include <algorithm>

#include "tariff/accounting_block.h"
#include "tariff/law/table_e.h"

namespace orm {
namespace {

// The option of a kind of works, its coefficient behind its name.
std::string Voce(const LavoriContabilita& lavori) {
  return lavori.nome + CoefficienteInStringa(lavori.coefficiente);
}

}  // namespace

FrmPdlAltri::FrmPdlAltri(RunState& stato, std::string titolo, std::string rifiuto,
                         PrestazioniAggiuntive& prestazioni)
    : FormInput(stato, "frmPDL_Altri", std::move(titolo), "prestazioni aggiuntive"),
      rifiuto_(std::move(rifiuto)),
      prestazioni_(prestazioni) {
  SetContent(Column({Group(Frame1, {Check1, Check2, Check3, Check4}), Buttons({Command1})}));
  Check1.SetValue(prestazioni.Sorveglianza);
  Check2.SetValue(prestazioni.Contabilita);
  Check3.SetValue(prestazioni.Revisione);
  Check4.SetValue(prestazioni.Perizie);
  Check2.onChange = [this] { MostraRevisione(); };
  MostraRevisione();
  Command1.onPress = [this] { Conferma(); };
}

// A revision of prices is nothing without accounting.
void FrmPdlAltri::MostraRevisione() {
  Check3.SetVisible(Check2.Value());
  if (!Check2.Value()) Check3.SetValue(false);
}

void FrmPdlAltri::SoloContabilita() {
  Check2.onChange = {};
  for (CheckBox* check : {&Check1, &Check3, &Check4}) check->SetVisible(false);
}

void FrmPdlAltri::Conferma() {
  if (Check2.Value() && Rifiuta(rifiuto_)) return;
  prestazioni_ = {Check1.Value(), Check2.Value(), Check3.Value(), Check4.Value()};
  Esci(Uscita::Conferma);
}

FrmPdlCont::FrmPdlCont(const std::string& risposta)
    : Form("frmPDL_Cont", "MISURE e CONTABILITA'", "misure e contabilità"), Risposta(risposta) {
  SetContent(
      Column({Group(Frame1, {Option[0], Option[1], Option[2], Option[3]}), Buttons({Command1})}));
  for (std::size_t i = 0; i < Option.size(); ++i) Option[i].SetCaption(Voce(kLavoriClasse1[i]));
  if (risposta < "1" || risposta > "4") Risposta = "1";
  tipo.Choose(Risposta[0] - '1');
  Command1.onPress = [this] {
    Risposta = std::string(1, static_cast<char>('1' + std::max(tipo.Chosen(), 0)));
    Esci(Uscita::Conferma);
  };
}

double ChiediCoefficienteContabilita(Player& player, const std::string& Classe, double attuale) {
  if (Classe != "1") return kCoefficienteAltreClassi;
  const auto noto = std::ranges::find(kLavoriClasse1, attuale, &LavoriContabilita::coefficiente);
  const auto indice = noto - kLavoriClasse1.begin();
  FrmPdlCont form(noto == kLavoriClasse1.end() ? ""
                                               : std::string(1, static_cast<char>('1' + indice)));
  player.Show(form);
  return kLavoriClasse1[static_cast<std::size_t>(form.Risposta[0] - '1')].coefficiente;
}

std::string RifiutoContabilita(std::size_t righe) {
  if (righe < kRigheContabilita) return "";
  return OltreIlMassimo(kRigheContabilita, "LOTTI O RIGHE CON MISURE E CONTABILITÀ");
}

}  // namespace orm
