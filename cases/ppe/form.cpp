#include "cases/ppe/form.h"

#include "runtime/numbers.h"

namespace orm {

FrmPpeDati::FrmPpeDati(DatiPpe& dati)
    : Form("frmPPE_Dati", "INPUT DATI PER ONORARIO PIANI PARTICELLARI DI ESPROPRIO",
           "dati del piano"),
      dati_(dati) {
  SetContent(Column({Fields({ciPP[0], ciPP[1]}), Group(Frame2, {Fields({ciVC[0], ciVC[1]})}),
                     Fields({ciFrazionamenti}), Buttons({cmdESCI})}));
  ciPP[0].SetValue(dati.NumPartite);
  ciPP[1].SetValue(dati.NumParticelle);
  ciVC[0].SetValue(dati.NumParticelleVerbale);
  ciVC[1].SetValue(dati.NumFabbricati);
  ciFrazionamenti.SetValue(dati.NumFrazionamenti);
  cmdESCI.onPress = [this] { Conferma(); };
}

void FrmPpeDati::Conferma() {
  dati_ = {CheckedInt16(ciPP[0].Value()), CheckedInt16(ciPP[1].Value()),
           CheckedInt16(ciVC[0].Value()), CheckedInt16(ciVC[1].Value()),
           CheckedInt16(ciFrazionamenti.Value())};
  Esci(Uscita::Conferma);
}

}  // namespace orm
