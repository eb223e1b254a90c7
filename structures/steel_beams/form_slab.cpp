#include "structures/steel_beams/form_slab.h"

#include "dialogs/message_boxes.h"
#include "structures/steel_beams/report.h"
#include "structures/structural_report.h"

namespace orm {
namespace {
constexpr double kAppoggio = 8;  // coefficient of a beam on two supports
}  // namespace

FrmVerSolaioP::FrmVerSolaioP(RunState& stato)
    : FormRiprendibile("frmVER_SOLAIO_P", "VERIFICA SOLAI MONOCAMPATA PUTRELLE E TAVELLONI",
                       stato) {
  SetContent(
      Column({Row({Column({Group(fraPosizione, {Row({Option1, Option2})}), ingressi.Schema(),
                           Group(fraCoefficienti, {Fields({cdMezzeria, cdIncastro}), lblFreccia})}),
                   Column({ingressi.Carichi()})}),
              risultati.Contents(lblEsito),
              Buttons({ComCalcola, cmdSTAMPA, cmdSPIEGA, cmdSALVA, cmdAPRI, ComEsci})}));
  SetFirstFocus(ingressi.cdLunghezza);
  Option1.SetValue(true);
  cdMezzeria.SetValue(kAppoggio);
  const auto cambiati = [this] {
    SegnaCambiati();
    Azzera();
  };
  ingressi.TieEvents(cambiati);
  Option1.onChange = Option2.onChange = cdMezzeria.onChange = cdIncastro.onChange = cambiati;
  ComCalcola.onPress = [this] { Calcola(); };
  cmdSTAMPA.onPress = [this] { TryAndStay(stato_.player, [this] { Stampa(); }); };
  ComEsci.onPress = [this] { Close(); };
  Azzera();
}

void FrmVerSolaioP::Azzera() {
  lblFreccia.SetVisible(IncastroEccessivo(cdIncastro.Value()));
  risultati.Azzera();
  cmdSTAMPA.SetEnabled(false);
}

DatiSolaioP FrmVerSolaioP::Leggi() const {
  DatiSolaioP dati;
  ingressi.Leggi(dati);
  dati.cMezzeria = cdMezzeria.Value();
  dati.cIncastro = cdIncastro.Value();
  return dati;
}

// A floor that is too low may be checked all the same.
bool FrmVerSolaioP::SiRifiuta(const DatiSolaioP& dati) {
  if (dati.lunghezza == 0) {
    stato_.player.Ask(Avviso("IL CALCOLO NON VERRÁ ESEGUITO PERCHÈ LA LUCE È ZERO"));
    return true;
  }
  if (dati.cMezzeria == 0 && dati.cIncastro == 0) {
    stato_.player.Ask(Avviso("IL CALCOLO NON VERRÁ ESEGUITO PERCHÈ I COEFFICENTI SONO ZERO"));
    return true;
  }
  return Option1.Value() && AltezzaSolaioInsufficiente(dati.lunghezza, dati.altezza) &&
         stato_.player.Ask(
             {kAttenzione,
              "ALTEZZA DEL SOLAIO INFERIORE AL MINIMO DI LEGGE PER LA LUCE ASSEGNATA\n"
              "ESEGUO CALCOLO ?",
              MessageBox::Icon::Question, MessageBox::Buttons::YesNo}) != Answer::Yes;
}

void FrmVerSolaioP::Calcola() {
  const DatiSolaioP dati = Leggi();
  Azzera();
  SenzaRisultati();
  if (SiRifiuta(dati)) return;
  dati_ = dati;
  verifica_ = VerificaSolaioP(dati);
  const bool entro =
      risultati.Mostra({{verifica_.ammesse.sigma, verifica_.calcolate.sigma},
                        {verifica_.ammesse.tau, verifica_.calcolate.tau},
                        {verifica_.permanente.accettata, verifica_.permanente.calcolata},
                        {verifica_.totale.accettata, verifica_.totale.calcolata}});
  Calcolato(entro ? kEntroLimiti : kOltreLimiti, entro,
            risultati.Spiegate({verifica_.sigma, verifica_.tau, verifica_.permanente.passi,
                                verifica_.totale.passi}));
  cmdSTAMPA.SetEnabled(true);
}

void FrmVerSolaioP::Stampa() {
  RelazioneStrutturale(stato_, kRelazioneSolaioP)
      .Stampa([this](ReportPrinter& testo, bool primo,
                     int numero) { StampaSolaioP(testo, primo, numero, dati_, verifica_); },
              "LA STAMPA SARÁ ACCODATA A QUELLA DEL SOLAIO PRECEDENTE");
}

void MostraSolaioP(RunState& stato) { FrmVerSolaioP(stato).Presenta(); }

}  // namespace orm
