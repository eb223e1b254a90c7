// What the logic asks of whoever stands before it: a person at a screen, a script, or nobody.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/form_values.h"
#include "runtime/dates.h"
#include "runtime/failure.h"

namespace orm {

struct Heading;

// A text of several lines on one, a blank between its words.
std::string OnOneLine(const std::string& text);

// Where a person stands in a chain of forms.
struct Place {
  std::string note;              // case and currency; empty outside any chain
  std::string subject;           // of the note, as it was typed
  std::vector<std::string> way;  // lot, class, period, whatever the forms shown belong to
};

// A part of the way, gone for as long as this lives: then the person is back where he was.
class PartOfWay {
 public:
  PartOfWay(Place& place, std::vector<std::string> parts);
  ~PartOfWay() { place_ = std::move(before_); }
  PartOfWay(const PartOfWay&) = delete;
  PartOfWay& operator=(const PartOfWay&) = delete;

 private:
  Place& place_;
  Place before_;
};

struct MessageBox {
  enum class Icon { None, Information, Exclamation, Critical, Question };
  enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
  std::string title;
  std::string text;  // lines separated by "\n"
  Icon icon = Icon::Exclamation;
  Buttons buttons = Buttons::Ok;
};

enum class Answer { Ok, Cancel, Yes, No };

// The box that tells a run-time failure, with its title by which it is known.
inline constexpr const char* kFailureTitle = "ERRORE DI ESECUZIONE";
MessageBox FailureBox(const RuntimeFailure& failure);

struct ScreenSize {
  int width = 1280;
  int height = 1024;
};

struct FileChoice {
  std::string title;
  std::string start;    // path shown first, may be empty
  std::string pattern;  // "*.exe;*.com"; empty for all
};

// The programs that a new installation works with, whole paths.
struct OutsidePrograms {
  std::string reports;        // shows and prints reports
  std::string configuration;  // edits plain text
  std::string pdf;            // shows PDF files
  std::string help;           // shows a book or a page of the help
};

class Player {
 public:
  virtual ~Player() = default;

  Place place;
  // The heading of a form that is shown now.
  Heading HeadingOf(const Form& form) const;

  // Shows the form and comes back when it has closed. The form keeps its values; what it was left
  // with unconfirmed is kept as a draft.
  void Show(Form& form);
  Drafts& DraftsOfRun() { return drafts_; }
  // How many forms have been confirmed so far.
  std::size_t Confirmations() const { return confirmations_; }

  virtual Answer Ask(const MessageBox& box) = 0;
  // The chosen path, or nothing when the person gave up.
  virtual std::optional<std::string> ChooseFile(const FileChoice& choice) = 0;
  // Puts a text where a person can paste it from; nobody else needs it.
  virtual void CopyText(const std::string& /*text*/) {}
  // Starts a program on a file of the working folder and does not wait for it.
  virtual void StartProgram(const std::string& program, const std::string& argument) = 0;
  // A whole path, or the name of a program that the system finds in its PATH.
  virtual bool ProgramExists(const std::string& path) = 0;
  virtual OutsidePrograms DefaultPrograms() = 0;
  virtual ScreenSize Screen() = 0;
  virtual Date Today() = 0;

 protected:
  // Keeps the form, which has been opened, before the person until it has closed.
  virtual void Present(Form& form) = 0;

 private:
  Drafts drafts_;
  std::size_t confirmations_ = 0;
};

// Runs what a confirming button does. A run-time failure becomes its message and the form stays as
// it is, so that nothing typed is lost.
template <class Action>
void TryAndStay(Player& player, Action&& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    player.Ask(FailureBox(failure));
  }
}

}  // namespace orm
