#include <sys/stat.h>

#include <utility>

#include "script/stage.h"

namespace orm {
namespace {

class PlainHand : public FormHand {
 public:
  PlainHand(Form& form, const PictureTaker& take)
      : form_(form), focus_(form.FirstFocus()), take_(take) {}
  std::string Set(Control& control, std::string_view text) override {
    MoveTo(control);
    return control.Enter(text);
  }
  std::string Press(Button& button) override {
    MoveTo(button);
    button.Press();
    return {};
  }
  void CloseByWindow() override { form_.OnWindowClose(); }
  std::string Shown(Control& control) override { return control.ShownText(); }
  bool IsVisible(Control& control) override { return control.IsShown(); }
  bool IsEnabled(Control& control) override { return control.IsActive(); }
  std::string Title() override { return form_.Title(); }
  std::string Heading() override { return form_.GetHeading().Text(); }
  void Picture(const std::string& name) override {
    if (take_) take_(form_, name);
  }

 private:
  // A person's hand takes the focus along.
  void MoveTo(Control& control) {
    if (Control* left = std::exchange(focus_, &control);
        left != nullptr && left != &control && left->onLeave)
      left->onLeave();
  }
  Form& form_;
  Control* focus_;
  const PictureTaker& take_;
};

class PlainPlayer : public Player {
 public:
  PlainPlayer(Actor& actor, const WorkFolder& folder, PictureTaker take)
      : actor_(actor), folder_(folder), take_(std::move(take)) {}
  Answer Ask(const MessageBox& box) override { return actor_.MeetMessage(box); }
  std::optional<std::string> ChooseFile(const FileChoice& choice) override {
    return actor_.MeetFileChoice(choice);
  }
  void StartProgram(const std::string& program, const std::string& argument) override {
    actor_.MeetProgramStart(program, argument);
  }
  bool ProgramExists(const std::string& path) override {
    return ScriptProgramExists(path, folder_);
  }
  OutsidePrograms DefaultPrograms() override { return ScriptPrograms(); }
  ScreenSize Screen() override { return actor_.Screen(); }
  Date Today() override { return actor_.Today(); }

 private:
  void Present(Form& form) override {
    PlainHand hand(form, take_);
    actor_.MeetForm(form, hand);
  }
  Actor& actor_;
  const WorkFolder& folder_;
  PictureTaker take_;
};

class PlainStage : public Stage {
 public:
  PlainStage(Actor& actor, const WorkFolder& folder, PictureTaker take)
      : player_(actor, folder, std::move(take)) {}
  Player& People() override { return player_; }
  void Raise(MainWindow&) override {}
  std::string Choose(MainWindow& window, std::string_view command) override {
    const MenuItem* top = TopOf(window.Menu(), command);
    if (top == nullptr) return "il menù non ha questo comando";
    window.MenuOpened(top->name);
    window.Choose(command);
    return {};
  }
  void AskHelp(MainWindow& window) override { window.Help({}); }

 private:
  PlainPlayer player_;
};

}  // namespace

std::unique_ptr<Stage> BuildPlainStage(Actor& actor, const WorkFolder& folder) {
  return std::make_unique<PlainStage>(actor, folder, nullptr);
}

StageBuilder PlainStageWithPictures(PictureTaker take) {
  return [take = std::move(take)](Actor& actor, const WorkFolder& folder) {
    return std::make_unique<PlainStage>(actor, folder, take);
  };
}

OutsidePrograms ScriptPrograms() {
  return {"orm2002-visore", "editor-testi", "lettore-pdf", "orm2002-guida"};
}

bool ScriptProgramExists(const std::string& path, const WorkFolder& folder) {
  const OutsidePrograms known = ScriptPrograms();
  if (path == known.reports || path == known.configuration || path == known.pdf) return true;
  struct stat status {};
  return folder.Exists(path) || (path.starts_with('/') && ::stat(path.c_str(), &status) == 0);
}

}  // namespace orm
