// Where a script is played: by the plain player, without a screen, or on the widgets of the
// desktop.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "dialogs/main_window.h"
#include "dialogs/player.h"
#include "runtime/folder.h"
#include "script/hand.h"

namespace orm {

class Stage {
 public:
  virtual ~Stage() = default;
  virtual Player& People() = 0;
  virtual void Raise(MainWindow& window) = 0;  // the main window comes to the screen
  // Opens the menus down to the command and chooses it; empty, or why that cannot be done.
  virtual std::string Choose(MainWindow& window, std::string_view command) = 0;
  // The key for help, on whatever stands in front.
  virtual void AskHelp(MainWindow& window) = 0;
};

using StageBuilder = std::function<std::unique_ptr<Stage>(Actor& actor, const WorkFolder& folder)>;

// The plain player: forms as models, every statement on the model itself.
std::unique_ptr<Stage> BuildPlainStage(Actor& actor, const WorkFolder& folder);

// The same for somebody who wants the forms that a script takes pictures of, as they then are.
using PictureTaker = std::function<void(Form& form, const std::string& name)>;
StageBuilder PlainStageWithPictures(PictureTaker take);

// The programs that exist on every stage, so that scripts mean the same everywhere.
OutsidePrograms ScriptPrograms();
bool ScriptProgramExists(const std::string& path, const WorkFolder& folder);

}  // namespace orm
