// frmPER_Criteri: the criteria of calculation, asked from the menu and before every calculation.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmPerCriteri : public Form {
 public:
  // Starts from the criteria of the run state. With a case at work only the groups that count for
  // it are active; the values of the others are kept. "O.K." takes all and writes CRITERI.PER.
  explicit FrmPerCriteri(RunState& stato);

  Frame fraCompensi{*this, "fraCompensi", "PERCENTUALE COMPENSI ACCESSORI"};
  OptionGroup tipoPercentuale;
  OptionButton Option1{*this, "Option1",
                       "CALCOLATA  secondo FILE PERSONALIZZATO ( es. criterio CASMEZ)",
                       tipoPercentuale};
  OptionButton Option2{*this, "Option2", "ASSEGNATA per CONVENZIONE", tipoPercentuale};
  OptionButton Option3{*this, "Option3",
                       "CRITERIO REGIONE CALABRIA PER ONORARI COLLAUDI TECNICI ED AMMINISTRATIVI",
                       tipoPercentuale};
  OptionButton Option13{*this, "Option13", "CALCOLATA secondo D.M. 4-4-01", tipoPercentuale};
  Frame fraPercentuale{*this, "fraPercentuale", "PERCENTUALE PER COMPENSI ACCESSORI"};
  FloatBox Percentualecompensi{*this,
                               "Percentualecompensi",
                               "",
                               {.most = 100, .decimals = 4, .unit = "max 60", .advised = 60}};
  Frame fraResidenza{*this, "fraResidenza", "RESIDENZA COLLAUDATORE"};
  OptionGroup residenza;
  OptionButton Option6{*this, "Option6", "Fuori Regione", residenza};
  OptionButton Option7{*this, "Option7", "Oltre 100 Km", residenza};
  OptionButton Option8{*this, "Option8", "Entro 100 Km", residenza};
  Frame fraDirezione{*this, "fraDirezione", "ONORARI DIREZIONE LAVORI con Aliquote"};
  OptionGroup direzione;
  OptionButton Option4{*this, "Option4", "CUMULATE", direzione};
  OptionButton Option5{*this, "Option5", "SEPARATE", direzione};
  Frame fraDecimali{*this, "fraDecimali", "NUMERO DECIMALI NELLE PERCENTUALI DI CALCOLO "};
  InterBox casellainteri1{*this, "casellainteri1", "Tabelle A, C, F e similari", Decimali()};
  InterBox casellainteri2{*this, "casellainteri2", "Compensi Accessori", Decimali()};
  Frame fraCompensiSu{*this, "fraCompensiSu", "COMPENSI ACCESSORI SU"};
  std::array<CheckBox, 2> chkCA{{{*this, "chkCA(0)", "SORVEGLIANZA"},
                                 {*this, "chkCA(1)", "MAGGIORAZIONE INCARICO PARZIALE"}}};
  Frame fraParere{*this, "fraParere", "PARERE CONGRUITÀ ORDINE PROFESSIONALE"};
  CheckBox chkStampaParere{*this, "chkStampaParere", "Stampa "};
  FloatBox cdQuotaFissa{*this,
                        "cdQuotaFissa",
                        "Quota fissa ( € )",
                        {.most = 999999.99, .trailingZeros = true, .currency = "€"}};
  FloatBox cdQuotaPercentuale{*this, "cdQuotaPercentuale", "Quota Percent.", Percento()};
  TestoBox tboxPresidente{
      *this, "tboxPresidente", "Presidente dell'Ordine", {.longest = 50, .width = 28}};
  Frame fraSpese{*this, "fraSpese", "SPESE AGGIUNTIVE PER IL COMMITTENTE"};
  CheckBox chkAggiuntive{*this, "chkAggiuntive", "Stampa "};
  std::array<CheckBox, 4> chkSpese{{{*this, "chkSpese(0)", "Contr. INARCASSA "},
                                    {*this, "chkSpese(1)", "Contr. INPS "},
                                    {*this, "chkSpese(2)", "I.V.A."},
                                    {*this, "chkSpese(3)", "Tassa Ordine per Rilascio Parere"}}};
  std::array<FloatBox, 3> cdPercentualeAggiuntive{
      {{*this, "cdPercentualeAggiuntive(0)", "", Percento()},
       {*this, "cdPercentualeAggiuntive(1)", "", Percento()},
       {*this, "cdPercentualeAggiuntive(2)", "", Percento()}}};
  Button btnOK{*this, "btnOK", "&O.K.", Button::Role::Default};

 private:
  // Nine decimals are the most that the rule of decimals itself asks for.
  static NumberLimits Decimali() { return {.most = 9, .unit = "0 per criterio automatico"}; }
  static NumberLimits Percento() { return {.most = 100, .unit = "%"}; }

  Layout Disposizione();
  void AttivaGruppi();
  // Passes over the controls, each with the value that it stands for.
  template <class Verso>
  void Voci(Criteri& criteri, Verso verso);
  void Conferma();

  RunState& stato_;
};

}  // namespace orm
