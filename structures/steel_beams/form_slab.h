// frmVER_SOLAIO_P: check of a single-span floor of NP beams and hollow tiles.
#pragma once

#include "structures/resumable_form.h"
#include "structures/steel_beams/panel_inputs.h"
#include "structures/steel_beams/panel_results.h"
#include "structures/steel_beams/slab.h"

namespace orm {

class FrmVerSolaioP : public FormRiprendibile {
 public:
  explicit FrmVerSolaioP(RunState& stato);

  Frame fraPosizione{*this, "fraPosizione", "POSIZIONE SOLAIO"};
  OptionGroup gruppoPosizione;
  OptionButton Option1{*this, "Option1", "di Piano", gruppoPosizione};
  OptionButton Option2{*this, "Option2", "di Copertura", gruppoPosizione};
  PannelloDatiPutrelle ingressi{
      *this, stato_, {"Luce netta [m]", "CARICHI applicati direttamente alla putrella a ml."}};
  Frame fraCoefficienti{*this, "fraCoefficienti", "COEFFICENTI PER CALCOLO  MOMENTI"};
  FloatBox cdMezzeria{*this, "cdMezzeria", "Mezzeria   1/", {.most = 999.99, .decimals = 2}};
  FloatBox cdIncastro{*this, "cdIncastro", "Incastro   1/", {.most = 999.99, .decimals = 2}};
  Label lblFreccia{*this, "lblFreccia",
                   "Con un incastro di coefficiente minore di 12\nle frecce risultano in difetto.",
                   Label::Style::Warning};
  PannelloRisultatiPutrelle risultati{
      *this,
      {"Tensione normale max acciaio  [Kg/cmq]", "Tensione tangenziale max acciaio  [Kg/cmq]",
       "Freccia elastica per carico permanente [cm]", "Freccia elastica per carico totale [cm]"}};
  Button ComCalcola{*this, "ComCalcola", "&CALCOLA", Button::Role::Default};
  Button cmdSTAMPA{*this, "cmdSTAMPA", "&STAMPA"};
  Button ComEsci{*this, "ComEsci", "&ESCI", Button::Role::Close};

 private:
  void Azzera();
  DatiSolaioP Leggi() const;
  bool SiRifiuta(const DatiSolaioP& dati);
  void Calcola();
  void Stampa();

  // Of the check that is shown.
  DatiSolaioP dati_;
  RisultatiSolaioP verifica_;
};

void MostraSolaioP(RunState& stato);

}  // namespace orm
