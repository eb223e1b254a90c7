// The message boxes of the main window, with their words and their line ends.
#pragma once

#include "dialogs/message_boxes.h"

namespace orm {

MessageBox AvvisoRisoluzione();
MessageBox AvvisoNotaConfigurazione();
MessageBox AvvisoFileIntestazioneAssente();
MessageBox AvvisoFileDatiAssente();
// `nomi`: the files that neither the working folder has nor the installation.
MessageBox AvvisoFileInstallatiAssenti(const std::string& nomi);
// A run of the program that did not end well has left what was typed.
MessageBox AvvisoBozze();
// A save has gone well, but what it replaced is not in `storico`: `perche` says why.
MessageBox AvvisoVersioneNonConservata(const std::string& perche);

}  // namespace orm
