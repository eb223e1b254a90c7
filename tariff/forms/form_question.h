// frmGEN_SiNo: a question with the answers "SI" and "NO".
#pragma once

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class FrmGenSiNo : public Form {
 public:
  // `avvertenza`: a longer warning, hidden when empty.
  FrmGenSiNo(std::string titolo, std::string domanda, std::string avvertenza,
             const std::string& risposta);

  std::string Risposta;  // "SI" or "NO"; as given when the form was left by its window

  Label Label1;
  OptionGroup scelta;
  OptionButton OptionSI, OptionNO;
  Label Avvertenza;
  Button Command1;
};

// Shows the question; the answer.
std::string ChiediSiNo(Player& player, std::string titolo, std::string domanda,
                       std::string avvertenza, const std::string& risposta);

}  // namespace orm
