#include "dialogs/form.h"

#include <algorithm>
#include <utility>

#include "dialogs/form_values.h"

namespace orm {
namespace {

void AdoptInto(Frame* parent, const Layout& layout) {
  Frame* inner = parent;
  if (layout.control != nullptr) {
    layout.control->SetParent(parent);
    if (layout.kind == Layout::Kind::Group) inner = static_cast<Frame*>(layout.control);
  }
  for (const Layout& part : layout.children) AdoptInto(inner, part);
}

void CollectControls(const Layout& layout, std::vector<Control*>& controls) {
  if (layout.control != nullptr) controls.push_back(layout.control);
  for (const Layout& part : layout.children) CollectControls(part, controls);
}

bool IsEntry(const Control* control) {
  using Kind = Control::Kind;
  const Kind kind = control->GetKind();
  return control->TakesFocus() && kind != Kind::Button && kind != Kind::Drawing;
}

// The buttons that end the form, below everything else.
Layout& LastLine(Layout& content) {
  const auto isLine = [](const Layout& part) { return part.kind == Layout::Kind::Buttons; };
  if (content.kind != Layout::Kind::Column) content = Column({std::move(content)});
  std::vector<Layout>& parts = content.children;
  if (parts.empty() || !isLine(parts.back())) parts.push_back(Buttons({}));
  return parts.back();
}

// Behind the button that confirms, to which Tab comes first.
void AddResume(std::vector<Layout>& buttons, Button& resume) {
  const auto confirms = std::ranges::find_if(buttons, [](const Layout& part) {
    const auto* button = dynamic_cast<const Button*>(part.control);
    return button != nullptr && button->GetRole() == Button::Role::Default;
  });
  buttons.insert(confirms == buttons.end() ? buttons.begin() : confirms + 1, resume);
}

}  // namespace

Layout Column(std::vector<Layout> parts) {
  return {Layout::Kind::Column, nullptr, std::move(parts)};
}
Layout Row(std::vector<Layout> parts) { return {Layout::Kind::Row, nullptr, std::move(parts)}; }
Layout Group(Frame& frame, std::vector<Layout> parts) {
  return {Layout::Kind::Group, &frame, std::move(parts)};
}
Layout Fields(std::vector<Layout> lines) {
  return {Layout::Kind::Fields, nullptr, std::move(lines)};
}
Layout Buttons(std::initializer_list<std::reference_wrapper<Control>> buttons) {
  std::vector<Layout> parts;
  for (Control& button : buttons) parts.emplace_back(button);
  return {Layout::Kind::Buttons, nullptr, std::move(parts)};
}

Layout Views(std::vector<Layout> parts) { return {Layout::Kind::Views, nullptr, std::move(parts)}; }

std::vector<Control*> ControlsOf(const Layout& layout) {
  std::vector<Control*> controls;
  CollectControls(layout, controls);
  return controls;
}

std::string Heading::Text() const {
  std::string text;
  for (const std::string* part : {&note, &subject, &way})
    if (!part->empty()) text += (text.empty() ? "" : kHeadingMark) + *part;
  return text;
}

Form::Form(std::string name, std::string title, std::string step)
    : name_(std::move(name)),
      title_(std::move(title)),
      step_(std::move(step)),
      content_(Column({})) {}

void Form::SetTitle(std::string title) {
  title_ = std::move(title);
  if (view_ != nullptr) view_->TitleChanged();
}

Control* Form::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::SetContent(Layout content) {
  content_ = std::move(content);
  if (!resume_ && std::ranges::any_of(controls_, IsEntry)) {
    resume_.emplace(*this, "cmdRIPRENDI", "&RIPRENDI I DATI");
    resume_->SetHint("Riporta i dati con cui questa finestra è stata lasciata l'ultima volta.");
    resume_->SetVisible(false);
  }
  if (resume_) AddResume(LastLine(content_).children, *resume_);
  AdoptInto(nullptr, content_);
  // Members are built in an order of their own; a person goes through the form as it is laid out.
  const std::vector<Control*> reading = ControlsOf(content_);
  const auto place = [&reading](const Control* control) {
    return std::find(reading.begin(), reading.end(), control) - reading.begin();
  };
  std::stable_sort(controls_.begin(), controls_.end(),
                   [&](const Control* a, const Control* b) { return place(a) < place(b); });
}

void Form::Resume(const FormValues& values) { values.PutInto(*this); }

Control* Form::FirstFocus() const {
  if (firstFocus_ != nullptr && firstFocus_->IsShown() && firstFocus_->IsActive())
    return firstFocus_;
  for (Control* control : controls_)
    if (control->TakesFocus() && control->IsShown() && control->IsActive()) return control;
  return nullptr;
}

void Form::MoveFocus(Control& control) {
  if (view_ != nullptr) view_->FocusMoved(control);
}

void Form::Open(Heading heading) {
  open_ = true;
  heading_ = std::move(heading);
  TipodiUscita = Uscita::Finestra;
  OnOpen();
}

}  // namespace orm
