// Scripts on the widgets of the desktop: the menus, dialogs and message boxes that a person has.
#pragma once

#include <memory>
#include <string>

#include "script/stage.h"

namespace orm {

// `pictures`: the folder for the pictures that scripts ask for; empty: none are made.
StageBuilder DesktopStage(std::string pictures);

// To be called before the application: windows are drawn in memory, on a screen of the usual size,
// unless the user has chosen a platform.
void UseNoScreen();

}  // namespace orm
