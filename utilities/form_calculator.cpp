// The calculator and converter.
#include "utilities/form_calculator.h"

#include "dialogs/message_boxes.h"
#include "runtime/failure.h"

namespace orm {

FrmUtiCalcolatrice::FrmUtiCalcolatrice(RunState& stato)
    : Form("frmUTI_CALCOLATRICE", "CALCOLATRICE - CONVERTITORE"), stato_(stato) {
  cmdPiu.onPress = [this] { Premi('+'); };
  cmdMeno.onPress = [this] { Premi('-'); };
  cmdPer.onPress = [this] { Premi('x'); };
  cmdDiviso.onPress = [this] { Premi(':'); };
  cmdUguale.onPress = [this] { Premi('='); };
  cmdAzzera.onPress = [this] {
    calcolatrice_.Azzera();
    cdNumero.SetValue(0);
    MoveFocus(cdNumero);
  };
  cmdInEuro.onPress = [this] {
    cdEuro.SetValue(calcolatrice_.LireInEuroSulNastro(ciLire.Value()));
    MostraNastro();
  };
  cmdInLire.onPress = [this] {
    ciLire.SetValue(calcolatrice_.EuroInLireSulNastro(cdEuro.Value()));
    MostraNastro();
  };
  cmdNastro.onPress = [this] {
    calcolatrice_.StrappaNastro();
    MostraNastro();
  };
  cmdESCI.onPress = [this] { Close(); };
  SetContent(Column(
      {Group(fraCalcolatrice,
             {Fields({cdNumero}), Row({cmdPiu, cmdMeno, cmdPer, cmdDiviso, cmdUguale, cmdAzzera})}),
       Group(fraConvertitore,
             {Row({Fields({ciLire}), cmdInEuro}), Row({Fields({cdEuro}), cmdInLire})}),
       Fields({Text1}), Buttons({cmdNastro, cmdESCI})}));
}

void FrmUtiCalcolatrice::Premi(char operazione) {
  try {
    cdNumero.SetValue(calcolatrice_.Premi(cdNumero.Value(), operazione));
    MostraNastro();
  } catch (const RuntimeFailure& rifiuto) {
    stato_.player.Ask(Avviso(rifiuto.Reason()));
  }
  MoveFocus(cdNumero);
}

void FrmUtiCalcolatrice::MostraNastro() { Text1.SetText(calcolatrice_.Nastro()); }

}  // namespace orm
