// The main window on the screen.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <map>
#include <string>

#include "dialogs/main_window.h"

class QLabel;
class QMenu;

namespace orm {

class MenuWindow : public QMainWindow {
 public:
  explicit MenuWindow(MainWindow& window);

  // The menus from the top down to a command; empty when the tree does not have it.
  std::vector<QMenu*> PathTo(const std::string& command);
  QAction* CommandAction(const std::string& command);
  // The first action of the program, once the window has come to the screen. Without it a script
  // is the person, and acts by itself.
  void ActivateOnceShown() { activates_ = true; }
  static constexpr int kPassing = 12000;  // milliseconds that the line of a saved note stays

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;  // F1, wherever it is pressed

 private:
  void FillTop(QMenu& menu, const MenuItem& top);
  void Fill(QMenu& menu, const std::vector<MenuItem>& items);
  void Choose(const std::string& command);
  void TellSaved(const SavedNote& note);
  QString KeysOf(const std::string& command);
  void EndIfEnded();

  MainWindow& window_;
  QLabel* passing_ = nullptr;  // over the picture, gone by itself
  QTimer passingEnds_;
  std::map<std::string, QAction*> commands_;
  bool activates_ = false;
};

}  // namespace orm
