// frmPDL_Tariffe: the tariff period of a row of a lot.
#pragma once

#include "tariff/forms/form_period.h"

namespace orm {

class FrmPdlTariffe : public FrmTariffe {
 public:
  FrmPdlTariffe(Player& player, std::string dove, int ultimo, const std::string& periodo,
                bool esiste);
};

}  // namespace orm
