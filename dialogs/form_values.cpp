#include "dialogs/form_values.h"

#include <utility>

namespace orm {
namespace {

// A value of another kind is that of another version of the form.
template <class T, class Setter>
void Put(const FormValues::Value& value, const Setter& set) {
  if (const T* right = std::get_if<T>(&value)) set(*right);
}

void PutNumber(NumberBox& box, double value) {
  const NumberLimits& limits = box.Limits();
  if (value == 0 || (value >= limits.least && value <= limits.most)) box.SetValue(value);
}

}  // namespace

FormValues::FormValues(Values values, std::vector<std::string> hidden)
    : values_(std::move(values)), hidden_(std::move(hidden)) {}

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
      keep(list->IsAutomatic() ? list->PlaceOf("") : list->Index());
    } else if (auto* day = dynamic_cast<DatePicker*>(control)) {
      keep(day->Value());
    }
  }
}

void FormValues::PutInto(Form& form) const {
  // A draft on the disk may come from anybody: what a field would not let be typed stays out.
  // Twice: a choice may fill fields that stand before it, over what was typed there.
  for (int pass = 0; pass < 2; ++pass) {
    for (const auto& [name, value] : values_) {
      Control* control = form.Find(name);
      if (auto* number = dynamic_cast<NumberBox*>(control))
        Put<double>(value, [&](double v) { PutNumber(*number, v); });
      else if (auto* text = dynamic_cast<TestoBox*>(control))
        Put<std::string>(value, [&](const std::string& v) { text->Type(v); });
      else if (auto* bars = dynamic_cast<FerriBox*>(control))
        Put<std::string>(value, [&](const std::string& v) { bars->Type(v); });
      else if (auto* option = dynamic_cast<OptionButton*>(control))
        Put<bool>(value, [&](bool v) { option->SetValue(v); });
      else if (auto* check = dynamic_cast<CheckBox*>(control))
        Put<bool>(value, [&](bool v) { check->SetValue(v); });
      else if (auto* slider = dynamic_cast<Slider*>(control))
        Put<int>(value, [&](int v) { slider->SetPosition(v); });
      else if (auto* list = dynamic_cast<ListControl*>(control))
        Put<int>(value, [&](int v) { list->SetIndex(v); });
      else if (auto* day = dynamic_cast<DatePicker*>(control))
        Put<Date>(value, [&](const Date& v) { day->SetValue(v); });
    }
  }
  if (hidden_.size() == form.Hidden().size()) form.SetHidden(hidden_);
}

Drafts::Subject::Subject(Drafts& drafts, const std::string& what)
    : drafts_(drafts), length_(drafts.about_.size()) {
  drafts.about_ += what + "/";
  drafts.begins_.push_back(drafts.left_.size());
}

Drafts::Subject::~Subject() {
  drafts_.about_.resize(length_);
  drafts_.begins_.pop_back();
  if (drafts_.begins_.empty()) drafts_.left_.clear();
}

void Drafts::SubjectDropped(bool stored) {
  for (std::size_t i = begins_.back(); i < left_.size(); ++i)
    if (stored || left_[i].changed) kept_[left_[i].key] = left_[i].values;
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
  FormValues left(form_);
  const bool changed = left != given_;
  if (!drafts_.begins_.empty()) drafts_.left_.push_back({key_, left, changed});
  if (form_.Confermato())
    drafts_.kept_.erase(key_);
  else if (changed)
    drafts_.kept_[key_] = std::move(left);
}

Drafts::All Drafts::WithOpenForms() const {
  All all = kept_;
  for (const Showing* showing : open_)
    if (FormValues now(showing->form_); now != showing->given_) all[showing->key_] = std::move(now);
  return all;
}

void Drafts::Showing::KeepPresent() const {
  drafts_.kept_[key_] = FormValues(form_);
  if (Button* resume = form_.ResumeButton()) resume->SetVisible(true);
}

void Drafts::KeepPresent(const Form& form) {
  for (const Showing* showing : open_)
    if (&showing->form_ == &form) showing->KeepPresent();
}

}  // namespace orm
