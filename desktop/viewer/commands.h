// The commands of the viewer: menus, tool bar and keys over the methods of its window.
#pragma once

#include <vector>

class QAction;
class QMenu;

namespace orm {

class ViewerWindow;

// The commands whose state follows the document.
struct ViewerCommands {
  QAction* save = nullptr;
  QAction* edit = nullptr;
  QAction* undo = nullptr;
  QAction* redo = nullptr;
  QAction* cut = nullptr;
  QAction* paste = nullptr;
  QAction* sections = nullptr;
  QAction* fit = nullptr;
  QAction* explanations = nullptr;
  std::vector<QAction*> ofNote;  // there for the report of a note alone
};

// Builds menus and tool bar into the window, which lives at least as long.
ViewerCommands BuildCommands(ViewerWindow& window);

}  // namespace orm
