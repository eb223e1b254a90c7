#include "structures/steel_beams/form_cantilever.h"

#include "structures/loads/form_edge.h"
#include "structures/loads/form_seismic.h"
#include "structures/steel_beams/report.h"
#include "structures/structural_report.h"
#include "tariff/message_boxes.h"

namespace orm {

FrmVerSbalziP::FrmVerSbalziP(RunState& stato)
    : FormRiprendibile("frmVER_SBALZI_P", "VERIFICA SBALZI A PUTRELLE E TAVELLONI"),
      ingressi(*this, stato, {"Lunghezza sbalzo [m]", "CARICHI applicati lungo la putrella a ml."}),
      fraEstremita(*this, "fraEstremita", "CARICHI di estremità per ml."),
      cdCE{{{*this, "cdCE(0)", "Carico [Kg/ml]", kLimitiCarico},
            {*this, "cdCE(1)", "Coppia [Kg x m/ml]", kLimitiCarico}}},
      cmdCarico(*this, "cmdCarico", "Analisi..."),
      cmdCOPPIA(*this, "cmdCOPPIA", "Analisi..."),
      fraZona(*this, "fraZona", "ZONA SISMICA"),
      Option1(*this, "Option1", "Si", gruppoZona),
      Option2(*this, "Option2", "No", gruppoZona),
      cmdCAR_SISMICHE(*this, "cmdCAR_SISMICHE", "Azioni sismiche..."),
      risultati(*this, {"Tensione normale max acciaio  [Kg/cmq]",
                        "Tensione tangenziale max acciaio  [Kg/cmq]"}),
      comCalcola(*this, "comCalcola", "&CALCOLA", Button::Role::Default),
      cmdSTAMPA(*this, "cmdSTAMPA", "&STAMPA"),
      ComEsci(*this, "ComEsci", "&ESCI", Button::Role::Close),
      stato_(stato) {
  SetContent(
      Column({Row({Column({ingressi.Schema(),
                           Group(fraEstremita,
                                 {Fields({Row({cdCE[0], cmdCarico}), Row({cdCE[1], cmdCOPPIA})})}),
                           Group(fraZona, {Row({Option1, Option2, cmdCAR_SISMICHE})})}),
                   Column({ingressi.Carichi()})}),
              risultati.Contents(), Buttons({cmdRIPRENDI, comCalcola, cmdSTAMPA, ComEsci})}));
  SetFirstFocus(ingressi.cdLunghezza);
  Option2.SetValue(true);
  TieEvents();
  Azzera();
}

void FrmVerSbalziP::TieEvents() {
  const auto cambiati = [this] { Azzera(); };
  ingressi.TieEvents(cambiati);
  Option1.onChange = Option2.onChange = cdCE[0].onChange = cdCE[1].onChange = cambiati;
  using Cerca = FrmStruttureCarichiEstremita::Cerca;
  cmdCarico.onPress = [this] {
    ChiediCarico(stato_, CarichiEstremita(stato_, Cerca::Carico), cdCE[0]);
  };
  cmdCOPPIA.onPress = [this] {
    ChiediCarico(stato_, CarichiEstremita(stato_, Cerca::Coppia), cdCE[1]);
  };
  cmdCAR_SISMICHE.onPress = [this] {
    ChiediCarichiSismici(stato_, cmdCAR_SISMICHE);
    if (CarichiSismici(stato_).Confermato()) Azzera();
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
  dati.caricoEstremo = cdCE[0].Value();
  dati.coppiaEstrema = cdCE[1].Value();
  if (Option1.Value()) dati.sisma = FattoriPer(CarichiSismici(stato_).Coefficienti());
  return dati;
}

void FrmVerSbalziP::Calcola() {
  const DatiSbalzoP dati = Leggi();
  Azzera();
  if (dati.lunghezza == 0) {
    stato_.player.Ask(Avviso("IL CALCOLO NON VERRÁ ESEGUITO PERCHÈ LA LUNGHEZZA È ZERO"));
    return;
  }
  dati_ = dati;
  verifica_ = VerificaSbalzoP(dati);
  risultati.Mostra({{verifica_.ammesse.sigma, verifica_.calcolate.sigma},
                    {verifica_.ammesse.tau, verifica_.calcolate.tau}});
  cmdSTAMPA.SetEnabled(true);
}

void FrmVerSbalziP::Stampa() {
  RelazioneStrutturale(stato_, kRelazioneSbalzoP)
      .Stampa([this](ReportPrinter& testo, bool primo,
                     int numero) { StampaSbalzoP(testo, primo, numero, dati_, verifica_); },
              "LA STAMPA SARÁ ACCODATA A QUELLA DELLO SBALZO PRECEDENTE");
}

void MostraSbalziP(RunState& stato) {
  FrmVerSbalziP form(stato);
  MostraRiprendibile(stato, form);
}

}  // namespace orm
