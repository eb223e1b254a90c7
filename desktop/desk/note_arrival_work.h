// Notes that come to the desk as JSON.
#pragma once

#include <QStringList>

namespace orm {

class DeskWindow;

void AskNote(DeskWindow& window);
// Each goes into the job chosen or into a new one, as is asked.
void TakeNotes(DeskWindow& window, const QStringList& paths);

}  // namespace orm
