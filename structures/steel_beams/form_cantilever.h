// frmVER_SBALZI_P: check of a cantilever of NP beams and hollow tiles.
#pragma once

#include "structures/loads/form_seismic.h"
#include "structures/resumable_form.h"
#include "structures/steel_beams/cantilever.h"
#include "structures/steel_beams/panel_inputs.h"
#include "structures/steel_beams/panel_results.h"

namespace orm {

class FrmVerSbalziP : public FormRiprendibile {
 public:
  explicit FrmVerSbalziP(RunState& stato);

  PannelloDatiPutrelle ingressi{
      *this, stato_, {"Lunghezza sbalzo [m]", "CARICHI applicati lungo la putrella a ml."}};
  Frame fraEstremita{*this, "fraEstremita", "CARICHI di estremità per ml."};
  FloatBox cdCarico{*this, "cdCE(0)", "Carico [Kg/ml]", kLimitiCarico};
  FloatBox cdCoppia{*this, "cdCE(1)", "Coppia [Kg x m/ml]", kLimitiCarico};
  Button cmdCarico{*this, "cmdCarico", "Analisi..."};
  Button cmdCOPPIA{*this, "cmdCOPPIA", "Analisi..."};
  Frame fraZona{*this, "fraZona", "ZONA SISMICA"};
  OptionGroup gruppoZona;
  OptionButton Option1{*this, "Option1", "Si", gruppoZona};
  OptionButton Option2{*this, "Option2", "No", gruppoZona};
  Button cmdCAR_SISMICHE{*this, "cmdCAR_SISMICHE", "Azioni sismiche..."};
  PannelloRisultatiPutrelle risultati{
      *this,
      {"Tensione normale max acciaio  [Kg/cmq]", "Tensione tangenziale max acciaio  [Kg/cmq]"}};
  Button comCalcola{*this, "comCalcola", "&CALCOLA", Button::Role::Default};
  Button cmdSTAMPA{*this, "cmdSTAMPA", "&STAMPA"};
  Button ComEsci{*this, "ComEsci", "&ESCI", Button::Role::Close};

 private:
  std::vector<Form*> Annesse() const override { return {&CarichiSismici(stato_)}; }
  void TieEvents();
  void Azzera();
  DatiSbalzoP Leggi() const;
  void Calcola();
  void Stampa();

  // Of the check that is shown.
  DatiSbalzoP dati_;
  VerificaPutrella verifica_;
};

void MostraSbalziP(RunState& stato);

}  // namespace orm
