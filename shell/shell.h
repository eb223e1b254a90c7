// The main window's logic: start-up, the menu tree and the one place where failures are caught.
#pragma once

#include <functional>
#include <utility>

#include "dialogs/main_window.h"
#include "shell/saved_drafts.h"
#include "shell/state/run_state.h"

namespace orm {

class Shell : public MainWindow {
 public:
  Shell(Player& player, WorkFolder folder);

  const std::string& Title() const override { return title_; }
  const std::vector<MenuItem>& Menu() const override { return menu_; }
  bool Load() override;
  void FirstActivation() override;
  void MenuOpened(std::string_view topName) override;
  void Choose(std::string_view commandName) override;
  SavedNote TakeSaved() override { return std::exchange(saved_, {}); }
  void Help(std::string_view commandName) override;
  bool Ended() const override { return ended_; }

  // Part of a start: the files that the folder lacks, out of the folder of the installed ones.
  void PreparaCartella(const std::string& installati);

  // Editors and criteria from their files, or their defaults.
  void ReadSettings();

  RunState& State() { return stato_; }
  // What was typed and not confirmed, by a run that did not end well; this one's as it goes on.
  SavedDrafts& Bozze() { return bozze_; }

 private:
  // Runs one step; a failure in it becomes its message, and the program goes on.
  void Guard(const std::function<void()>& step);

  std::string title_;
  std::vector<MenuItem> menu_;
  RunState stato_;
  SavedDrafts bozze_;
  bool ended_ = false;
  SavedNote saved_;
  std::string running_;  // the command at work; empty between commands
};

}  // namespace orm
