// The player for a person at a screen.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "dialogs/player.h"

class QMessageBox;

namespace orm {

class FormDialog;

class DesktopPlayer : public Player {
 public:
  // `folder`: the working folder, where programs outside are started.
  explicit DesktopPlayer(std::string folder);

  Answer Ask(const MessageBox& box) override;
  std::optional<std::string> ChooseFile(const FileChoice& choice) override;
  void CopyText(const std::string& text) override;
  void StartProgram(const std::string& program, const std::string& argument) override;
  bool ProgramExists(const std::string& path) override;
  OutsidePrograms DefaultPrograms() override;
  ScreenSize Screen() override;  // in points of the screen
  Date Today() override { return SystemDate(); }

  // The window over which dialogs stand when there is no other.
  void SetMainWindow(QWidget* window) { mainWindow_ = window; }

 protected:
  void Present(Form& form) override;
  // Keep the dialog on the screen until it has closed. With a script they hand it over instead.
  virtual void Run(FormDialog& dialog);
  virtual void Run(QMessageBox& shown, const MessageBox& box);

 private:
  // What was chosen on this computer, or is now; never what lies in the working folder.
  bool MayStart(const std::string& path);
  QWidget* Front() const { return open_.empty() ? mainWindow_ : open_.back(); }

  std::string folder_;
  QWidget* mainWindow_ = nullptr;
  std::vector<QWidget*> open_;  // dialogs on the screen, the front one last
};

}  // namespace orm
