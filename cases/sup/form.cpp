#include "cases/sup/form.h"

namespace orm {
namespace {
constexpr NomeRiga kAttivita = {"attività", "l'attività", "le attività"};
}

FrmSupAttivita::FrmSupAttivita(RunState& stato, const PostoRiga& posto, AttivitaSup& attivita)
    : FormRiga(stato, "frmSUP_Attivita", "ATTIVITÀ DI SUPPORTO", "aliquota", posto, kAttivita,
               Command2),
      attivita_(attivita) {
  SetContent(
      Column({Label1, Fields({txtAttivita, Row({cdAliquota, lblTabellaB6})}), Fondo(Command1)}));
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
