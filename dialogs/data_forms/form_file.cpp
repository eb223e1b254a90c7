#include "dialogs/data_forms/form_file.h"

#include <map>
#include <string>
#include <utility>

namespace orm {
namespace {

constexpr const char* kCampo = "Campo";
constexpr int kMostFields = 999;

std::string ItemOf(const ListControl& list) { return list.IsAutomatic() ? "" : list.ShownText(); }

// One value, by the kind of its control.
class Reading {
 public:
  Reading(DataReader& file, const Control& control, const FormValues::Value& nuovo)
      : file_(file), control_(control), nuovo_(nuovo), name_(control.Name().c_str()) {}

  FormValues::Value Value() {
    if (const auto* number = dynamic_cast<const NumberBox*>(&control_)) {
      const double value = file_.Number(name_);
      Require(value >= number->Limits().least && value <= number->Limits().most);
      return value;
    }
    if (const auto* text = dynamic_cast<const TestoBox*>(&control_)) return Text(*text);
    if (const auto* bars = dynamic_cast<const FerriBox*>(&control_)) return Text(*bars);
    if (const auto* slider = dynamic_cast<const Slider*>(&control_)) {
      const int position = file_.Integer(name_);
      Require(position >= 0 && position <= slider->Steps());
      return position;
    }
    if (const auto* list = dynamic_cast<const ListControl*>(&control_)) return Item(*list);
    return file_.Boolean(name_);
  }

 private:
  void Require(bool accepted) const {
    if (!accepted) file_.Fail(name_, "Il campo della finestra non ammette questo valore.");
  }
  template <class Field>
  std::string Text(const Field& field) {
    std::string text = file_.Text(name_);
    Require(field.Objection(text).empty());
    return text;
  }
  int Item(const ListControl& list) {
    const std::string item = file_.Text(name_);
    const int place = list.PlaceOf(item);
    Require(place >= 0 || (item.empty() && std::get<int>(nuovo_) < 0));
    return place;
  }

  DataReader& file_;
  const Control& control_;
  const FormValues::Value& nuovo_;
  const char* name_;
};

// How many options of each group are chosen.
std::map<const OptionGroup*, int> Choices(const Form& form, const FormValues& values) {
  std::map<const OptionGroup*, int> chosen;
  for (const auto& [name, value] : values.All())
    if (const auto* option = dynamic_cast<const OptionButton*>(form.Find(name)))
      chosen[&option->Group()] += std::get<bool>(value) ? 1 : 0;
  return chosen;
}

}  // namespace

void ScriviDatiForm(DataWriter& file, const Form& form) {
  const FormValues values(form);
  std::string formName = form.Name();
  auto count = static_cast<std::int16_t>(values.All().size());
  file.Line(Field("Finestra", formName), Field("Campi", count));
  for (const auto& [control, value] : values.All()) {
    std::string name = control;
    const auto line = [&](auto field) { file.Line(Field(kCampo, name), Field("Valore", field)); };
    if (const auto* list = dynamic_cast<const ListControl*>(form.Find(name)))
      line(ItemOf(*list));
    else if (const int* position = std::get_if<int>(&value))
      line(static_cast<std::int16_t>(*position));
    else if (const bool* on = std::get_if<bool>(&value))
      line(*on);
    else if (const double* number = std::get_if<double>(&value))
      line(*number);
    else
      line(std::get<std::string>(value));
  }
}

FormValues LeggiDatiForm(DataReader& file, const Form& form, const FormValues& nuovi) {
  if (file.Text("Finestra") != form.Name())
    file.Fail("Finestra", "I dati sono di un'altra finestra.");
  std::map<std::string, FormValues::Value> missing(nuovi.All().begin(), nuovi.All().end());
  if (file.Count("Campi", kMostFields) != static_cast<int>(missing.size()))
    file.Fail("Campi", "La finestra ha un altro numero di campi.");
  FormValues::Values read;
  while (!missing.empty()) {
    const std::string name = file.Text(kCampo);
    const auto found = missing.find(name);
    if (found == missing.end())
      file.Fail(kCampo, "La finestra non ha il campo \"" + name + "\", o è ripetuto.");
    read.emplace_back(name, Reading(file, *form.Find(name), found->second).Value());
    missing.erase(found);
  }
  FormValues values(std::move(read), {});
  const std::map<const OptionGroup*, int> least = Choices(form, nuovi);
  for (const auto& [group, chosen] : Choices(form, values))
    if (chosen > 1 || chosen < least.at(group))
      file.Fail(kCampo, "Di \"" + group->Options().front()->Name() +
                            "\" e delle altre opzioni va scelta una sola.");
  return values;
}

}  // namespace orm
