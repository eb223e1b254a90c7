// The dialogs of geotechnical services: subclass, period, amounts and services of a row.
#pragma once

#include <array>

#include "cases/geo/config.h"
#include "cases/geo/data.h"
#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"
#include "tariff/forms/form_period.h"
#include "tariff/forms/lot_chain.h"

namespace orm {

class FrmGeoClassi : public Form {
 public:
  FrmGeoClassi(Player& player, const PostoLotto& posto, const std::string& sottoclasse);

  // When not empty, why no further group can be entered: shown instead of taking it.
  std::string Rifiuto;
  // "1" to "4", "0" at the end of the input. Leaving the form by its window keeps a group that
  // exists and ends the input where a new one was asked.
  std::string Classe;

  Label Label1;
  Frame Frame1;
  OptionGroup tipo;
  std::array<OptionButton, kSottoclassiGeo> Option;
  Button Command2, Command1;
};

class FrmGeoTariffe : public FrmTariffe {
 public:
  FrmGeoTariffe(Player& player, const TabelleGeo& tabelle, std::string dove, int ultimo,
                const std::string& periodo, bool esiste);
};

class FrmGeoImporti : public Form {
 public:
  // `altriProgetto`, `altriDirezione`: what the note holds of each besides.
  FrmGeoImporti(RunState& stato, const std::string& tipo, std::string periodo, const RigaGeo& riga,
                double altriProgetto, double altriDirezione);

  std::string Tipo;                          // kind of fee note, which names the works supervised
  double ImportoProgetto, ImportoDirezione;  // as given until "O.K." takes new ones

  Frame Frame1;
  Label Label6;
  Image Image1;
  Frame Frame2;
  ImportoBox importo1;
  Label lblProgettazione;
  Frame Frame3;
  ImportoBox importo2;
  Label lblDirezione;
  Label lblNegativo;
  Button Command1;
};

class FrmGeoPrestazio : public Form {
 public:
  explicit FrmGeoPrestazio(std::string dove, const RigaGeo& riga);

  // "T" or "P" and the letters joined by "+"; as given until "O.K." takes new ones.
  std::string TipoDiPrestazione, StringaDellePrestazioni;

  Label lblLotto;
  Frame Frame1;
  OptionGroup tipo;
  OptionButton Option1, Option2;
  Frame Frame2;
  std::array<CheckBox, 6> Check;
  Button Command1;

 private:
  void Confirm();
};

}  // namespace orm
