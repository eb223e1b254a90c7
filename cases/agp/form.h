// frmAGP_Datig: how, by whom and when prices were updated.
#pragma once

#include "cases/agp/data.h"
#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class FrmAgpDatig : public Form {
 public:
  FrmAgpDatig(Player& player, const DatiAgp& dati);

  std::string TipoDiAggiornamento, EsecutoreDellAggiornamento, PeriodoTariffario;

  Frame Frame1;
  OptionGroup metodo;
  OptionButton Option1, Option2;
  Frame Frame2;
  OptionGroup progettista;
  OptionButton OptionSI, OptionNO;
  Frame Frame3;
  ComboBox Decreti;
  Button cmdAvvertenze, Command1;

 private:
  void Confirm();
};

}  // namespace orm
