// What the desk does with whole jobs, with the questions that it asks for it.
#pragma once

#include <QStringList>

namespace orm {

class DeskWindow;

void NewJob(DeskWindow& window);
// The same with a name to begin with; false when none was made.
bool MakeNewJob(DeskWindow& window, const QString& proposed);
void OpenJob(DeskWindow& window);
void DuplicateJob(DeskWindow& window);
void RenameJob(DeskWindow& window);
void ChooseModel(DeskWindow& window);
void ArchiveJob(DeskWindow& window);
void TakeArchive(DeskWindow& window);
void TrashJob(DeskWindow& window);
void AskRoot(DeskWindow& window);
void ShowHelp(DeskWindow& window);

// Files of the program's data, or a folder with them, or an archive, become a job.
void AskFiles(DeskWindow& window);
void TakeFiles(DeskWindow& window, const QStringList& paths);

}  // namespace orm
