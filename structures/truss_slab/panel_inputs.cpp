#include "structures/truss_slab/panel_inputs.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "runtime/numbers.h"
#include "structures/loads/form_permanent.h"
#include "structures/loads/form_service.h"
#include "tariff/message_boxes.h"

namespace orm {
namespace {

const NumberLimits kCarico{.most = 9999.9, .decimals = 1};

template <class Voci>
std::vector<std::string> Elenco(const Voci& voci) {
  return {voci.begin(), voci.end()};
}

std::vector<std::string> Classi() {
  std::vector<std::string> elenco;
  for (const ParametriCls& cls : kClassiCls) elenco.emplace_back(cls.classe);
  return elenco;
}

std::vector<std::string> FinoA16() {
  return {kDiametriFerri.begin(), kDiametriFerri.begin() + kDiametriFinoA16};
}

std::string Testo(double diametro) { return NumberText(diametro); }

}  // namespace

IngressiSolaio::IngressiSolaio(Form& form, RunState& stato)
    : fraSchema(form, "fraSchema", "TIPO DI SOLAIO"),
      optSchema{{{form, "optSchema(1)", kModuliSolaio[0].nome, gruppoSchema},
                 {form, "optSchema(2)", kModuliSolaio[1].nome, gruppoSchema}}},
      fraPosizione(form, "fraPosizione", "POSIZIONE IMPALCATO"),
      Option1(form, "Option1", "di Piano", gruppoPosizione),
      Option2(form, "Option2", "di Copertura", gruppoPosizione),
      fraGeometria(form, "fraGeometria", "GEOMETRIA E MATERIALI"),
      cdLuce(form, "cdLuce", "Luce netta [ml]", {.most = 99.99, .decimals = 2}),
      cmbSolettina(form, "cmbSolettina", "Altezza  solettina [cm]", Elenco(kSpessoriSolettina)),
      cmbTavellone(form, "cmbTavellone", "Tipo di Blocco", Elenco(kBlocchi)),
      lblBlocchi(form, "lblBlocchi", "I tipi di blocchi sono individuati da\nLarghezza x Altezza",
                 Label::Style::Note),
      lblLaterizio(form, "lblLaterizio",
                   "Blocchi in laterizio aventi funzione\nprincipale di alleggerimento",
                   Label::Style::Note),
      lblAltezza(form, "lblAltezza", "Altezza inferiore a 1/25 della luce\ndi calcolo.",
                 Label::Style::Warning),
      cmbTipoDiFerro(form, "cmbTipoDiFerro", "Tipo di Acciaio", Elenco(kTipiDiFerro)),
      cmbTipoDiCls(form, "cmbTipoDiCls", "Classe Cls", Classi()),
      fraCoefficienti(form, "fraCoefficienti", "COEFFICENTI PER CALCOLO  MOMENTI"),
      cmbCCM_SIN(form, "cmbCCM_SIN", "Incastro sin", Elenco(kCoefficientiIncastro)),
      cmbCCM_DEX(form, "cmbCCM_DEX", "Incastro dex", Elenco(kCoefficientiIncastro)),
      cmbCCM_MEZ(form, "cmbCCM_MEZ", "Mezzeria", Elenco(kCoefficientiMezzeria)),
      fraCarichi(form, "fraCarichi", "CARICHI RIPARTITI a mq."),
      cdCR{{{form, "cdCR(1)", "Peso proprio   [Kg/mq]", kCarico},
            {form, "cdCR(2)", "Permanente   [Kg/mq]", kCarico},
            {form, "cdCR(3)", "Accidentale   [Kg/mq]", kCarico}}},
      cmdCALCOLAPERMANENTE(form, "cmdCALCOLAPERMANENTE", "Analisi..."),
      cmdCalc_Acc(form, "cmdCalc_Acc", "Analisi..."),
      cmbFerri(form, "cmbFerri", "DIAMETRI DEI FERRI  [mm]"),
      cmbFERRI{{{form, "cmbFERRI(1)", "Ferro aggiuntivo in campata", FinoA16()},
                {form, "cmbFERRI(2)", "Ferro integrativo n.1 in campata", Elenco(kDiametriFerri)},
                {form, "cmbFERRI(3)", "Ferro integrativo n.2 in campata", Elenco(kDiametriFerri)},
                {form, "cmbFERRI(4)", "Moncone Lungo", FinoA16()},
                {form, "cmbFERRI(5)", "Moncone Corto", FinoA16()}}},
      lblVuoto(form, "lblVuoto",
               "VUOTO : scelta automatica  o  0 : se non si\nvuole il tipo di ferro o il diametro",
               Label::Style::Note),
      lblAutomatica(form, "lblAutomatica",
                    "Per la scelta automatica del diametro\nlasciare il campo vuoto.",
                    Label::Style::Note),
      lblZero(form, "lblZero",
              "Pe escludere un tipo di ferro porre il\nrelativo diametro uguale a zero.",
              Label::Style::Note),
      stato_(stato) {}

Layout IngressiSolaio::Contents() {
  return Row(
      {Column({Group(fraSchema, {Row({optSchema[0], optSchema[1]})}),
               Group(fraGeometria,
                     {Fields({cdLuce, cmbSolettina, cmbTavellone, cmbTipoDiFerro, cmbTipoDiCls})}),
               lblBlocchi, lblLaterizio, lblAltezza}),
       Column({Group(fraPosizione, {Row({Option1, Option2})}),
               Group(fraCoefficienti, {Fields({cmbCCM_SIN, cmbCCM_DEX, cmbCCM_MEZ})}),
               Group(fraCarichi, {Fields({cdCR[0], Row({cdCR[1], cmdCALCOLAPERMANENTE}),
                                          Row({cdCR[2], cmdCalc_Acc})})})}),
       Group(cmbFerri, {Fields({cmbFERRI[0], cmbFERRI[1], cmbFERRI[2], cmbFERRI[3], cmbFERRI[4]}),
                        lblVuoto, lblAutomatica, lblZero})});
}

void IngressiSolaio::ValoriIniziali() {
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
  SegnalaAltezza();
  AggiornaPesoProprio();
}

void IngressiSolaio::TieEvents(const std::function<void()>& cambiati) {
  for (ComboBox* lista : {&cmbTipoDiFerro, &cmbTipoDiCls, &cmbCCM_SIN, &cmbCCM_DEX, &cmbCCM_MEZ})
    lista->onChange = cambiati;
  for (ComboBox& lista : cmbFERRI) lista.onChange = cambiati;
  for (FloatBox& carico : cdCR) carico.onChange = cambiati;
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
    ChiediCarico(stato_, CarichiPermanenti(stato_), cdCR[1]);
  };
  cmdCalc_Acc.onPress = [this] { ChiediCarico(stato_, CarichiAccidentali(stato_), cdCR[2]); };
}

double IngressiSolaio::Solettina() const {
  return ParseNumber(cmbSolettina.ShownText()).value_or(0);
}

void IngressiSolaio::Riprendi(const std::function<void()>& scrivi) {
  ritorno_ = true;
  scrivi();
  ritorno_ = false;
  solettina_ = cmbSolettina.Index();
  blocco_ = cmbTavellone.Index();
  luce_ = cdLuce.Value();
  SegnalaAltezza();
}

bool IngressiSolaio::AltezzaScarsa() const {
  const DatiSolaioT dati = Leggi();
  return Option1.Value() && AltezzaInsufficiente(dati.luce, dati.H());
}

// One pair of block and slab goes on with its height in spite of the message.
bool IngressiSolaio::AltezzaAmmessa() {
  if (!AltezzaScarsa()) return true;
  stato_.player.Ask(
      Avviso("ALTEZZA DEL SOLAIO INFERIORE AL MINIMO DI LEGGE PER LA LUCE ASSEGNATA"));
  const DatiSolaioT dati = Leggi();
  return dati.blocco.ends_with("38 x 28") && dati.solettina == 4;
}

bool IngressiSolaio::AccettaLuce() {
  if (cdLuce.Value() == luce_) return true;
  const bool ammessa = AltezzaAmmessa();
  if (ammessa)
    luce_ = cdLuce.Value();
  else
    cdLuce.SetValue(luce_);
  return ammessa;
}

bool IngressiSolaio::AccettaScelta(ComboBox& lista, int& accettata) {
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

void IngressiSolaio::SegnalaAltezza() {
  const bool scarsa = AltezzaScarsa();
  lblAltezza.SetVisible(scarsa);
  lblLaterizio.SetVisible(!scarsa);
}

void IngressiSolaio::AggiornaPesoProprio() {
  cdCR[0].SetValue(PesoProprioSolaio(Modulo(), Solettina(), cmbTavellone.ShownText()));
}

DatiSolaioT IngressiSolaio::Leggi() const {
  DatiSolaioT dati;
  dati.modulo = Modulo();
  dati.luce = cdLuce.Value();
  dati.solettina = Solettina();
  dati.blocco = cmbTavellone.ShownText();
  dati.classeCls = cmbTipoDiCls.ShownText();
  dati.tipoFerro = cmbTipoDiFerro.ShownText();
  dati.pesoProprio = cdCR[0].Value();
  dati.permanente = cdCR[1].Value();
  dati.accidentale = cdCR[2].Value();
  dati.cSin = ParteDopoBarra(cmbCCM_SIN.ShownText());
  dati.cDex = ParteDopoBarra(cmbCCM_DEX.ShownText());
  dati.cMez = ParteDopoBarra(cmbCCM_MEZ.ShownText());
  for (std::size_t i = 0; i < cmbFERRI.size(); ++i)
    dati.ferri[i] = LeggiSceltaFerro(cmbFERRI[i].ShownText());
  return dati;
}

void IngressiSolaio::ScriviFerri(const RisultatiSolaioT& risultati) {
  for (std::size_t i = 0; i < risultati.campata.size(); ++i)
    cmbFERRI[i].Enter(Testo(risultati.campata[i].diametro));
}

}  // namespace orm
