// The message boxes of the main window, with their words and their line ends.
#pragma once

#include "dialogs/message_boxes.h"

namespace orm {

MessageBox AvvisoRisoluzione();
MessageBox AvvisoNotaConfigurazione();
MessageBox AvvisoFileIntestazioneAssente();
MessageBox AvvisoFileDatiAssente();

}  // namespace orm
