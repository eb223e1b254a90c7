// The message boxes of the main window, with their words and their line ends.
#pragma once

#include "dialogs/message_boxes.h"

namespace orm {

MessageBox AvvisoRisoluzione();
MessageBox AvvisoNotaConfigurazione();
MessageBox AvvisoFileUtenteAssente();
MessageBox AvvisoFileIntestazioneAssente();
MessageBox AvvisoFileDatiAssente();
MessageBox AvvisoFileLetteraAssente();

}  // namespace orm
