// The player of who only calculates: forms keep the values they come with, every message gets the
// most careful answer, and nothing outside is started.
#pragma once

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class QuietPlayer : public Player {
 public:
  explicit QuietPlayer(const Date& today) : today_(today) {}

  Answer Ask(const MessageBox& box) override {
    if (box.buttons == MessageBox::Buttons::Ok) return Answer::Ok;
    return box.buttons == MessageBox::Buttons::YesNo ? Answer::No : Answer::Cancel;
  }
  std::optional<std::string> ChooseFile(const FileChoice&) override { return std::nullopt; }
  void StartProgram(const std::string&, const std::string&) override {}
  bool ProgramExists(const std::string&) override { return true; }
  OutsidePrograms DefaultPrograms() override { return {}; }
  ScreenSize Screen() override { return {}; }
  Date Today() override { return today_; }

 private:
  void Present(Form& form) override { form.OnWindowClose(); }  // left at once
  Date today_;
};

}  // namespace orm
