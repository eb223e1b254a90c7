#include "cases/sup/form.h"

namespace orm {

FrmSupAttivita::FrmSupAttivita(RunState& stato, const PostoRiga& posto, AttivitaSup& attivita)
    : FormRiga(stato, "frmSUP_Attivita", "ATTIVITÀ DI SUPPORTO", posto, Command2),
      attivita_(attivita) {
  SetContent(Column({Label1, Fields({txtAttivita, Row({cdAliquota, lblTabellaB6})}),
                     Buttons({Command1, Command2})}));
  Label1.SetText(Etichetta(posto, "ATTIVITÀ", "NUOVA"));
  txtAttivita.SetText(attivita.Attivita);
  cdAliquota.SetValue(attivita.Aliquota);
  Command1.onPress = [this] { Conferma(); };
}

void FrmSupAttivita::Conferma() {
  if (RifiutaRiga(posto_.rifiuto) ||
      RifiutaNullo(cdAliquota.Value(), "ALIQUOTA NON ACCETTABILE : nulla !"))
    return;
  attivita_ = {txtAttivita.Text(), cdAliquota.Value()};
  Esci(Uscita::Conferma);
}

}  // namespace orm
