// A player for unit tests: the day is fixed, messages are kept and answered as the test says, and
// nothing else may be asked.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "dialogs/player.h"

namespace orm {

class FakePlayer : public Player {
 public:
  std::vector<MessageBox> messages;
  Answer answer = Answer::Ok;

  Answer Ask(const MessageBox& box) override {
    messages.push_back(box);
    return answer;
  }
  std::optional<std::string> ChooseFile(const FileChoice&) override { return std::nullopt; }
  void StartProgram(const std::string&, const std::string&) override {
    throw std::logic_error("a program was started");
  }
  bool ProgramExists(const std::string&) override { return false; }
  OutsidePrograms DefaultPrograms() override { return {}; }
  ScreenSize Screen() override { return {}; }
  Date Today() override { return {2002, 3, 15}; }

 protected:
  void Present(Form&) override { throw std::logic_error("a form came up"); }
};

}  // namespace orm
