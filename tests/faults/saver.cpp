// Carries out one command of the program in a given folder, for the fault loops: a person in a
// hurry, who fills every field with the same answer and presses the default button of each form,
// and who gives up at the first failure.
//
//   orm_saver FOLDER COMMAND [FORM]   COMMAND of the menu; FORM is left by its window instead
//   orm_saver FOLDER --avvio [FILES]  start-up, which lays down the files of a new installation and
//                                     those that it finds in the folder FILES
//   orm_saver FOLDER --tiene          holds the folder until it is killed; tells so on its output
//   orm_saver FOLDER --riscrive TEXT  replaces OUT_PPE.DOC by many TEXTs, again and again, unlocked
//
// Exit codes as those of orm2002-calcolo: 0 done; 1 a message; 2 a run-time failure; 3 wrong usage.
#include <unistd.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "dialogs/form.h"
#include "runtime/folder_lock.h"
#include "shell/shell.h"

namespace {

void Tell(std::string_view text, int descriptor) {
  if (::write(descriptor, text.data(), text.size()) < 0) return;
}

class Hurried : public orm::Player {
 public:
  explicit Hurried(std::string leaves) : leaves_(std::move(leaves)) {}

  void Present(orm::Form& form) override {
    if (form.Name() != leaves_ && code_ != 2) Answer(form);
    if (form.IsOpen()) form.OnWindowClose();
  }
  orm::Answer Ask(const orm::MessageBox& box) override {
    Tell(box.text + "\n", STDERR_FILENO);
    if (box.icon == orm::MessageBox::Icon::Information) return orm::Answer::Ok;  // nothing failed
    code_ = std::max(code_, box.title == orm::kFailureTitle ? 2 : 1);
    return orm::Answer::Ok;
  }
  std::optional<std::string> ChooseFile(const orm::FileChoice&) override { return std::nullopt; }
  void StartProgram(const std::string&, const std::string&) override {}
  bool ProgramExists(const std::string&) override { return true; }
  orm::OutsidePrograms DefaultPrograms() override { return {"visore", "editor", "pdf", "guida"}; }
  orm::ScreenSize Screen() override { return {}; }
  orm::Date Today() override { return {2002, 3, 15}; }

  int Code() const { return code_; }
  void Forget() { code_ = 0; }

 private:
  static void Answer(orm::Form& form) {
    orm::Button* chosen = nullptr;
    for (orm::Control* control : form.Controls()) {
      if (auto* button = dynamic_cast<orm::Button*>(control))
        if (button->GetRole() == orm::Button::Role::Default) chosen = button;
      if (!control->IsShown() || !control->IsActive()) continue;
      using Kind = orm::Control::Kind;
      if (control->GetKind() == Kind::TextBox) control->Enter("nuovo");
      if (control->GetKind() == Kind::NumberBox) control->Enter("7");
    }
    if (chosen != nullptr) chosen->Press();
    if (auto* print = dynamic_cast<orm::Button*>(form.Find("cmdSTAMPA"))) print->Press();
  }

  std::string leaves_;
  int code_ = 0;
};

}  // namespace

int main(int count, char** words) {
  if (count < 3) return 3;
  const orm::WorkFolder folder(words[1]);
  const std::string command = words[2];
  if (command == "--riscrive" && count > 3) {
    std::string text;
    while (text.size() < 200'000) text += words[3];
    for (;;) folder.Replace("OUT_PPE.DOC", text, orm::Durability::Remakeable);
  }
  const orm::FolderLock lock(folder);
  if (!lock.Held()) return 1;
  if (command == "--tiene") {
    Tell("tiene\n", STDOUT_FILENO);
    for (;;) ::pause();
  }
  Hurried person(count > 3 ? words[3] : "");
  orm::Shell shell(person, folder);
  if (command == "--avvio") {
    shell.Load();
    if (count > 3) shell.PreparaCartella(words[3]);
    return person.Code();
  }
  shell.ReadSettings();
  person.Forget();  // the code is the command's
  shell.MenuOpened(orm::TopOf(shell.Menu(), command)->name);
  shell.Choose(command);
  return person.Code();
}
