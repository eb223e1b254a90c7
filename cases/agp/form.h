// frmAGP_Datig: how, by whom and when prices were updated.
#pragma once

#include "cases/agp/data.h"
#include "tariff/forms/form_period.h"

namespace orm {

class FrmAgpDatig : public Form {
 public:
  FrmAgpDatig(Player& player, DatiAgp& dati);

  Frame Frame1{*this, "Frame1", "AGGIORNAMENTO ESEGUITO IN BASE A"};
  OptionGroup metodo;
  OptionButton Option1{*this, "Option1", "SEMPLICI VARIAZIONI PERCENTUALI DEI PRIMITIVI PREZZI",
                       metodo};
  OptionButton Option2{*this, "Option2", "NUOVE ANALISI PREZZI", metodo};
  Frame Frame2{*this, "Frame2", "AGGIORNAMENTO ESEGUITO DALLO STESSO PROGETTISTA"};
  OptionGroup progettista;
  OptionButton OptionSI{*this, "OptionSI", "SI", progettista};
  OptionButton OptionNO{*this, "OptionNO", "NO", progettista};
  Frame Frame3{*this, "Frame3", "PRESTAZIONE ESEGUITA NEL PERIODO DI VALIDITA' DEL"};
  ElencoDecreti Decreti{*this};
  Button cmdAvvertenze{*this, "cmdAvvertenze", "Avvertenze"};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
  DatiAgp& dati_;
};

}  // namespace orm
