// The player of the program without a screen: forms keep the values they come with, message boxes
// go to standard error.
#pragma once

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class BatchPlayer : public Player {
 public:
  explicit BatchPlayer(const Date& today) : today_(today) {}

  Answer Ask(const MessageBox& box) override;
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
