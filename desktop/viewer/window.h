// The window of the report viewer: one document, its page and its commands.
#pragma once

#include <QMainWindow>
#include <map>
#include <string>

#include "desktop/viewer/commands.h"
#include "desktop/viewer/file.h"
#include "desktop/viewer/file_names.h"
#include "desktop/viewer/parts/explanation_panel.h"
#include "desktop/viewer/print.h"
#include "desktop/viewer/recent.h"
#include "desktop/viewer/theme.h"
#include "desktop/viewer/unsaved.h"
#include "desktop/viewer/watch.h"
#include "interchange/explained_report.h"

class QLabel;
class QSettings;
class QSplitter;
class QTimer;

namespace orm {

class FindBar;
class NoticeBar;
class SectionList;
class ViewerPage;

// A report made by the program, to be read: it opens closed to editing.
bool IsReport(const std::string& name);

class ViewerWindow : public QMainWindow {
 public:
  ViewerWindow();

  // Reads and shows a file. A file that cannot be read or is no text is a RuntimeFailure, and the
  // window stays as it was.
  void Open(const std::string& path);
  // The same in the place of what is shown, which may have to be saved first; a refused file is
  // told. A rich text comes up in a window of its own.
  void OpenInstead(const QString& path);
  void AskOpen();
  RecentFiles& Recent() { return recent_; }

  // Save the text in the encoding of the file. False when it was not saved: the reason has been
  // shown and the edits stay.
  bool Save();
  bool SaveAs(const std::string& path);
  // A PDF can have the explanations behind it.
  bool SaveCopy(CopyKind kind, const std::string& path, bool explained = false);

  // The same after asking for the name, or for leave where edits would be lost.
  bool AskSaveAs();
  bool AskCopy(CopyKind kind);
  void AskReload();

  // Keeps what is not saved for a next window, should this one not end well.
  void KeepUnsaved() { unsaved_.Keep(); }

  void Print(bool explained = false);
  void Preview();
  void SetEditing(bool on);
  bool Editing() const;
  void SetTheme(Theme theme);
  Theme CurrentTheme() const { return theme_; }

  // The list of sections beside the page, and the way from one heading to another.
  void ShowSections(bool on);
  bool SectionsShown() const;
  void GoToSection(bool backward);

  // How the figures came about, beside the page: of the line of the cursor.
  void ShowExplanations(bool on);
  bool ExplanationsShown() const;
  void GoToExplained(bool backward);
  void CopyExplanation();
  bool AskExplainedPdf();

  void ShowHelp();

  ViewerPage& Page() { return *page_; }
  FindBar& Find() { return *find_; }
  const TextFormat& Format() const { return format_; }

  // Makes the window wide enough for the whole sheet; on a screen too small the letters shrink.
  void FitToSheet();

  // Zoom, theme and size as the user left them.
  void TakeHabits(const QSettings& settings);
  void KeepHabits(QSettings& settings) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Show(const std::string& bytes);
  void FollowFile();
  void GoToLine(int line);
  void ShowBeside(QWidget& panel, bool on);
  void MakeRoomBeside();
  void BuildExplanations();
  void Explain();
  void ExplainEdits();  // those that still wait for their pause
  bool HasExplanations();
  PrintedReport Printed(bool explained) const;
  bool MayLeave();
  bool WriteTo(const FilePlace& place);
  bool RefusedForEncoding();
  void TellHowCopyDiffers();
  void LookAtDisk();
  void ShowState();
  QString Title() const { return QString::fromStdString(place_.name); }
  QString AskName(const NameQuestion& question);

  NoticeBar* notice_;
  ViewerPage* page_;
  FindBar* find_;
  SectionList* sections_;
  ExplanationPanel* explanations_;
  ReportSpiegato explained_;
  struct {
    QString words;
    Qt::CaseSensitivity letters = Qt::CaseInsensitive;
    std::vector<ExplanationPanel::Place> places;
  } found_;  // by the find bar, in the explanations
  QSplitter* side_;
  QTimer* edited_;  // a moment after the last of a row of edits
  QLabel *placeLabel_, *modeLabel_, *formatLabel_, *zoomLabel_;
  ViewerCommands commands_;
  FilePlace place_;
  UnsavedText unsaved_;
  RecentFiles recent_;
  TextFormat format_;
  std::string onDisk_;  // the bytes that the text comes from
  std::string asked_;   // the newer bytes that the notice bar asks about
  bool editable_ = true;
  Theme theme_ = Theme::System;
  std::map<const QWidget*, int> grown_;  // by how much the window grew for each panel
  int zoomAlone_ = 0, zoomBeside_ = 0;   // before a panel took of its room, and since then
  FileWatch watch_;
};

}  // namespace orm
