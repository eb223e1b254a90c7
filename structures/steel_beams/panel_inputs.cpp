#include "structures/steel_beams/panel_inputs.h"

#include "structures/loads/form_filling.h"
#include "structures/loads/form_permanent.h"
#include "structures/loads/form_service.h"
#include "structures/loads/hollow_tiles.h"
#include "structures/loads/load_form.h"

namespace orm {
namespace {

const NumberLimits kMetri{.most = 99.99, .decimals = 2};
const NumberLimits kCentimetri{.most = 999.9, .decimals = 1};

constexpr int kPrimaPutrella = 4;    // 160 mm
constexpr int kPrimoTavellone = 17;  // 80 x 6

}  // namespace

IngressiPutrelle::IngressiPutrelle(Form& form, RunState& stato, const VociPutrelle& voci)
    : fraGeometria(form, "fraGeometria", "GEOMETRIA DELLO SCHEMA"),
      cdLunghezza(form, "cdLunghezza", voci.lunghezza, kMetri),
      cdAltezza(form, "cdAltezza", "Altezza totale sezione [cm]", kCentimetri),
      fraMateriali(form, "fraMateriali", "MATERIALI"),
      cmbPutrella(form, "cmbPutrella", "Putrella NP [ H in mm ]", AltezzeNP()),
      cmbTipoDiFerro(form, "cmbTipoDiFerro", "Tipo di Acciaio", NomiGradiAcciaio()),
      cmbTavellone(form, "cmbTavellone", "Tipo di Tavellone", NomiTavelloni()),
      lblTavelloni(form, "lblTavelloni", kNotaTavelloni, Label::Style::Note),
      lblModuli(form, "lblModuli", kNotaModuli, Label::Style::Note),
      fraCarichi(form, "fraCarichi", "CARICHI RIPARTITI a mq."),
      cdCR{{{form, "cdCR(0)", "Solettina di ripartizione [Kg/mq]", kLimitiCarico},
            {form, "cdCR(1)", "Peso Tavelloni [Kg/mq]", kLimitiCarico},
            {form, "cdCR(2)", "Peso Riempimento [Kg/mq]", kLimitiCarico},
            {form, "cdCR(3)", "Altro Ripartito [Kg/mq]", kLimitiCarico},
            {form, "cdCR(4)", "Carichi Permanenti  [Kg/mq]", kLimitiCarico},
            {form, "cdCR(5)", "Sovraccarico di esercizio [Kg/mq]", kLimitiCarico}}},
      cmdCALC_RIEMPIMENTO(form, "cmdCALC_RIEMPIMENTO", "Analisi..."),
      cmdCALCOLAPERMANENTE(form, "cmdCALCOLAPERMANENTE", "Analisi..."),
      cmdCalc_Acc(form, "cmdCalc_Acc", "Analisi..."),
      fraDiretti(form, "fraDiretti", voci.carichiDiretti),
      cdCD{{{form, "cdCD(0)", "Peso Proprio Putrella [Kg/m]", kLimitiCarico},
            {form, "cdCD(1)", "Diretto ripartito [Kg/m]", kLimitiCarico}}},
      lblBlu(form, "lblBlu",
             "I valori dei campi in blu sono calcolati automaticamente\n"
             "dalla procedura in funzione dei valori forniti in altri campi.",
             Label::Style::Note),
      stato_(stato) {
  cdCR[PesoTavelloni].SetAutomatic();
  cdCD[0].SetAutomatic();
  cmbPutrella.SetIndex(kPrimaPutrella);
  cmbTipoDiFerro.SetIndex(0);
  cmbTavellone.SetIndex(kPrimoTavellone);
  ScegliPutrella();
  ScegliTavellone();
}

Layout IngressiPutrelle::Schema() {
  return Column(
      {Group(fraGeometria, {Fields({cdLunghezza, cdAltezza})}),
       Group(fraMateriali, {Fields({cmbPutrella, cmbTipoDiFerro, cmbTavellone}), lblTavelloni})});
}

Layout IngressiPutrelle::Carichi() {
  return Column({Group(fraCarichi,
                       {Fields({cdCR[Solettina], cdCR[PesoTavelloni],
                                Row({cdCR[Riempimento], cmdCALC_RIEMPIMENTO}), cdCR[AltroRipartito],
                                Row({cdCR[CarichiPermanentiRipartiti], cmdCALCOLAPERMANENTE}),
                                Row({cdCR[Sovraccarico], cmdCalc_Acc})})}),
                 Group(fraDiretti, {Fields({cdCD[0], cdCD[1]})}), lblBlu, lblModuli});
}

void IngressiPutrelle::TieEvents(const std::function<void()>& cambiati) {
  for (FloatBox* campo : {&cdLunghezza, &cdAltezza, &cdCD[0], &cdCD[1]}) campo->onChange = cambiati;
  for (FloatBox& carico : cdCR) carico.onChange = cambiati;
  cmbTipoDiFerro.onChange = cambiati;
  cmbPutrella.onChange = [this, cambiati] {
    ScegliPutrella();
    cambiati();
  };
  cmbTavellone.onChange = [this, cambiati] {
    ScegliTavellone();
    cambiati();
  };
  cmdCALC_RIEMPIMENTO.onPress = [this] {
    DatiPutrelle dati;
    Leggi(dati);
    ChiediCarico(stato_,
                 CarichiRiempimento(stato_, SpazioRiempimento(dati), AltezzaRiempimento(dati)),
                 cdCR[Riempimento]);
  };
  cmdCALCOLAPERMANENTE.onPress = [this] {
    ChiediCarico(stato_, CarichiPermanenti(stato_), cdCR[CarichiPermanentiRipartiti]);
  };
  cmdCalc_Acc.onPress = [this] {
    ChiediCarico(stato_, CarichiAccidentali(stato_), cdCR[Sovraccarico]);
  };
}

void IngressiPutrelle::ScegliPutrella() {
  cdCD[0].SetValue(ProfiloNP(cmbPutrella.ShownText()).P);
  lblModuli.SetVisible(ModuloInDifetto(cmbPutrella.ShownText()));
}

void IngressiPutrelle::ScegliTavellone() {
  cdCR[PesoTavelloni].SetValue(TavelloneDiLista(cmbTavellone.Index()).peso);
}

void IngressiPutrelle::Leggi(DatiPutrelle& dati) const {
  dati.lunghezza = cdLunghezza.Value();
  dati.altezza = cdAltezza.Value();
  dati.putrella = cmbPutrella.ShownText();
  dati.acciaio = cmbTipoDiFerro.ShownText();
  dati.tavellone = TavelloneDiLista(cmbTavellone.Index());
  for (std::size_t i = 0; i < cdCR.size(); ++i) dati.ripartiti[i] = cdCR[i].Value();
  dati.pesoProprio = cdCD[0].Value();
  dati.diretto = cdCD[1].Value();
}

}  // namespace orm
