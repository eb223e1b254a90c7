// What a script does in a form that is shown: its statements between `dialog` and the form's end.
#pragma once

#include <ostream>
#include <string>

#include "script/hand.h"
#include "script/script_files.h"
#include "script/statement.h"

namespace orm {

class FormStatements {
 public:
  // `output`: where `show` prints; nullptr: nowhere.
  FormStatements(Form& form, FormHand& hand, ScriptFiles& files, std::ostream* output)
      : form_(form), hand_(hand), files_(files), output_(output) {}

  // Gives back in Italian what does not hold, or an empty text.
  std::string Play(const Statement& statement);

 private:
  std::string PlayOn(Control& control, const Statement& statement);
  std::string Set(Control& control, const std::string& value);
  std::string Press(Control& control);
  std::string Expect(Control& control, const Word& value);
  static std::string ExpectLine(const char* what, const std::string& shown,
                                const std::string& wanted);
  void Show(Control& control);

  Form& form_;
  FormHand& hand_;
  ScriptFiles& files_;
  std::ostream* output_;
};

}  // namespace orm
