#include "cases/pes/form.h"

namespace orm {
namespace {
constexpr NomeRiga kBene = {"bene", "il bene", "i beni"};
}

FrmPesDati::FrmPesDati(RunState& stato, const PostoRiga& posto, BenePes& bene,
                       const std::vector<BenePes>& altri)
    : FormRiga(stato, "frmPES_Dati", "PERIZIE ESTIMATIVE", "stima", posto, kBene, Command2),
      bene_(bene) {
  SetContent(Column({Label1, Fields({txtDescrizione}), Row({AmountFields({valore}), Image1}),
                     Fields({cdPercentuale}), lblTabellaF, Fondo(Command1)}));
  Label1.SetText(Etichetta(posto, "BENE"));
  txtDescrizione.SetText(bene.Descrizione);
  valore.Chiedi(
      Chiesto(bene, &BenePes::Valore, altri, {ConNumero(posto, "BENE"), "GLI ALTRI BENI"}));
  cdPercentuale.SetValue(bene.PercentualeTabellaF);
  Command1.onPress = [this] { Conferma(); };
}

void FrmPesDati::Conferma() {
  if (RifiutaRiga(posto_.rifiuto) ||
      RifiutaNullo(valore.Value(), "VALORE NON ACCETTABILE : importo nullo !") ||
      RifiutaNullo(cdPercentuale.Value(), "PERCENTUALE NON ACCETTABILE : nulla !") ||
      Rifiuta(valore.Eccesso()))
    return;
  bene_.Descrizione = txtDescrizione.Text();
  valore.Prendi();
  bene_.PercentualeTabellaF = cdPercentuale.Value();
  Esci(Uscita::Conferma);
}

}  // namespace orm
