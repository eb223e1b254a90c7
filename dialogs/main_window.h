// The main window as the logic describes it: a title, a picture and a menu tree. A player shows it
// and hands back what the person chooses.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orm {

struct MenuItem {
  std::string name;     // control name; empty for a separator
  std::string caption;  // shown as it stands
  std::vector<MenuItem> children = {};
  bool IsSeparator() const { return name.empty(); }
};

// The top entry whose tree holds the command, or nullptr.
const MenuItem* TopOf(const std::vector<MenuItem>& menu, std::string_view commandName);

// The commands of a menu with all its submenus, in their order.
std::vector<std::string> CommandsOf(const std::vector<MenuItem>& menu);

// What a command has saved, and the command that goes on from there.
struct SavedNote {
  std::string text;  // empty: nothing was saved
  std::string next;
};

class MainWindow {
 public:
  virtual ~MainWindow() = default;

  virtual const std::string& Title() const = 0;
  virtual const std::vector<MenuItem>& Menu() const = 0;

  // Before the window is shown. False: the program ends.
  virtual bool Load() = 0;
  // Once, after the window has come to the screen.
  virtual void FirstActivation() = 0;
  // A top menu opens.
  virtual void MenuOpened(std::string_view topName) = 0;
  // A command is chosen. A run-time failure within it has become a message when this comes back.
  virtual void Choose(std::string_view commandName) = 0;
  // What the last command saved, told once; the window shows it for a while.
  virtual SavedNote TakeSaved() { return {}; }
  // Help is asked for: about a command, or without one about what is on the screen.
  virtual void Help(std::string_view commandName) = 0;
  // True when a command has ended the program.
  virtual bool Ended() const = 0;
};

}  // namespace orm
