#include "structures/steel_beams/form_cantilever.h"

#include "dialogs/message_boxes.h"
#include "structures/loads/form_edge.h"
#include "structures/steel_beams/report.h"
#include "structures/structural_report.h"

namespace orm {

FrmVerSbalziP::FrmVerSbalziP(RunState& stato)
    : FormRiprendibile("frmVER_SBALZI_P", "VERIFICA SBALZI A PUTRELLE E TAVELLONI", stato) {
  SetContent(Column({Row({Column({ingressi.Schema(),
                                  Group(fraEstremita, {Fields({Row({cdCarico, cmdCarico}),
                                                               Row({cdCoppia, cmdCOPPIA})})}),
                                  Group(fraZona, {Row({Option1, Option2, cmdCAR_SISMICHE})})}),
                          Column({ingressi.Carichi()})}),
                     risultati.Contents(lblEsito),
                     Buttons({comCalcola, cmdSTAMPA, cmdSPIEGA, cmdSALVA, cmdAPRI, ComEsci})}));
  SetFirstFocus(ingressi.cdLunghezza);
  Option2.SetValue(true);
  TieEvents();
  Azzera();
}

void FrmVerSbalziP::TieEvents() {
  const auto cambiati = [this] {
    SegnaCambiati();
    Azzera();
  };
  ingressi.TieEvents(cambiati);
  Option1.onChange = Option2.onChange = cdCarico.onChange = cdCoppia.onChange = cambiati;
  using Cerca = FrmStruttureCarichiEstremita::Cerca;
  cmdCarico.onPress = [this] {
    ChiediCarico(stato_, CarichiEstremita(stato_, Cerca::Carico), cdCarico);
  };
  cmdCOPPIA.onPress = [this] {
    ChiediCarico(stato_, CarichiEstremita(stato_, Cerca::Coppia), cdCoppia);
  };
  cmdCAR_SISMICHE.onPress = [this, cambiati] {
    ChiediCarichiSismici(stato_, cmdCAR_SISMICHE, cambiati);
  };
  comCalcola.onPress = [this] { Calcola(); };
  cmdSTAMPA.onPress = [this] { TryAndStay(stato_.player, [this] { Stampa(); }); };
  ComEsci.onPress = [this] { Close(); };
}

void FrmVerSbalziP::Azzera() {
  cmdCAR_SISMICHE.SetEnabled(Option1.Value());
  risultati.Azzera();
  cmdSTAMPA.SetEnabled(false);
}

DatiSbalzoP FrmVerSbalziP::Leggi() const {
  DatiSbalzoP dati;
  ingressi.Leggi(dati);
  dati.caricoEstremo = cdCarico.Value();
  dati.coppiaEstrema = cdCoppia.Value();
  if (Option1.Value()) dati.sisma = FattoriPer(CarichiSismici(stato_).Coefficienti());
  return dati;
}

void FrmVerSbalziP::Calcola() {
  const DatiSbalzoP dati = Leggi();
  Azzera();
  SenzaRisultati();
  if (dati.lunghezza == 0) {
    stato_.player.Ask(Avviso("IL CALCOLO NON VERRÁ ESEGUITO PERCHÈ LA LUNGHEZZA È ZERO"));
    return;
  }
  dati_ = dati;
  verifica_ = VerificaSbalzoP(dati);
  const bool entro = risultati.Mostra({{verifica_.ammesse.sigma, verifica_.calcolate.sigma},
                                       {verifica_.ammesse.tau, verifica_.calcolate.tau}});
  Calcolato(entro ? kEntroLimiti : kOltreLimiti, entro,
            risultati.Spiegate({verifica_.sigma, verifica_.tau}));
  cmdSTAMPA.SetEnabled(true);
}

void FrmVerSbalziP::Stampa() {
  RelazioneStrutturale(stato_, kRelazioneSbalzoP)
      .Stampa([this](ReportPrinter& testo, bool primo,
                     int numero) { StampaSbalzoP(testo, primo, numero, dati_, verifica_); },
              "LA STAMPA SARÁ ACCODATA A QUELLA DELLO SBALZO PRECEDENTE");
}

void MostraSbalziP(RunState& stato) { FrmVerSbalziP(stato).Presenta(); }

}  // namespace orm
