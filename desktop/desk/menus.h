// The commands of the desk: menus, tool bar, context menus and keys over what is done.
#pragma once

#include <vector>

class QAction;
class QTableView;

namespace orm {

class DeskWindow;

// What is chosen, as far as the commands ask.
struct DeskChoice {
  bool job = false, inUse = false, model = false;
  bool note = false;     // the row is a note
  bool report = false;   // the row has a text to show
  bool reports = false;  // some note of the job has one
};

struct DeskMenus {
  std::vector<QAction*> ofJob, ofFreeJob, ofNote, ofReport;
  QAction *allPdf = nullptr, *model = nullptr;
  void ShowChoice(const DeskChoice& choice) const;
};

// Builds them into the window, which lives at least as long.
DeskMenus BuildMenus(DeskWindow& window, QTableView& jobs, QTableView& contents);

}  // namespace orm
