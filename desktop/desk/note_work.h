// What the desk does with the notes and texts of the job chosen.
#pragma once

#include "desktop/export/export.h"

namespace orm {

class DeskWindow;

void ShowReport(DeskWindow& window);
void SaveCopy(DeskWindow& window, CopyKind kind);
void PdfOfAll(DeskWindow& window);
void CopyNote(DeskWindow& window);
void ShowVersions(DeskWindow& window);

}  // namespace orm
