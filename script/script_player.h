// Plays a script: does what a person would do, and checks what the program shows and writes.
#pragma once

#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "script/script_files.h"
#include "script/stage.h"
#include "script/statement.h"

namespace orm {

struct ScriptOptions {
  bool update = false;             // rewrite the expected files instead of comparing
  std::ostream* output = nullptr;  // where `show` prints
};

class ScriptPlayer : public Actor {
 public:
  // `scriptFolder`: where the script stands, with its expected files; `folder`: the fresh working
  // folder in which the program runs.
  ScriptPlayer(std::vector<Statement> script, WorkFolder scriptFolder, WorkFolder folder,
               ScriptOptions options);

  // The first mismatch, or nothing when all held.
  std::optional<Mismatch> Play(const StageBuilder& build);

  void MeetForm(Form& form, FormHand& hand) override;
  Answer MeetMessage(const MessageBox& box) override;
  void MeetProgramStart(const std::string& program, const std::string& argument) override;
  std::optional<std::string> MeetFileChoice(const FileChoice& choice) override;
  Date Today() const override { return today_; }
  ScreenSize Screen() const override { return screen_; }

 private:
  void Fail(int line, std::string text);
  void Require(const Statement& statement, std::string objection);  // fails unless it is empty
  const Statement* Next() const;  // the statement to come, nullptr at the end
  int Line() const;               // of the statement to come or the last one

  void PlayOutside(Stage& stage, MainWindow& window);
  void ChooseCommand(const Statement& statement, Stage& stage, MainWindow& window);
  void PlayInForm(const Statement& statement, Form& form, FormHand& hand);
  // Statements that may stand anywhere; false when this is none of them.
  bool PlayAnywhere(const Statement& statement);
  void Starts(const Statement& statement);

  Stage* stage_ = nullptr;  // while the script plays
  MainWindow* window_ = nullptr;
  std::vector<Statement> script_;
  std::size_t at_ = 0;
  ScriptFiles files_;
  ScriptOptions options_;
  Date today_{2002, 3, 15};
  ScreenSize screen_;
  std::optional<Mismatch> mismatch_;
  int shownAfterMismatch_ = 0;
  bool settled_ = false;  // the settings have been read after the files were prepared
  std::deque<std::pair<std::string, std::string>> started_;
};

}  // namespace orm
