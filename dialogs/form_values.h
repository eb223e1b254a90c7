// What a person has put into a form, to be put back when the form is left without confirming, or
// into another form of the same kind.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "dialogs/form.h"

namespace orm {

class FormValues {
 public:
  FormValues() = default;
  explicit FormValues(const Form& form);
  bool IsEmpty() const { return values_.empty(); }
  bool operator==(const FormValues&) const = default;
  // Events follow as for any other change.
  void PutInto(Form& form) const;

 private:
  using Value = std::variant<bool, int, double, std::string>;
  std::vector<std::pair<std::string, Value>> values_;  // by the names of the controls
};

}  // namespace orm
