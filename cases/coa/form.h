// frmCOA_Dati: the data of a testing note.
#pragma once

#include "cases/coa/data.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmCoaDati : public FormInput {
 public:
  FrmCoaDati(RunState& stato, DatiCoa& dati);

  ComboBox cboDecreti{
      *this,
      "cboDecreti",
      "PERIODO TARIFFARIO",
      {"D.M. 13-04-1976  dal   06/05/76  al  18/07/81",
       "D.M. 29-06-1981  dal   19/07/81  al  30/06/87", "D.M. 11-06-1987  dopo lo 01/07/87"}};
  ComboBox cboTipo{*this,
                   "cboTipo",
                   "TIPOLOGIA DI COLLAUDO",
                   {"1 - COLLAUDO AMMINISTRATIVO", "2 - CERTIFICATO REGOLARE ESECUZIONE"}};
  ImportoBox importo{*this, stato_, "Importo", "IMPORTO DEI LAVORI COLLAUDATI"};
  MarchioEuro Image1{*this, stato_};
  // The 30 % are a note; nothing enforces them.
  FloatBox cdMaggiorazione{*this,
                           "cdMaggiorazione",
                           "MAGGIORAZIONE PER COLLAUDO IN CORSO D'OPERA",
                           {.most = 999.99, .decimals = 2, .unit = "%   max 30%", .advised = 30}};
  InterBox ciNUMEROPAGINE{*this,
                          "ciNUMEROPAGINE",
                          "NUMERO FACCIATE DEI DOCUMENTI CONTABILI REVISIONATI",
                          {.most = 32767, .decimals = 0}};
  Button cmdProsegui{*this, "cmdProsegui", "&O.K.", Button::Role::Default};

 private:
  void MostraCampiDelCollaudo();
  void Conferma();
  DatiCoa& dati_;
};

}  // namespace orm
