#include "cases/ppe/form.h"

#include "runtime/numbers.h"

namespace orm {
namespace {
// The counts are stored as whole numbers of 16 bits.
const NumberLimits kCount{.least = 0, .most = 32767};
}  // namespace

FrmPpeDati::FrmPpeDati(const DatiPpe& dati)
    : Form("frmPPE_Dati", "INPUT DATI PER ONORARIO PIANI PARTICELLARI DI ESPROPRIO"),
      ciPP{{{*this, "ciPP(0)", "Numero PARTITE CATASTALI", kCount},
            {*this, "ciPP(1)", "Numero PARTICELLE CATASTALI", kCount}}},
      Frame2(*this, "Frame2", "VERBALE DI CONSISTENZA"),
      ciVC{{{*this, "ciVC(0)", "Numero delle PARTICELLE CATASTALI", kCount},
            {*this, "ciVC(1)", "Numero FABBRICATI", kCount}}},
      ciFrazionamenti(*this, "ciFrazionamenti", "Numero dei FRAZIONAMENTI", kCount),
      cmdESCI(*this, "cmdESCI", "&FINE INPUT DATI", Button::Role::Default) {
  SetContent(Column({Fields({ciPP[0], ciPP[1]}), Group(Frame2, {Fields({ciVC[0], ciVC[1]})}),
                     Fields({ciFrazionamenti}), Buttons({cmdESCI})}));
  ciPP[0].SetValue(dati.NumPartite);
  ciPP[1].SetValue(dati.NumParticelle);
  ciVC[0].SetValue(dati.NumParticelleVerbale);
  ciVC[1].SetValue(dati.NumFabbricati);
  ciFrazionamenti.SetValue(dati.NumFrazionamenti);
  cmdESCI.onPress = [this] { Esci(Uscita::Conferma); };
}

DatiPpe FrmPpeDati::Dati() const {
  return {CheckedInt16(ciPP[0].Value()), CheckedInt16(ciPP[1].Value()),
          CheckedInt16(ciVC[0].Value()), CheckedInt16(ciVC[1].Value()),
          CheckedInt16(ciFrazionamenti.Value())};
}

}  // namespace orm
