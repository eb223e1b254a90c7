// A form: its controls, its layout told in meaning, and its life between being shown and closed.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/choices.h"
#include "dialogs/entries.h"
#include "dialogs/fittings.h"
#include "dialogs/pickers.h"

namespace orm {

// How controls stand to each other. No pixels: a player turns these into widgets of its own.
struct Layout {
  enum class Kind {
    Column,   // children one below the other
    Row,      // children side by side
    Group,    // a frame around a column of children
    Fields,   // labels in one column, fields in the next, units behind; lines below a row of
              // labels alone are a table with these headings; a Row in it is one line
    Buttons,  // a line of buttons at the right, in the order given
    Views,    // parts of which one shows at a time, all in the room of the greatest
    Item      // one control
  };
  Layout(Control& item) : kind(Kind::Item), control(&item) {}  // NOLINT: a control is a layout
  Layout(Kind layoutKind, Control* frame, std::vector<Layout> parts)
      : kind(layoutKind), control(frame), children(std::move(parts)) {}
  Kind kind;
  Control* control = nullptr;  // the control of an Item, the frame of a Group
  std::vector<Layout> children;
};

Layout Column(std::vector<Layout> parts);
Layout Row(std::vector<Layout> parts);
Layout Group(Frame& frame, std::vector<Layout> parts);
// A part is a field with its label, or a Row: of the first field's label, that field, and what
// stands behind it; of an option, a check box or a button as label, and what belongs to it. A note
// below a field stands in the column of the fields.
Layout Fields(std::vector<Layout> lines);
Layout Buttons(std::initializer_list<std::reference_wrapper<Control>> buttons);
Layout Views(std::vector<Layout> parts);

// The controls of a layout, frames too, in the order in which a person reads them.
std::vector<Control*> ControlsOf(const Layout& layout);

// The line above a form of a chain: the note at work, its subject, which gives way where there is
// no room, and the way to the form. Empty for a form that stands alone.
struct Heading {
  std::string note, subject, way;
  std::string Text() const;  // "ESL · Lire · Scuola via Pini · lotto 1 di 2 · 1/c · importi"
};
inline constexpr const char* kHeadingMark = " · ";

// What a form tells the player that shows it.
class FormView {
 public:
  virtual ~FormView() = default;
  virtual void ControlChanged(Control& control) = 0;  // value or looks
  virtual void FocusMoved(Control& control) = 0;
  virtual void TitleChanged() = 0;
};

class FormValues;

class Form {
 public:
  // `name` as scripts and messages know the form, `title` in its title bar, `step`: what is asked
  // here, as the heading of a chain of forms tells it.
  Form(std::string name, std::string title, std::string step = {});
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Title() const { return title_; }
  void SetTitle(std::string title);
  const std::string& Step() const { return step_; }
  const Heading& GetHeading() const { return heading_; }

  // All controls in reading order, which is the tab order: as the layout names them.
  const std::vector<Control*>& Controls() const { return controls_; }
  Control* Find(std::string_view name) const;  // nullptr when there is none

  const Layout& Content() const { return content_; }
  // A form with entries gets the button of drafts besides, behind the one that confirms.
  void SetContent(Layout content);
  Button* ResumeButton() { return resume_ ? &*resume_ : nullptr; }  // hidden without a draft

  // Puts a draft into the form, as a person would; a form in which one field fills another may
  // have to hold that back.
  virtual void Resume(const FormValues& values);
  // What a person has entered that no control holds.
  virtual std::vector<std::string> Hidden() const { return {}; }
  virtual void SetHidden(const std::vector<std::string>&) {}

  // Where the focus stands first: the first entry that takes it, unless set.
  void SetFirstFocus(Control& control) { firstFocus_ = &control; }
  Control* FirstFocus() const;
  void MoveFocus(Control& control);

  // The life of a form. Open: called by the player when it shows the form, with the heading that
  // it then has. Close: the form leaves the screen when the running event ends; its values stay.
  virtual void OnOpen() {}
  // The window button or Escape. What the case says for leaving; otherwise nothing more than Close.
  virtual void OnWindowClose() { Close(); }
  // Escape alone, where it leaves only a part of the form.
  virtual void OnEscape() { OnWindowClose(); }
  // A control that a person fills has another value, whoever wrote it; its own event has run.
  virtual void OnDataChanged(Control&) {}
  // Any key, for a form that ends on one.
  virtual bool ClosesOnAnyKey() const { return false; }
  void Open(Heading heading = {});
  void Close() { open_ = false; }
  bool IsOpen() const { return open_; }

  // How the form was left: by its window, by the button that takes what was entered, or by the one
  // that ends a list ("&FINE ..."). Each showing begins anew.
  enum class Uscita { Finestra, Conferma, Fine };
  Uscita TipodiUscita = Uscita::Finestra;
  bool Confermato() const { return TipodiUscita == Uscita::Conferma; }
  void Esci(Uscita uscita) {
    TipodiUscita = uscita;
    Close();
  }

  void Attach(FormView* view) { view_ = view; }
  FormView* View() const { return view_; }

 private:
  friend class Control;
  std::string name_, title_, step_;
  Heading heading_;
  std::vector<Control*> controls_;
  Layout content_;
  Control* firstFocus_ = nullptr;
  FormView* view_ = nullptr;
  bool open_ = false;
  std::optional<Button> resume_;
};

}  // namespace orm
