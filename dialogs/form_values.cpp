#include "dialogs/form_values.h"

namespace orm {

FormValues::FormValues(const Form& form) {
  for (Control* control : form.Controls()) {
    if (auto* number = dynamic_cast<NumberBox*>(control))
      setters_.emplace_back([number, value = number->Value()] { number->SetValue(value); });
    else if (auto* text = dynamic_cast<TestoBox*>(control))
      setters_.emplace_back([text, value = text->Text()] { text->SetText(value); });
    else if (auto* option = dynamic_cast<OptionButton*>(control))
      setters_.emplace_back([option, value = option->Value()] { option->SetValue(value); });
    else if (auto* check = dynamic_cast<CheckBox*>(control))
      setters_.emplace_back([check, value = check->Value()] { check->SetValue(value); });
    else if (auto* slider = dynamic_cast<Slider*>(control))
      setters_.emplace_back(
          [slider, position = slider->Position()] { slider->SetPosition(position); });
    else if (auto* list = dynamic_cast<ListControl*>(control))
      setters_.emplace_back([list, value = list->Index()] { list->SetIndex(value); });
  }
}

void FormValues::PutBack() const {
  for (const auto& set : setters_) set();
}

}  // namespace orm
