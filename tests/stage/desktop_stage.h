// Scripts on the widgets of the desktop: the menus, dialogs and message boxes that a person has.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <utility>

#include "script/stage.h"

namespace orm {

enum class Hand { Mouse, Keys, Hasty };  // how the person of a script acts

struct DesktopStageOptions {
  std::string pictures = {};  // folder for the pictures that scripts ask for; empty: none
  std::set<std::string>* faults =
      nullptr;  // of forms against the rules of form_lint.h; nullptr: not sought
  Hand hand = Hand::Mouse;
  bool drawings = false;     // the files and the sheet of a drawing beside its form's picture
  bool wholeScreen = false;  // forms that grow fill the screen
  // The commands of which a note, a new one (false) or a change, has been typed in again with a
  // slip in every window; nullptr: none shall be.
  std::set<std::pair<std::string, bool>>* rehearsed = nullptr;
};
StageBuilder DesktopStage(DesktopStageOptions options);

// To be called before the application: windows are drawn in memory, on a screen of that size,
// unless the user has chosen a platform.
void UseNoScreen(int width = 1280, int height = 1024);
// To be called after it: a palette as dark desktops have.
void UseDarkColours();

}  // namespace orm
