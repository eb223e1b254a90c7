// How a script acts on a form that is shown, and reads it: on the model for the plain player, on
// real widgets for the desktop.
#pragma once

#include <string>
#include <string_view>

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class FormHand {
 public:
  virtual ~FormHand() = default;
  // Types or chooses as a person. Empty when it was taken, else the reason in Italian.
  virtual std::string Set(Control& control, std::string_view text) = 0;
  virtual std::string Press(Button& button) = 0;
  virtual void CloseByWindow() = 0;
  // What a person reads, and whether there is anything to see and to use.
  virtual std::string Shown(Control& control) = 0;
  virtual bool IsVisible(Control& control) = 0;
  virtual bool IsEnabled(Control& control) = 0;
  virtual std::string Title() = 0;
  virtual std::string Heading() = 0;  // the line that tells where one is; empty where there is none
  // Keeps a picture of the form as NAME.png where the player can make one.
  virtual void Picture(const std::string& name) = 0;
};

// Whoever plays the person: told of everything that is shown, in its order.
class Actor {
 public:
  virtual ~Actor() = default;
  // The form is on the screen; acts in it until it has closed.
  virtual void MeetForm(Form& form, FormHand& hand) = 0;
  virtual Answer MeetMessage(const MessageBox& box) = 0;
  virtual void MeetProgramStart(const std::string& program, const std::string& argument) = 0;
  virtual std::optional<std::string> MeetFileChoice(const FileChoice& choice) = 0;
  virtual Date Today() const = 0;
  virtual ScreenSize Screen() const = 0;
};

}  // namespace orm
