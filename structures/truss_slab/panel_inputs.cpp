#include "structures/truss_slab/panel_inputs.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"
#include "structures/loads/form_permanent.h"
#include "structures/loads/form_service.h"

namespace orm {

PannelloDatiSolaio::PannelloDatiSolaio(Form& form, RunState& stato) : form_(form), stato_(stato) {
  for (const std::size_t finoA16 : {0U, 3U, 4U})
    cmbFERRI[finoA16].SetItems({kDiametriFerri.begin(), kDiametriFerri.begin() + kDiametriFinoA16});
  for (Label* guida : {&lblBlu, &lblVuoto, &lblAutomatica, &lblZero}) guida->KeepOffPaper();
  ValoriIniziali();
}

Layout PannelloDatiSolaio::Contents() {
  return Row(
      {Column({Group(fraSchema, {Row({optSchema.begin(), optSchema.end()})}),
               Group(fraGeometria,
                     {Fields({cdLuce, cmbSolettina, cmbTavellone, cmbTipoDiFerro, cmbTipoDiCls})}),
               lblBlocchi, lblLaterizio, lblAltezza}),
       Column({Group(fraPosizione, {Row({Option1, Option2})}),
               Group(fraCoefficienti, {Fields({cmbCCM_SIN, cmbCCM_DEX, cmbCCM_MEZ})}),
               Group(fraCarichi, {Fields({cdProprio, Row({cdPermanente, cmdCALCOLAPERMANENTE}),
                                          Row({cdAccidentale, cmdCalc_Acc})})})}),
       Group(cmbFerri, {Fields({cmbFERRI.begin(), cmbFERRI.end()}), Row({cmdAutomatico, lblBlu}),
                        lblVuoto, lblAutomatica, lblZero})});
}

void PannelloDatiSolaio::ValoriIniziali() {
  optSchema[0].SetValue(true);
  Option1.SetValue(true);
  cmbSolettina.SetIndex(solettina_);
  cmbTavellone.SetIndex(blocco_);
  cmbTipoDiFerro.SetIndex(1);
  cmbTipoDiCls.SetIndex(0);
  cmbCCM_SIN.SetIndex(2);  // 1/12
  cmbCCM_DEX.SetIndex(2);
  cmbCCM_MEZ.SetIndex(1);  // 1/10
  for (ComboBox& lista : cmbFERRI) lista.SetIndex(0);
  cmdAutomatico.SetEnabled(false);
  cmdAutomatico.SetHint("Restituisce al programma la scelta dell'ultimo diametro imposto.");
  SegnalaAltezza();
  AggiornaPesoProprio();
}

void PannelloDatiSolaio::TieEvents(const std::function<void()>& cambiati) {
  for (ComboBox* lista : {&cmbTipoDiFerro, &cmbTipoDiCls, &cmbCCM_SIN, &cmbCCM_DEX, &cmbCCM_MEZ})
    lista->onChange = cambiati;
  for (std::size_t i = 0; i < kGeneriFerri; ++i) {
    cmbFERRI[i].onChange = [this, i, cambiati] {
      SegnaImposto(i);
      cambiati();
    };
  }
  cmdAutomatico.onPress = [this] {
    ComboBox& ultimo = cmbFERRI[imposti_.back()];
    ultimo.SetIndex(0);
    form_.MoveFocus(ultimo);
  };
  for (FloatBox* carico : {&cdProprio, &cdPermanente, &cdAccidentale}) carico->onChange = cambiati;
  Option1.onChange = Option2.onChange = cdLuce.onChange = [this, cambiati] {
    SegnalaAltezza();
    cambiati();
  };
  cdLuce.onLeave = [this] { AccettaLuce(); };
  cmbSolettina.onChange = [this, cambiati] {
    if (AccettaScelta(cmbSolettina, solettina_)) cambiati();
  };
  cmbTavellone.onChange = [this, cambiati] {
    if (AccettaScelta(cmbTavellone, blocco_)) cambiati();
  };
  for (OptionButton& opt : optSchema)
    opt.onChange = [this, cambiati] {
      AggiornaPesoProprio();
      cambiati();
    };
  cmdCALCOLAPERMANENTE.onPress = [this] {
    ChiediCarico(stato_, CarichiPermanenti(stato_), cdPermanente);
  };
  cmdCalc_Acc.onPress = [this] { ChiediCarico(stato_, CarichiAccidentali(stato_), cdAccidentale); };
}

double PannelloDatiSolaio::Solettina() const {
  return ParseNumber(cmbSolettina.ShownText()).value_or(0);
}

void PannelloDatiSolaio::Riprendi(const std::function<void()>& scrivi) {
  ritorno_ = true;
  scrivi();
  ritorno_ = false;
  solettina_ = cmbSolettina.Index();
  blocco_ = cmbTavellone.Index();
  luce_ = cdLuce.Value();
  SegnalaAltezza();
}

bool PannelloDatiSolaio::AltezzaScarsa() const {
  const DatiSolaioT dati = Leggi();
  return Option1.Value() && AltezzaInsufficiente(dati.luce, dati.H());
}

// One pair of block and slab goes on with its height in spite of the message.
bool PannelloDatiSolaio::AltezzaAmmessa() {
  if (!AltezzaScarsa()) return true;
  stato_.player.Ask(
      Avviso("ALTEZZA DEL SOLAIO INFERIORE AL MINIMO DI LEGGE PER LA LUCE ASSEGNATA"));
  const DatiSolaioT dati = Leggi();
  return dati.blocco.ends_with("38 x 28") && dati.solettina == 4;
}

bool PannelloDatiSolaio::AccettaLuce() {
  if (cdLuce.Value() == luce_) return true;
  const bool ammessa = AltezzaAmmessa();
  if (ammessa)
    luce_ = cdLuce.Value();
  else
    cdLuce.SetValue(luce_);
  return ammessa;
}

bool PannelloDatiSolaio::AccettaScelta(ComboBox& lista, int& accettata) {
  if (std::exchange(ritorno_, true)) return false;
  const bool ammessa = AltezzaAmmessa();
  if (ammessa)
    accettata = lista.Index();
  else
    lista.SetIndex(accettata);
  ritorno_ = false;
  if (!ammessa) return false;
  SegnalaAltezza();
  AggiornaPesoProprio();
  return true;
}

void PannelloDatiSolaio::SegnalaAltezza() {
  const bool scarsa = AltezzaScarsa();
  lblAltezza.SetVisible(scarsa);
  lblLaterizio.SetVisible(!scarsa);
}

void PannelloDatiSolaio::AggiornaPesoProprio() {
  cdProprio.SetValue(PesoProprioSolaio(Modulo(), Solettina(), cmbTavellone.ShownText()));
}

DatiSolaioT PannelloDatiSolaio::Leggi() const {
  DatiSolaioT dati;
  dati.modulo = Modulo();
  dati.luce = cdLuce.Value();
  dati.solettina = Solettina();
  dati.blocco = cmbTavellone.ShownText();
  dati.classeCls = cmbTipoDiCls.ShownText();
  dati.tipoFerro = cmbTipoDiFerro.ShownText();
  dati.pesoProprio = cdProprio.Value();
  dati.permanente = cdPermanente.Value();
  dati.accidentale = cdAccidentale.Value();
  dati.cSin = ParteDopoBarra(cmbCCM_SIN.ShownText());
  dati.cDex = ParteDopoBarra(cmbCCM_DEX.ShownText());
  dati.cMez = ParteDopoBarra(cmbCCM_MEZ.ShownText());
  for (std::size_t i = 0; i < kGeneriFerri; ++i) dati.ferri[i] = Ferro(i);
  return dati;
}

SceltaFerro PannelloDatiSolaio::Ferro(std::size_t genere) const {
  const ComboBox& lista = cmbFERRI[genere];
  return lista.IsAutomatic() ? SceltaFerro{} : LeggiSceltaFerro(lista.ShownText());
}

void PannelloDatiSolaio::SegnaImposto(std::size_t genere) {
  std::erase(imposti_, genere);
  if (Ferro(genere)) imposti_.push_back(genere);
  cmdAutomatico.SetEnabled(!imposti_.empty());
}

void PannelloDatiSolaio::ScriviFerri(const RisultatiSolaioT& risultati) {
  for (std::size_t i = 0; i < risultati.campata.size(); ++i) {
    if (Ferro(i)) continue;  // given
    const std::string diametro = NumberText(risultati.campata[i].diametro);
    cmbFERRI[i].Propose(cmbFERRI[i].PlaceOf(diametro));
  }
}

}  // namespace orm
