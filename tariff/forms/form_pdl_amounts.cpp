#include "tariff/forms/form_pdl_amounts.h"

#include "dialogs/message_boxes.h"

namespace orm {

FrmPdlImporti::FrmPdlImporti(RunState& stato, std::string titolo, std::string dove,
                             const ImportiPdl& importi, const ImportiPdl& altri)
    : Form("frmPDL_Importi", std::move(titolo)),
      Importi(importi),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Image1(*this, "Image1", Image::Subject::Euro),
      Frame1(*this, "Frame1", "PROGETTAZIONE"),
      importo{{{*this, stato, "Importo1", "IMPORTO LAVORI", ImportoBox::Segno::Libero},
               {*this, stato, "Importo2", "ESPROPRI"},
               {*this, stato, "Importo3", "IMPORTO LAVORI SUPPLETIVI"},
               {*this, stato, "Importo4", "ESPROPRI  IN  PERIZIE"},
               {*this, stato, "Importo5", "IMPORTO ", ImportoBox::Segno::Libero}}},
      Frame2(*this, "Frame2", "PERIZIE"),
      Frame3(*this, "Frame3", "DIREZIONE LAVORI"),
      lblNota(*this, "lblNota", "Negativo per escluderlo dal calcolo dell'onorario",
              Label::Style::Note),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  auto& [lavori, espropri, suppletivi, espropriPerizie, direzione] = importo;
  SetContent(Column(
      {Row({lblLotto, Image1}),
       Group(Frame1, {Fields({lavori.cd, lavori.ci, espropri.cd, espropri.ci})}),
       Group(Frame2,
             {Fields({suppletivi.cd, suppletivi.ci, espropriPerizie.cd, espropriPerizie.ci})}),
       Group(Frame3, {Fields({direzione.cd, direzione.ci})}), lblNota, Buttons({Command1})}));
  Image1.SetVisible(!stato.ModoLire);
  for (std::size_t i = 0; i < importo.size(); ++i) importo[i].SetValue(importi[i]);
  Command1.onPress = [this, &stato, altri] { Confirm(stato, altri); };
}

void FrmPdlImporti::SoloProgettoEDirezione() {
  for (const std::size_t i : {1U, 2U, 3U}) importo[i].SetVisible(false);
  Frame2.SetVisible(false);
}

void FrmPdlImporti::Confirm(RunState& stato, const ImportiPdl& altri) {
  for (std::size_t i = 0; i < importo.size(); ++i)
    if (const std::string motivo = SommaEccessiva(importo[i], altri[i]); !motivo.empty()) {
      stato.player.Ask(Avviso(motivo));
      return;
    }
  for (std::size_t i = 0; i < importo.size(); ++i) Importi[i] = importo[i].Value();
  Close();
}

}  // namespace orm
