#include "cases/coa/form.h"

#include "runtime/numbers.h"

namespace orm {
namespace {

constexpr int kPrimoPeriodo = 3;

// What the list shows; a value of the file that the list does not have stays.
void Prendi(const ComboBox& lista, int primo, std::int16_t& valore) {
  if (lista.Index() >= 0) valore = static_cast<std::int16_t>(lista.Index() + primo);
}

}  // namespace

FrmCoaDati::FrmCoaDati(RunState& stato, DatiCoa& dati)
    : FormInput(stato, "frmCOA_Dati", "INPUT DATI PARCELLA PER COLLAUDO AMMINISTRATIVO",
                "dati del collaudo"),
      dati_(dati) {
  SetContent(Column({Fields({cboDecreti, cboTipo}), Row({AmountFields({importo}), Image1}),
                     Fields({cdMaggiorazione, ciNUMEROPAGINE}), Buttons({cmdProsegui})}));
  cboTipo.onChange = [this] { MostraCampiDelCollaudo(); };
  cmdProsegui.onPress = [this] { Conferma(); };

  cboDecreti.SetIndex(dati.PeriodoCollaudo - kPrimoPeriodo);
  cboTipo.SetIndex(dati.TipoCollaudo - 1);
  MostraCampiDelCollaudo();  // a kind that the list lacks changes nothing and has neither field
  importo.Chiedi({&dati.ImportoCollaudo});
  cdMaggiorazione.SetValue(dati.MaggiorazioneCollaudo);
  ciNUMEROPAGINE.SetValue(dati.NumeroFacciate);
}

void FrmCoaDati::MostraCampiDelCollaudo() {
  cdMaggiorazione.SetVisible(cboTipo.Index() == 0);
  ciNUMEROPAGINE.SetVisible(cboTipo.Index() == 0);
}

// A certificate has neither surcharge nor pages, whatever the fields held before they were hidden.
void FrmCoaDati::Conferma() {
  Prendi(cboDecreti, kPrimoPeriodo, dati_.PeriodoCollaudo);
  Prendi(cboTipo, 1, dati_.TipoCollaudo);
  importo.Prendi();
  dati_.MaggiorazioneCollaudo = cdMaggiorazione.IsShown() ? cdMaggiorazione.Value() : 0;
  dati_.NumeroFacciate = ciNUMEROPAGINE.IsShown() ? CheckedInt16(ciNUMEROPAGINE.Value()) : 0;
  Esci(Uscita::Conferma);
}

}  // namespace orm
