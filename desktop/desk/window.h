// The desk: the jobs on the left, on the right what is in the one that is chosen.
#pragma once

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "desktop/desk/menus.h"
#include "desktop/desk/programs.h"
#include "desktop/desk/settings.h"

class QLabel;
class QLineEdit;
class QSplitter;
class QStackedWidget;
class QTableView;

namespace orm {

class ContentsModel;
class JobsModel;
class Lavori;

class DeskWindow : public QMainWindow {
 public:
  // Shows the jobs below the root of the settings.
  explicit DeskWindow(DeskSettings& settings);
  ~DeskWindow() override;

  DeskSettings& Settings() { return settings_; }
  Lavori& Jobs();
  ContentsModel& Contents() { return *contents_; }

  // The job chosen; empty where there is none. And its folder.
  QString Job() const { return job_; }
  std::string Folder() const;
  int Row() const;  // of the contents; -1: none

  // Starts a program beside this one. True too while the same one is being started: Enter is hit
  // twice, and the first has not taken its folder yet.
  bool Start(const QString& name, const QStringList& arguments, const QString& folder);
  ProgramStart start = StartProgram;

  // Shows another root.
  void SetRoot(const QString& folder);
  // Looks at the folders again and shows what has changed.
  void Look();
  // Shows this job and chooses it, whatever is sought.
  void GoTo(const QString& job);
  void Seek();  // gives the keyboard to the field of the search
  void Say(const QString& text);
  // Shows which commands are there for what is chosen.
  void ShowState();

  void KeepHabits();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QWidget* JobsSide();
  QWidget* ContentsSide();
  QWidget* EmptyPage();
  void TakeHabits();
  void ShowModel();
  void ListJobs();
  void Narrow();
  void SearchOn();
  bool IsListed(const QString& job);  // under that very name
  void ChooseRow();
  void ShowJob();
  void MarkFound();
  void ShowPages();
  void Watch();

  DeskSettings& settings_;
  std::unique_ptr<JobsModel> jobs_;
  ContentsModel* contents_;
  QLineEdit* sought_;
  QTableView *jobsView_, *contentsView_;
  QLabel *found_, *jobTitle_, *jobState_, *emptyText_;
  QSplitter* splitter_;
  QStackedWidget* pages_;
  DeskMenus menus_;
  QString job_;
  QString unreadable_;     // why the root cannot be read
  QString unreadableJob_;  // why the chosen job cannot be
  QString starting_;       // the program started last
  QElapsedTimer started_;
  bool listing_ = false, listed_ = false;  // just now; ever
  QFileSystemWatcher watcher_;
  QTimer pause_, searching_, useCheck_;
};

}  // namespace orm
