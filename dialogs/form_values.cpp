#include "dialogs/form_values.h"

namespace orm {

FormValues::FormValues(const Form& form) {
  for (Control* control : form.Controls()) {
    const auto keep = [&](Value value) { values_.emplace_back(control->Name(), std::move(value)); };
    if (auto* number = dynamic_cast<NumberBox*>(control)) {
      if (!number->ReadOnly()) keep(number->Value());
    } else if (auto* text = dynamic_cast<TestoBox*>(control)) {
      if (!text->Options().readOnly) keep(text->Text());
    } else if (auto* bars = dynamic_cast<FerriBox*>(control)) {
      keep(bars->Text());
    } else if (auto* option = dynamic_cast<OptionButton*>(control)) {
      keep(option->Value());
    } else if (auto* check = dynamic_cast<CheckBox*>(control)) {
      keep(check->Value());
    } else if (auto* slider = dynamic_cast<Slider*>(control)) {
      keep(slider->Position());
    } else if (auto* list = dynamic_cast<ListControl*>(control)) {
      keep(list->Index());
    }
  }
}

void FormValues::PutInto(Form& form) const {
  // Twice: a choice may fill fields that stand before it, over what was typed there.
  for (int pass = 0; pass < 2; ++pass) {
    for (const auto& [name, value] : values_) {
      Control* control = form.Find(name);
      if (auto* number = dynamic_cast<NumberBox*>(control))
        number->SetValue(std::get<double>(value));
      else if (auto* text = dynamic_cast<TestoBox*>(control))
        text->SetText(std::get<std::string>(value));
      else if (auto* bars = dynamic_cast<FerriBox*>(control))
        bars->SetText(std::get<std::string>(value));
      else if (auto* option = dynamic_cast<OptionButton*>(control))
        option->SetValue(std::get<bool>(value));
      else if (auto* check = dynamic_cast<CheckBox*>(control))
        check->SetValue(std::get<bool>(value));
      else if (auto* slider = dynamic_cast<Slider*>(control))
        slider->SetPosition(std::get<int>(value));
      else if (auto* list = dynamic_cast<ListControl*>(control))
        list->SetIndex(std::get<int>(value));
    }
  }
}

}  // namespace orm
