// Groups of controls that the dialogs of bending share, and what they say.
#pragma once

#include <array>
#include <deque>
#include <initializer_list>
#include <string>

#include "dialogs/form.h"
#include "structures/message_boxes.h"

namespace orm {

inline constexpr const char* kMomentoNullo = "IL MOMENTO FLETTENTE È NULLO";
inline constexpr const char* kSegnoMomento = "POSITIVO se tende le fibbre inferiori";

// The materials of every example: steel FeB44k, concrete Rck 300.
inline constexpr double TensioneAcciaioEsempio = 2600;  // kg/cmq
inline constexpr double TensioneClsEsempio = 97.5;      // kg/cmq

// Limits of what can be typed: a length in cm, a moment in kg x m, a stress in kg/cmq.
NumberLimits LimitiLunghezza();
NumberLimits LimitiMomento();
NumberLimits LimitiTensione();

// "SOLLECITAZIONI" and "MATERIALI".
struct PannelloCarichi {
  explicit PannelloCarichi(Form& form);
  Layout Contents();
  void ScriviEsempio(double momento);

  Frame fraSollecitazioni;
  FloatBox CD_01;
  Frame fraMateriali;
  FloatBox CD_12, CD_13;
};

// "Tipo di sezione": Option1, Option2, ... one of which is chosen.
struct PannelloForme {
  PannelloForme(Form& form, std::initializer_list<const char*> nomi);
  Layout Contents();

  Frame fraTipo;
  OptionGroup gruppo;
  std::deque<OptionButton> Option;  // from 0
};

// One row of "ARMATURE": the bars, and how far they lie.
struct RigaArmatura {
  RigaArmatura(Form& form, std::size_t indice, const std::string& riga, const char* distanza);
  FerriBox CasellaFerri;
  FloatBox Distanza;
};

// Rows of reinforcement under their headings; the controls count on from `primo`, the rows from 1.
struct PannelloArmature {
  PannelloArmature(Form& form, std::size_t primo, std::size_t quante, const char* riga,
                   const char* distanza);
  Layout Contents();

  Label lblRiga, lblFerri, lblDistanza;
  std::deque<RigaArmatura> righe;
};

// "RISULTATI" and "NOTE".
struct PannelloRisultati {
  explicit PannelloRisultati(Form& form);
  Layout Valori();
  Layout Note();
  // Distance of the axis, stress of concrete at both edges, the two stresses of steel.
  void Mostra(const std::array<double, 5>& valori);
  void Azzera();

  Frame fraRisultati;
  std::array<FloatBox, 5> cdOUT;
  Frame fraNote;
  Label Label_NOTA;
};

}  // namespace orm
