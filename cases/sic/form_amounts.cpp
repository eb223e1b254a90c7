#include "cases/sic/forms.h"
#include "dialogs/message_boxes.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

FrmSicImporti::FrmSicImporti(RunState& stato, std::string titolo, const LottoSic& lotto,
                             double altriProgetto, double altriEsecuzione)
    : Form("frmSIC_Importi", std::move(titolo)),
      ImportoProgetto(lotto.ImportoProgetto),
      ImportoEsecuzione(lotto.ImportoEsecuzione),
      lblClasse(*this, "lblClasse", "CLASSE " + lotto.Classe),
      lblCategoria(*this, "lblCategoria", "CATEGORIA " + lotto.Categoria),
      lblTariffa(*this, "lblTariffa",
                 "TARIFFA " + NomePeriodoTariffario(lotto.Tariffa == "6" ? 6 : 5)),
      Image1(*this, "Image1", Image::Subject::Euro),
      Frame1(*this, "Frame1", "PROGETTAZIONE"),
      importo1(*this, stato, "Importo1", "IMPORTO LAVORI ", ImportoBox::Segno::Libero),
      Frame2(*this, "Frame2", "ESECUZIONE"),
      importo2(*this, stato, "Importo2", "IMPORTO LAVORI "),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({Row({lblClasse, lblCategoria, lblTariffa, Image1}),
                     Group(Frame1, {Fields({importo1.cd, importo1.ci})}),
                     Group(Frame2, {Fields({importo2.cd, importo2.ci})}), Buttons({Command1})}));
  lblCategoria.SetVisible(!lotto.Categoria.empty());
  Image1.SetVisible(!stato.ModoLire);
  importo1.SetValue(ImportoProgetto);
  importo2.SetValue(ImportoEsecuzione);
  Command1.onPress = [this, &stato, altriProgetto, altriEsecuzione] {
    std::string motivo = SommaEccessiva(importo1, altriProgetto);
    if (motivo.empty()) motivo = SommaEccessiva(importo2, altriEsecuzione);
    if (!motivo.empty()) {
      stato.player.Ask(Avviso(motivo));
      return;
    }
    ImportoProgetto = importo1.Value();
    ImportoEsecuzione = importo2.Value();
    Close();
  };
}

}  // namespace orm
