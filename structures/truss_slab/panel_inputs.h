// Panel of a truss-joist slab: what a person gives, the rule of the least height, and the self
// weight that follows from block, thickness and module.
#pragma once

#include <functional>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "structures/numbered_controls.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

template <class Voci>
std::vector<std::string> Elenco(const Voci& voci) {
  return {voci.begin(), voci.end()};
}

class PannelloDatiSolaio {
  Form& form_;  // before the controls, which are built on it
  RunState& stato_;

 public:
  PannelloDatiSolaio(Form& form, RunState& stato);
  Layout Contents();
  // `cambiati` runs after any change.
  void TieEvents(const std::function<void()>& cambiati);

  // Data that come all together, as they were left: no question about their height.
  void Riprendi(const std::function<void()>& scrivi);
  // Takes the span that was typed; false when it was refused with a message and set back.
  bool AccettaLuce();
  DatiSolaioT Leggi() const;
  // The diameters in the span that were left free show what was chosen, as the program's choice:
  // the next design chooses anew, until a person has chosen. Stubs that were left free stay free.
  void ScriviFerri(const RisultatiSolaioT& risultati);

  Frame fraSchema{form_, "fraSchema", "TIPO DI SOLAIO"};
  OptionGroup gruppoSchema;
  Schiera<OptionButton> optSchema{
      form_, "optSchema", 1, {kModuliSolaio[0].nome, kModuliSolaio[1].nome}, gruppoSchema};
  Frame fraPosizione{form_, "fraPosizione", "POSIZIONE IMPALCATO"};
  OptionGroup gruppoPosizione;
  OptionButton Option1{form_, "Option1", "di Piano", gruppoPosizione};
  OptionButton Option2{form_, "Option2", "di Copertura", gruppoPosizione};
  Frame fraGeometria{form_, "fraGeometria", "GEOMETRIA E MATERIALI"};
  FloatBox cdLuce{form_, "cdLuce", "Luce netta [ml]", {.most = 99.99, .decimals = 2}};
  ComboBox cmbSolettina{form_, "cmbSolettina", "Altezza  solettina [cm]",
                        Elenco(kSpessoriSolettina)};
  ComboBox cmbTavellone{form_, "cmbTavellone", "Tipo di Blocco", Elenco(kBlocchi)};
  Label lblBlocchi{form_, "lblBlocchi",
                   "I tipi di blocchi sono individuati da\nLarghezza x Altezza",
                   Label::Style::Note};
  Label lblLaterizio{form_, "lblLaterizio",
                     "Blocchi in laterizio aventi funzione\nprincipale di alleggerimento",
                     Label::Style::Note};
  Label lblAltezza{form_, "lblAltezza",  // in its place while the floor is lower than the law wants
                   "Altezza inferiore a 1/25 della luce\ndi calcolo.", Label::Style::Warning};
  ComboBox cmbTipoDiFerro{form_, "cmbTipoDiFerro", "Tipo di Acciaio", Elenco(kTipiDiFerro)};
  ComboBox cmbTipoDiCls{form_, "cmbTipoDiCls", "Classe Cls", NomiClassiCls()};
  Frame fraCoefficienti{form_, "fraCoefficienti", "COEFFICENTI PER CALCOLO  MOMENTI"};
  ComboBox cmbCCM_SIN{form_, "cmbCCM_SIN", "Incastro sin", Elenco(kCoefficientiIncastro)};
  ComboBox cmbCCM_DEX{form_, "cmbCCM_DEX", "Incastro dex", Elenco(kCoefficientiIncastro)};
  ComboBox cmbCCM_MEZ{form_, "cmbCCM_MEZ", "Mezzeria", Elenco(kCoefficientiMezzeria)};
  Frame fraCarichi{form_, "fraCarichi", "CARICHI RIPARTITI a mq."};
  FloatBox cdProprio{form_, "cdCR(1)", "Peso proprio   [Kg/mq]", {.most = 9999.9, .decimals = 1}};
  FloatBox cdPermanente{form_, "cdCR(2)", "Permanente   [Kg/mq]", {.most = 9999.9, .decimals = 1}};
  FloatBox cdAccidentale{
      form_, "cdCR(3)", "Accidentale   [Kg/mq]", {.most = 9999.9, .decimals = 1}};
  Button cmdCALCOLAPERMANENTE{form_, "cmdCALCOLAPERMANENTE", "Analisi..."};
  Button cmdCalc_Acc{form_, "cmdCalc_Acc", "Analisi..."};
  Frame cmbFerri{form_, "cmbFerri", "DIAMETRI DEI FERRI  [mm]"};
  Schiera<ComboBox> cmbFERRI{form_,
                             "cmbFERRI",
                             1,
                             {"Ferro aggiuntivo in campata", "Ferro integrativo n.1 in campata",
                              "Ferro integrativo n.2 in campata", "Moncone Lungo", "Moncone Corto"},
                             Elenco(kDiametriFerri)};
  Button cmdAutomatico{form_, "cmdAutomatico", "Automatico"};
  Label lblBlu{form_, "lblBlu",
               "In blu i diametri in campata scelti\nda CALCOLA, che li sceglie di nuovo.",
               Label::Style::Note};
  Label lblVuoto{
      form_, "lblVuoto",
      "VUOTO : scelta automatica  o  0 : se non si\nvuole il tipo di ferro o il diametro",
      Label::Style::Note};
  Label lblAutomatica{form_, "lblAutomatica",
                      "Per la scelta automatica del diametro\nlasciare il campo vuoto.",
                      Label::Style::Note};
  Label lblZero{form_, "lblZero",
                "Pe escludere un tipo di ferro porre il\nrelativo diametro uguale a zero.",
                Label::Style::Note};

 private:
  void ValoriIniziali();
  bool AltezzaScarsa() const;
  void SegnalaAltezza();
  SceltaFerro Ferro(std::size_t genere) const;
  void SegnaImposto(std::size_t genere);
  bool AltezzaAmmessa();
  bool AccettaScelta(ComboBox& lista, int& accettata);  // false: set back, nothing has changed
  void AggiornaPesoProprio();
  const ModuloSolaio& Modulo() const { return kModuliSolaio[optSchema[1].Value() ? 1 : 0]; }
  double Solettina() const;

  std::vector<std::size_t> imposti_;  // kinds whose diameter is given, the last one behind
  double luce_ = 0;                   // as last accepted, and so the two choices
  int solettina_ = 0;
  int blocco_ = 2;        // R 38 x 20, high enough for a usual room
  bool ritorno_ = false;  // while choices are set, not made
};

}  // namespace orm
