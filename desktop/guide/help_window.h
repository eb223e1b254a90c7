// The window of the help: contents and search on the left, the page on the right.
#pragma once

#include <QMainWindow>
#include <vector>

#include "shell/help/help_books.h"

class QLineEdit;
class QListWidget;
class QSettings;
class QSplitter;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace orm {

class FindBar;
class HelpView;

class HelpWindow : public QMainWindow {
 public:
  HelpWindow();

  // A book ("NORME.HLP", small or capital) or a page ("manuale/coa.md"); of what does not exist the
  // manual opens.
  void Open(const QString& place);
  void Search(const QString& sought);

  HelpView& View() { return *view_; }
  FindBar& Find() { return *find_; }

  // Size, place of the splitter and zoom, as the user left them.
  void TakeHabits(const QSettings& settings);
  void KeepHabits(QSettings& settings) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* Contents();
  QWidget* SearchPanel();
  void FillContents();
  void BuildCommands();
  void ShowPlace();
  void ShowHits();
  void OpenHit(int row);

  const std::vector<HelpBook> books_;
  QTabWidget* tabs_;
  QTreeWidget* contents_;
  QLineEdit* sought_;
  QListWidget* hits_;
  std::vector<HelpHit> found_;
  HelpView* view_;
  FindBar* find_;
  QSplitter* splitter_;
};

}  // namespace orm
