#include "cases/sic/forms.h"
#include "dialogs/message_boxes.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

FrmSicImporti::FrmSicImporti(RunState& stato, const PostoRiga& posto, LottoSic& lotto,
                             const std::vector<LottoSic>& altri)
    : FormInput(stato, "frmSIC_Importi", "SICUREZZA CANTIERI : IMPORTI DEI LAVORI NEL LOTTO ",
                "importi") {
  SetContent(Column({Row({lblClasse, lblCategoria, lblTariffa, Image1}),
                     Group(Frame1, {AmountFields({importo[0]})}),
                     Group(Frame2, {AmountFields({importo[1]})}), Buttons({Command1})}));
  lblClasse.SetText("CLASSE " + lotto.Classe);
  lblCategoria.SetText("CATEGORIA " + lotto.Categoria);
  lblCategoria.SetVisible(!lotto.Categoria.empty());
  lblTariffa.SetText("TARIFFA " + NomePeriodoTariffario(lotto.Tariffa == "6" ? 6 : 5));
  const Addendi addendi{ConNumero(posto, "LOTTO")};
  importo[0].Chiedi(Chiesto(lotto, &LottoSic::ImportoProgetto, altri, addendi));
  importo[1].Chiedi(Chiesto(lotto, &LottoSic::ImportoEsecuzione, altri, addendi));
  Command1.onPress = [this] { Conferma(importo); };
}

}  // namespace orm
