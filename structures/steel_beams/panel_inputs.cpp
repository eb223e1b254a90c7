#include "structures/steel_beams/panel_inputs.h"

#include "runtime/numbers.h"
#include "structures/loads/form_filling.h"
#include "structures/loads/form_permanent.h"
#include "structures/loads/form_service.h"

namespace orm {
namespace {

constexpr int kPrimaPutrella = 4;    // 160 mm
constexpr int kPrimoTavellone = 17;  // 80 x 6

}  // namespace

PannelloDatiPutrelle::PannelloDatiPutrelle(Form& form, RunState& stato, const VociPutrelle& voci)
    : form_(form), stato_(stato), voci_(voci) {
  cdCR[PesoTavelloni].SetAutomatic();
  cdPesoProprio.SetAutomatic();
  cmbPutrella.SetIndex(kPrimaPutrella);
  cmbTipoDiFerro.SetIndex(0);
  cmbTavellone.SetIndex(kPrimoTavellone);
  ScegliPutrella();
  ScegliTavellone();
  lblRiempimento.SetVisible(false);
}

Layout PannelloDatiPutrelle::Schema() {
  return Column(
      {Group(fraGeometria, {Fields({cdLunghezza, cdAltezza})}),
       Group(fraMateriali, {Fields({cmbPutrella, cmbTipoDiFerro, cmbTavellone}), lblTavelloni})});
}

Layout PannelloDatiPutrelle::Carichi() {
  return Column({Group(fraCarichi,
                       {Fields({cdCR[Solettina], cdCR[PesoTavelloni],
                                Row({cdCR[Riempimento], cmdCALC_RIEMPIMENTO}), cdCR[AltroRipartito],
                                Row({cdCR[CarichiPermanentiRipartiti], cmdCALCOLAPERMANENTE}),
                                Row({cdCR[Sovraccarico], cmdCalc_Acc})}),
                        lblRiempimento}),
                 Group(fraDiretti, {Fields({cdPesoProprio, cdDiretto})}), lblBlu, lblModuli});
}

void PannelloDatiPutrelle::TieEvents(const std::function<void()>& cambiati) {
  for (FloatBox* campo : {&cdLunghezza, &cdAltezza, &cdPesoProprio, &cdDiretto})
    campo->onChange = cambiati;
  for (FloatBox& carico : cdCR) carico.onChange = cambiati;
  cdCR[Riempimento].onChange = [this, cambiati] {
    altezzaDelPeso_ = AltezzaDaRiempire();
    SegnaRiempimento();
    cambiati();
  };
  cmbTipoDiFerro.onChange = cambiati;
  cmbPutrella.onChange = [this, cambiati] {
    ScegliPutrella();
    SegnaRiempimento();
    cambiati();
  };
  cmbTavellone.onChange = [this, cambiati] {
    ScegliTavellone();
    SegnaRiempimento();
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

void PannelloDatiPutrelle::ScegliPutrella() {
  cdPesoProprio.SetValue(ProfiloNP(cmbPutrella.ShownText()).P);
  lblModuli.SetVisible(ModuloInDifetto(cmbPutrella.ShownText()));
}

void PannelloDatiPutrelle::ScegliTavellone() {
  cdCR[PesoTavelloni].SetValue(TavelloneDiLista(cmbTavellone.Index()).peso);
}

double PannelloDatiPutrelle::AltezzaDaRiempire() const {
  DatiPutrelle dati;
  Leggi(dati);
  return AltezzaRiempimento(dati);
}

// The weight stays as it was given; that it is of another height is said.
void PannelloDatiPutrelle::SegnaRiempimento() {
  const double altezza = AltezzaDaRiempire();
  const bool altra = cdCR[Riempimento].Value() > 0 && altezza != altezzaDelPeso_;
  cdCR[Riempimento].SetWarning(altra);
  lblRiempimento.SetVisible(altra);
  if (altra)
    lblRiempimento.SetText("Il riempimento è di " + FormatPattern(altezzaDelPeso_, "0.##") +
                           " cm, ora ne ha " + FormatPattern(altezza, "0.##") + ".");
}

void PannelloDatiPutrelle::Leggi(DatiPutrelle& dati) const {
  dati.lunghezza = cdLunghezza.Value();
  dati.altezza = cdAltezza.Value();
  dati.putrella = cmbPutrella.ShownText();
  dati.acciaio = cmbTipoDiFerro.ShownText();
  dati.tavellone = TavelloneDiLista(cmbTavellone.Index());
  for (std::size_t i = 0; i < cdCR.size(); ++i) dati.ripartiti[i] = cdCR[i].Value();
  dati.pesoProprio = cdPesoProprio.Value();
  dati.diretto = cdDiretto.Value();
}

}  // namespace orm
