#include "dialogs/form_values.h"

#include <utility>

namespace orm {

FormValues::FormValues(const Form& form) : hidden_(form.Hidden()) {
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
    } else if (auto* day = dynamic_cast<DatePicker*>(control)) {
      keep(day->Value());
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
      else if (auto* day = dynamic_cast<DatePicker*>(control))
        day->SetValue(std::get<Date>(value));
    }
  }
  form.SetHidden(hidden_);
}

Drafts::Subject::Subject(Drafts& drafts, const std::string& what)
    : drafts_(drafts), length_(drafts.about_.size()) {
  drafts.about_ += what + "/";
}

Drafts::Showing::Showing(Drafts& drafts, Form& form)
    : drafts_(drafts),
      form_(form),
      key_(drafts.about_ + form.Name() + "/" + form.Title()),
      given_(form) {
  drafts_.open_.push_back(this);
  Button* resume = form_.ResumeButton();
  if (resume == nullptr) return;
  resume->SetVisible(drafts_.kept_.contains(key_));
  // What stands in the form changes places with the draft, so that this costs nothing either.
  resume->onPress = [this] {
    const FormValues present(form_);
    form_.Resume(std::exchange(drafts_.kept_.at(key_), present));
    if (Control* first = form_.FirstFocus()) form_.MoveFocus(*first);
  };
}

Drafts::Showing::~Showing() {
  drafts_.open_.pop_back();
  if (form_.Confermato())
    drafts_.kept_.erase(key_);
  else
    Keep();
}

void Drafts::Showing::Keep() const {
  if (FormValues left(form_); left != given_) drafts_.kept_[key_] = std::move(left);
}

void Drafts::KeepOpen() {
  for (const Showing* showing : open_) showing->Keep();
}

}  // namespace orm
