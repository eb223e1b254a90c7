// What stands in the controls of a form, to be put back when the form is left without confirming.
#pragma once

#include <functional>
#include <vector>

#include "dialogs/form.h"

namespace orm {

class FormValues {
 public:
  FormValues() = default;
  explicit FormValues(const Form& form);
  // The form must still be there. Events follow as for any other change.
  void PutBack() const;

 private:
  std::vector<std::function<void()>> setters_;
};

}  // namespace orm
