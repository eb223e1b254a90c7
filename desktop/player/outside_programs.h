// The programs outside that a new installation works with, as far as this machine has them.
#pragma once

#include "dialogs/player.h"

namespace orm {

OutsidePrograms FindOutsidePrograms();

}  // namespace orm
