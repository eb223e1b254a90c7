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
    cdNumero.SetShown(" ");  // a draft that is no number goes as well
    cdNumero.SetValue(0);
    Aggiorna();
    MoveFocus(cdNumero);
  };
  cmdPiu.SetKeys("+");
  cmdMeno.SetKeys("-");
  cmdPer.SetKeys("*xX");
  cmdDiviso.SetKeys("/:");
  cmdUguale.SetKeys("=");
  cmdAzzera.SetKeys("\x1b");
  cdNumero.onChange = [this] { Aggiorna(); };
  Text1.onLine = [this](int riga) { Riprendi(riga); };
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
  Aggiorna();
}

void FrmUtiCalcolatrice::Premi(char operazione) {
  try {
    cdNumero.SetValue(calcolatrice_.Premi(cdNumero.Value(), operazione));
    MostraNastro();
    Aggiorna();
  } catch (const RuntimeFailure& rifiuto) {
    stato_.player.Ask(Avviso(rifiuto.Reason()));
  }
  MoveFocus(cdNumero);
}

void FrmUtiCalcolatrice::Riprendi(int riga) {
  const auto numero = calcolatrice_.SulNastro(static_cast<std::size_t>(riga));
  if (!numero) return;
  cdNumero.SetValue(*numero);
  MoveFocus(cdNumero);
}

// With nothing to forget the key of Escape leaves the form, as it does elsewhere.
void FrmUtiCalcolatrice::Aggiorna() {
  cmdAzzera.SetEnabled(cdNumero.Value() != 0 || !calcolatrice_.Azzerata());
}

void FrmUtiCalcolatrice::MostraNastro() { Text1.SetText(calcolatrice_.Nastro()); }

}  // namespace orm
