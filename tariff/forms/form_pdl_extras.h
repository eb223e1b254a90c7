// frmPDL_Altri and frmPDL_Cont: the services besides design and supervision, and the kind of
// building works that gives accounting its coefficient.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

struct PrestazioniAggiuntive {
  bool Sorveglianza = false, Contabilita = false, Revisione = false, Perizie = false;
};

class FrmPdlAltri : public Form {
 public:
  FrmPdlAltri(Player& player, std::string titolo, std::string dove,
              const PrestazioniAggiuntive& date);
  void SoloContabilita();  // the others are not offered

  // When not empty, why no further row can have its accounting: shown instead of taking the answer.
  std::string Rifiuto;
  PrestazioniAggiuntive Prestazioni;  // as given when the form was left by its window

  Label lblLotto;
  Frame Frame1;
  CheckBox Check1, Check2, Check3, Check4;
  Button Command1;

 private:
  void ShowRevision();
  void Confirm(Player& player);
};

class FrmPdlCont : public Form {
 public:
  // `risposta`: "1" to "4", in the order of the options; anything else is the first.
  FrmPdlCont(std::string dove, const std::string& risposta);
  std::string Risposta;

  Label lblLotto;
  Frame Frame1;
  OptionGroup tipo;
  std::array<OptionButton, 4> Option;
  Button Command1;
};

// The coefficient of accounting for a class; class "1" asks for the kind of works.
double ChiediCoefficienteContabilita(Player& player, const std::string& dove,
                                     const std::string& Classe, double attuale);

// Why an eleventh row of accounting is refused.
std::string RifiutoContabilita(std::size_t righe);

}  // namespace orm
