// What the two dialogs of bending share: the shape to choose, moment and materials, rows of
// reinforcement, results and notes, and the drawing.
#pragma once

#include <array>
#include <deque>
#include <string>

#include "dialogs/lavagna.h"
#include "shell/state/run_state.h"
#include "structures/numbered_controls.h"
#include "structures/resumable_form.h"
#include "structures/sections/bending_picture.h"
#include "structures/solvers/bending.h"

namespace orm {

// Limits of what can be typed: cm, kg x m, kg/cmq. Below 0 too: the check itself says that the
// measures are not acceptable.
inline const NumberLimits kLunghezza{.least = -99999.99, .most = 99999.99, .decimals = 2};
inline const NumberLimits kMomento{.least = -99999999.99, .most = 99999999.99, .decimals = 2};
inline const NumberLimits kTensione{.most = 99999.99, .decimals = 2};
// Room for any result that a section in use gives.
inline const NumberLimits kRisultato{.least = -99999.99, .most = 99999.99, .decimals = 2};

// Rows of reinforcement under their headings; the controls are numbered from `primo`, the rows
// from 1.
struct PannelloArmature {
  PannelloArmature(Form& form, std::size_t primo, const std::vector<std::string>& righe,
                   const char* riga, const std::string& distanza);
  Layout Contents();
  void Scrivi(std::size_t riga, const char* ferri, double distanza);

  Label lblRiga, lblFerri, lblDistanza;
  Schiera<FerriBox> CasellaFerri;
  Schiera<FloatBox> Distanza;  // how far the bars lie, cm
};

// The notes, and what else the dialogs differ in.
struct NoteFlessione {
  const char* benvenuto;
  const char* segni;
  const char* nonVerificata;
  bool provaCompresso;  // compressed steel is held against its limit too
};

class FormFlessione : public FormRiprendibile {
 public:
  FormFlessione(std::string nome, std::string titolo, RunState& stato, const NoteFlessione& note,
                const std::vector<std::string>& forme);
  void OnOpen() override;

  Frame fraTipo{*this, "fraTipo", "Tipo di sezione"};
  OptionGroup gruppo;
  std::deque<OptionButton> Option;  // Option1, Option2, ...
  Frame fraSollecitazioni{*this, "fraSollecitazioni", "SOLLECITAZIONI"};
  FloatBox CD_01{*this, "CD_01", "Momento flettente [Kgxml.]", kMomento};
  Frame fraMateriali{*this, "fraMateriali", "MATERIALI"};
  FloatBox CD_12{*this, "CD_12", "Tens. amm. acciaio [Kg/cmq]", kTensione};
  FloatBox CD_13{*this, "CD_13", "Tens. amm. cls [Kg/cmq]", kTensione};
  Frame fraGeometria{*this, "fraGeometria", "GEOMETRIA"};
  Frame fraArmature{*this, "fraArmature", "ARMATURE"};
  Frame fraRisultati{*this, "fraRisultati", "RISULTATI"};
  Schiera<FloatBox> cdOUT{
      *this,
      "cdOUT",
      1,
      {"Distanza Asse neutro da bordo superiore [cm.]", "Tens. cls.  bordo superiore [Kg/cmq]",
       "Tens. cls.  bordo inferiore [Kg/cmq]", "Tens. acciaio più vicino bordo sup.  [Kg/cmq]",
       "Tens. acciaio più vicino bordo inf.  [kg/cmq]"},
      kRisultato};
  Frame fraNote{*this, "fraNote", "NOTE"};
  Label Label_NOTA{*this, "Label_NOTA", "", Label::Style::Note};
  orm::Lavagna Lavagna{*this, "Lavagna", 30, 10, 504};
  Button ComCalcola{*this, "ComCalcola", "&CALCOLA", Button::Role::Default};
  Button ComEsci{*this, "ComEsci", "&ESCI", Button::Role::Close};

 protected:
  void ADatiCambiati() override;
  virtual void ScegliForma(std::size_t forma) = 0;
  virtual void Calcola() = 0;

  void Disponi(std::vector<Layout> geometria, std::vector<Layout> armature);
  void Avvisa(const std::string& testo);
  double Momento() const { return CD_01.Value() * 100.0; }  // kg x cm
  // A moment of 0 is told; true when there was one.
  bool SenzaMomento();
  TensioniAmmissibili Ammesse() const { return {CD_12.Value(), CD_13.Value()}; }
  void ScriviEsempio(double momento);
  void Mostra(const RisultatiFlessione& risultati, bool verificata, CateneFlessione perche);
  void Azzera();

 private:
  void Scegli(std::size_t forma);
  // The stress that is held against nothing, where compressed steel is not.
  std::size_t NonProvato() const { return note_.provaCompresso ? 0 : Momento() > 0 ? 3 : 4; }
  double Ammesso(std::size_t risultato) const {
    return risultato < 3 ? CD_13.Value() : CD_12.Value();
  }
  void MostraLimiti();

  NoteFlessione note_;
};

}  // namespace orm
