#include "tests/stage/rehearsal.h"

#include <QCoreApplication>
#include <algorithm>

#include "script/statement.h"

namespace orm {
namespace {

const char* const kQuestion = "frmGEN_NuovoCaso";
const char* const kEscape = "Esc";

bool IsEntry(const Control& control) {
  switch (control.GetKind()) {
    case Control::Kind::TextBox:
    case Control::Kind::NumberBox:
    case Control::Kind::Option:
    case Control::Kind::Check:
    case Control::Kind::Combo:
    case Control::Kind::Date:
      return control.TakesFocus() && control.IsShown() && control.IsActive();
    default:
      return false;
  }
}

Entries EntriesOf(FormDialog& dialog, WidgetHand& hand) {
  Entries entries;
  for (Control* control : dialog.Model().Controls()) {
    if (!IsEntry(*control)) continue;
    entries.emplace_back(control->Name(), hand.Shown(*control));
    // Of its one day a note stores month and year, as stands beside the field.
    if (control->GetKind() == Control::Kind::Date) entries.back().second.replace(0, 2, "01");
  }
  return entries;
}

std::string Text(const Entries& entries) {
  std::string text;
  for (const auto& [name, shown] : entries) text += " " + name + "=" + Quoted(shown);
  return text;
}

}  // namespace

bool PlayedChain::WholeNote() const {
  constexpr std::size_t kMostForms = 24;
  return forms.size() > 1 && forms.size() < kMostForms && forms.back().name == "frmGEN_Acconti" &&
         forms.back().Leaves("OK") && std::ranges::none_of(forms, [&](const PlayedForm& form) {
           return form.steps.empty() || form.Leaves("cmdNuova");
         });
}

bool PlayedChain::Changes() const { return forms[1].name == kQuestion; }

// ---------------------------------------------------------------- the script's own run

NotingHand::NotingHand(FormDialog& dialog, DesktopStageOptions options, PlayedChain& chain)
    : HastyHand(dialog, std::move(options)), chain_(chain), place_(chain.forms.size()) {
  chain_.forms.push_back({.name = dialog.Model().Name(), .steps = {}});
}

std::string NotingHand::Press(Button& button) {
  PlayedForm::Step step{EntriesOf(dialog_, *this), button.Name()};
  const std::size_t before = chain_.forms.size();
  std::string objection = HastyHand::Press(button);
  if (!dialog_.Model().IsOpen() || chain_.forms.size() > before)
    chain_.forms[place_].steps.push_back(std::move(step));
  return objection;
}

void NotingHand::CloseByWindow() {
  chain_.forms[place_].steps.push_back({EntriesOf(dialog_, *this), kEscape});
  HastyHand::CloseByWindow();
}

// ---------------------------------------------------------------- and again

void Rehearsal::Begin() {
  at_ = 0;
  leaving_ = byButton_ = false;
  fresh_.clear();
}

bool Rehearsal::LeftStoredRow() const {
  return leaving_ && byButton_ && (changes_ || chain_.forms[slip_].confirmed);
}

void Rehearsal::BroughtBack() {
  for (const std::size_t place : fresh_) chain_.forms[place].confirmed = false;
}

bool Rehearsal::LeftAtTheStart() const {
  return leaving_ && (slip_ == 0 || chain_.forms[slip_].name == kQuestion);
}

void Rehearsal::Tell(const FormDialog& dialog, const std::string& fault) {
  if (fault_.empty())
    fault_ = "con una svista in " + chain_.forms[slip_].name + ", " + dialog.Model().Name() +
             (dialog.TopLine() ? " (" + dialog.Model().GetHeading().Text() + ")" : "") + " " +
             fault;
  leaving_ = true;
}

Answer Rehearsal::Meet(const MessageBox& box) const {
  for (const auto& [text, answer] : chain_.messages)
    if (!leaving_ && !stray_ && text == box.text) return answer;
  if (box.buttons == MessageBox::Buttons::Ok) return Answer::Ok;
  return box.buttons == MessageBox::Buttons::YesNo ? Answer::No : Answer::Cancel;
}

// The form of the chain that comes up now; none on the way out.
PlayedForm* Rehearsal::Expected(FormDialog& dialog, KeyHand& hand) {
  const std::string& name = dialog.Model().Name();
  if (leaving_ || stray_) {
    hand.CloseByWindow();
    if (dialog.Model().IsOpen()) Tell(dialog, "resta aperta");
    return nullptr;
  }
  auto& forms = chain_.forms;
  if (name == kQuestion && (at_ == forms.size() || forms[at_].name != name)) {
    // From now on there is a stored note, which is to be changed.
    PlayedForm question{.name = name, .steps = {{EntriesOf(dialog, hand), "cmdVARIAZIONE"}}};
    forms.insert(forms.begin() + static_cast<std::ptrdiff_t>(at_), std::move(question));
    slip_ = std::min(slip_, at_);
    slips_.clear();
  }
  if (at_ == forms.size() || forms[at_].name != name) {
    Tell(dialog, "appare dove non deve");
    return nullptr;
  }
  return &forms[at_++];
}

// What was typed there before is what the form shows, or what it offers.
void Rehearsal::TakeUp(PlayedForm& form, FormDialog& dialog, KeyHand& hand, const Entries& given) {
  const Entries& typed = form.steps.back().entries;
  Button* resume = dialog.Model().ResumeButton();
  const bool offered = resume != nullptr && resume->IsShown();
  const bool whole = given == typed && (!offered || dialog.Model().Hidden().empty());
  if ((!form.confirmed && !form.draft) || whole) return;
  if (!offered) return Tell(dialog, "mostra" + Text(given) + " e non offre" + Text(typed));
  hand.Press(*resume);
  if (const Entries taken = EntriesOf(dialog, hand); taken != typed)
    Tell(dialog, "riprende" + Text(taken) + " e non" + Text(typed));
}

void Rehearsal::Fill(const Entries& entries, FormDialog& dialog, KeyHand& hand) {
  for (int pass = 0; pass < 2; ++pass)
    for (const auto& [name, text] : entries) {
      Control* control = dialog.Model().Find(name);
      if (!IsEntry(*control) || hand.Shown(*control) == text) continue;
      if (text == "off" && control->GetKind() == Control::Kind::Option) continue;
      std::string objection = hand.Set(*control, text);
      // As in the script's run, a mark is set twice: some events leave a trace of a mark taken
      // away.
      if (control->GetKind() == Control::Kind::Check && text == "on")
        for (const char* mark : {"off", "on"}) objection += hand.Set(*control, mark);
      if (!objection.empty()) return Tell(dialog, name + " : " + objection);
    }
  if (const Entries filled = EntriesOf(dialog, hand); filled != entries)
    Tell(dialog, "tiene" + Text(filled) + " e non" + Text(entries));
}

// The slips that are left in this form, until one closes it.
bool Rehearsal::SlipOut(const PlayedForm::Step& step, FormDialog& dialog, KeyHand& hand) {
  stray_ = true;
  for (Control* control : dialog.Model().Controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (button == nullptr || button == dialog.Model().ResumeButton() || !button->IsShown() ||
        !button->IsActive() || button->Name() == step.button ||
        !slips_.insert(button->Name()).second)
      continue;
    hand.Press(*button);
    byButton_ = !dialog.Model().IsOpen();
    if (byButton_) break;
    Fill(step.entries, dialog, hand);
  }
  if (dialog.Model().IsOpen() && slips_.insert(kEscape).second) {
    hand.CloseByWindow();
    if (dialog.Model().IsOpen()) Tell(dialog, "non si chiude con Esc");
  }
  stray_ = false;
  return !dialog.Model().IsOpen();
}

void Rehearsal::Meet(FormDialog& dialog) {
  KeyHand hand(dialog, {});
  if (Expected(dialog, hand) == nullptr) return;
  const std::size_t place = at_ - 1;
  const auto form = [&]() -> PlayedForm& { return chain_.forms[place]; };
  const Entries given = EntriesOf(dialog, hand);
  TakeUp(form(), dialog, hand, given);
  // What stands there as it shall be is not undone on the way through other forms.
  const bool settled = EntriesOf(dialog, hand) == form().steps.back().entries;
  for (std::size_t i = 0; i < form().steps.size() && !leaving_; ++i) {
    const PlayedForm::Step step = form().steps[i];
    const bool last = i + 1 == form().steps.size();
    if (last || !settled) Fill(step.entries, dialog, hand);
    if (leaving_) break;
    if (place == slip_ && last) {
      // Where Escape is the right way out, a button would confirm.
      leaving_ = (step.button != kEscape && SlipOut(step, dialog, hand)) || leaving_;
      if (leaving_) break;
      ++slip_;
      slips_.clear();
    }
    if (step.button == kEscape)
      hand.CloseByWindow();
    else
      hand.Press(*static_cast<Button*>(dialog.Model().Find(step.button)));
  }
  if (!leaving_ && dialog.Model().IsOpen()) Tell(dialog, "non prende quello che aveva preso");
  if (leaving_) {
    form().draft = EntriesOf(dialog, hand) != given;
    if (dialog.Model().IsOpen()) hand.CloseByWindow();
  } else if (!form().Leaves(kEscape)) {
    if (!std::exchange(form().confirmed, true)) fresh_.push_back(place);
    form().draft = false;
  }
}

}  // namespace orm
