// What the desk does with the notes and texts of the job chosen.
#pragma once

namespace orm {

class DeskWindow;

void ShowReport(DeskWindow& window);
void PdfOfOne(DeskWindow& window);
void PdfOfAll(DeskWindow& window);
void CopyNote(DeskWindow& window);
void ShowVersions(DeskWindow& window);

}  // namespace orm
