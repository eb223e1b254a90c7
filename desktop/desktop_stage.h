// Scripts on the widgets of the desktop: the menus, dialogs and message boxes that a person has.
#pragma once

#include <memory>
#include <string>

#include "script/stage.h"

namespace orm {

// `pictures`: the folder for the pictures that scripts ask for; empty: none are made.
StageBuilder DesktopStage(std::string pictures);

// Keeps the platform without a screen from telling at each window what it lacks.
void QuietOffscreen();

}  // namespace orm
