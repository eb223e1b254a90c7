#include "cases/coa/form.h"

#include "runtime/numbers.h"
#include "tariff/forms/amount_limits.h"

namespace orm {
namespace {

constexpr int kPrimoPeriodo = 3;

// What the list shows, or the value of a file that the list does not have.
std::int16_t Chosen(const ComboBox& list, int first, std::int16_t given) {
  return list.Index() < 0 ? given : static_cast<std::int16_t>(list.Index() + first);
}

}  // namespace

FrmCoaDati::FrmCoaDati(const RunState& stato, const DatiCoa& dati)
    : Form("frmCOA_Dati", "INPUT DATI PARCELLA PER COLLAUDO AMMINISTRATIVO"),
      cboDecreti(
          *this, "cboDecreti", "PERIODO TARIFFARIO",
          {"D.M. 13-04-1976  dal   06/05/76  al  18/07/81",
           "D.M. 29-06-1981  dal   19/07/81  al  30/06/87", "D.M. 11-06-1987  dopo lo 01/07/87"}),
      cboTipo(*this, "cboTipo", "TIPOLOGIA DI COLLAUDO",
              {"1 - COLLAUDO AMMINISTRATIVO", "2 - CERTIFICATO REGOLARE ESECUZIONE"}),
      cdImporto(*this, "cdImporto", "IMPORTO DEI LAVORI COLLAUDATI", kWorksEuro),
      ciImporto(*this, "ciImporto", "IMPORTO DEI LAVORI COLLAUDATI", kWorksLire),
      Image1(*this, "Image1", Image::Subject::Euro),
      // The 30 % are a note; nothing enforces them.
      cdMaggiorazione(*this, "cdMaggiorazione", "MAGGIORAZIONE PER COLLAUDO IN CORSO D'OPERA",
                      {.most = 999.99, .decimals = 2, .unit = "%   max 30%"}),
      ciNUMEROPAGINE(*this, "ciNUMEROPAGINE", "NUMERO FACCIATE DEI DOCUMENTI CONTABILI REVISIONATI",
                     {.most = 32767, .decimals = 0}),
      cmdProsegui(*this, "cmdProsegui", "&O.K.", Button::Role::Default),
      lire_(stato.ModoLire),
      given_(dati) {
  SetContent(Column({Fields({cboDecreti, cboTipo}), Row({Fields({cdImporto, ciImporto}), Image1}),
                     Fields({cdMaggiorazione, ciNUMEROPAGINE}), Buttons({cmdProsegui})}));
  cdImporto.SetVisible(!lire_);
  ciImporto.SetVisible(lire_);
  Image1.SetVisible(!lire_);
  cboTipo.onChange = [this] { ShowFieldsOfTesting(); };
  cmdProsegui.onPress = [this] { Confirm(); };

  cboDecreti.SetIndex(dati.PeriodoCollaudo - kPrimoPeriodo);
  cboTipo.SetIndex(dati.TipoCollaudo - 1);
  ShowFieldsOfTesting();  // a kind that the list lacks changes nothing and has neither field
  cdImporto.SetValue(dati.ImportoCollaudo);
  ciImporto.SetValue(dati.ImportoCollaudo);
  cdMaggiorazione.SetValue(dati.MaggiorazioneCollaudo);
  ciNUMEROPAGINE.SetValue(dati.NumeroFacciate);
}

void FrmCoaDati::ShowFieldsOfTesting() {
  cdMaggiorazione.SetVisible(cboTipo.Index() == 0);
  ciNUMEROPAGINE.SetVisible(cboTipo.Index() == 0);
}

// A certificate has neither surcharge nor pages, whatever the fields held before they were hidden.
void FrmCoaDati::Confirm() {
  if (!cdMaggiorazione.IsShown()) cdMaggiorazione.SetValue(0);
  if (!ciNUMEROPAGINE.IsShown()) ciNUMEROPAGINE.SetValue(0);
  Esci(Uscita::Conferma);
}

DatiCoa FrmCoaDati::Dati() const {
  return {.PeriodoCollaudo = Chosen(cboDecreti, kPrimoPeriodo, given_.PeriodoCollaudo),
          .ImportoCollaudo = lire_ ? ciImporto.Value() : cdImporto.Value(),
          .TipoCollaudo = Chosen(cboTipo, 1, given_.TipoCollaudo),
          .MaggiorazioneCollaudo = cdMaggiorazione.Value(),
          .NumeroFacciate = CheckedInt16(ciNUMEROPAGINE.Value())};
}

}  // namespace orm
