#include "script/form_statements.h"

namespace orm {

std::string FormStatements::Play(const Statement& s) {
  const std::string& verb = s.Verb();
  if (verb == "close") {
    hand_.CloseByWindow();
    return {};
  }
  if (verb == "picture") {
    hand_.Picture(s.words[1].text);
    return {};
  }
  if (verb == "expect" && s.words[1].Is("title"))
    return ExpectLine("il titolo", hand_.Title(), s.words[2].text);
  if (verb == "expect" && s.words[1].Is("heading"))
    return ExpectLine("l'intestazione", hand_.Heading(), s.words[2].text);
  if (verb == "show" && s.words[1].Is("*")) {
    for (Control* control : form_.Controls())
      if (hand_.IsVisible(*control)) Show(*control);
    return {};
  }
  if (verb != "set" && verb != "press" && verb != "expect" && verb != "show" && verb != "drawing")
    return "la finestra " + form_.Name() + " è ancora aperta";
  Control* control = form_.Find(s.words[1].text);
  if (control == nullptr)
    return "la finestra " + form_.Name() + " non ha il controllo " + s.words[1].text;
  return PlayOn(*control, s);
}

std::string FormStatements::PlayOn(Control& control, const Statement& s) {
  const std::string& verb = s.Verb();
  if (verb == "set") return Set(control, s.words[2].text);
  if (verb == "press") return Press(control);
  if (verb == "expect") return Expect(control, s.words[2]);
  if (verb == "drawing")
    return files_.Compare(control.Name(), control.ShownText(), s.words[2].text);
  Show(control);
  return {};
}

std::string FormStatements::Set(Control& control, const std::string& value) {
  if (!hand_.IsVisible(control)) return control.Name() + " non si vede";
  if (!hand_.IsEnabled(control)) return control.Name() + " non è attivo";
  const std::string objection = hand_.Set(control, value);
  return objection.empty() ? "" : control.Name() + " : " + objection;
}

std::string FormStatements::Press(Control& control) {
  auto* button = dynamic_cast<Button*>(&control);
  if (button == nullptr) return control.Name() + " non è un pulsante";
  if (!hand_.IsVisible(control) || !hand_.IsEnabled(control))
    return control.Name() + " non si può premere";
  const std::string objection = hand_.Press(*button);
  return objection.empty() ? "" : control.Name() + " : " + objection;
}

std::string FormStatements::Expect(Control& control, const Word& value) {
  const bool visible = hand_.IsVisible(control);
  const bool enabled = hand_.IsEnabled(control);
  const auto require = [&](bool held) {
    return held ? "" : control.Name() + " non è " + value.text;
  };
  if (value.Is("hidden")) return require(!visible);
  if (value.Is("shown")) return require(visible);
  if (value.Is("enabled")) return require(enabled);
  if (value.Is("disabled")) return require(!enabled);
  const std::string shown = hand_.Shown(control);
  return Matches(value.text, shown) ? "" : control.Name() + " mostra " + Quoted(shown);
}

std::string FormStatements::ExpectLine(const char* what, const std::string& shown,
                                       const std::string& wanted) {
  return Matches(wanted, shown) ? "" : what + (" è " + Quoted(shown));
}

void FormStatements::Show(Control& control) {
  if (output_ != nullptr) *output_ << control.Name() << "=" << hand_.Shown(control) << "\n";
}

}  // namespace orm
