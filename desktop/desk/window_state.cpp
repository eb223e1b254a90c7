// What the window of the desk tells about what is chosen, and what comes to it from outside.
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <algorithm>

#include "desktop/desk/contents_model.h"
#include "desktop/desk/job_work.h"
#include "desktop/desk/jobs_model.h"
#include "desktop/desk/questions.h"
#include "desktop/desk/window.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/messages.h"
#include "runtime/failure.h"

namespace orm {
namespace {
constexpr int kMessageStays = 9000;  // milliseconds
constexpr int kStarting = 3000;      // milliseconds that a program takes at most
constexpr int kRoomAround = 20;      // pixels that a new window leaves free at its sides
}  // namespace

// ---------------------------------------------------------------- what is shown of it

void DeskWindow::ShowJob() {
  Lavoro job;
  unreadableJob_.clear();
  try {
    if (!job_.isEmpty() && !IsListed(job_))  // Qt would look for another name
      throw RuntimeFailure(
          "Il nome della cartella non è scritto in UTF-8: prima di lavorarci va cambiato con il "
          "gestore dei file.");
    if (!job_.isEmpty()) job = Jobs().Dettagli(FromQt(job_));
  } catch (const RuntimeFailure& failure) {
    unreadableJob_ = ToQt(failure.Text());
  }
  contents_->Show(job);
  jobTitle_->setText(Foldable(job_));
  jobTitle_->setToolTip(job_.isEmpty() ? QString() : ToQt(Folder()));
  if (contents_->rowCount() > 0) contentsView_->selectRow(0);
  MarkFound();
  Watch();
  ShowState();
}

// The note that is sought is the one chosen.
void DeskWindow::MarkFound() {
  const std::vector<std::size_t> found = jobs_->FoundIn(job_);
  if (!found.empty()) contentsView_->selectRow(static_cast<int>(found.front()));
}

void DeskWindow::ShowState() {
  setWindowTitle(QString::fromLatin1(kDeskName));
  DeskChoice choice;
  choice.job = !job_.isEmpty() && unreadableJob_.isEmpty();
  choice.inUse = choice.job && InUso(Folder());
  const int row = Row();
  const ParcellaDelLavoro* note = contents_->NoteAt(row);
  choice.note = note != nullptr;
  choice.report = row >= 0 && !contents_->FileAt(row).empty();
  for (int i = 0; i < contents_->rowCount(); ++i)
    choice.reports =
        choice.reports || (contents_->NoteAt(i) != nullptr && !contents_->FileAt(i).empty());
  choice.model = choice.job && settings_.Model() == job_;
  menus_.ShowChoice(choice);
  jobState_->setText(!unreadableJob_.isEmpty() ? Foldable(unreadableJob_)
                     : choice.inUse ? QStringLiteral("In uso: ORM2002 lavora in questa cartella.")
                     : contents_->rowCount() > 0 || !choice.job
                         ? QString()
                         : QStringLiteral("Ancora nessuna parcella: \"Apri\" fa partire ORM2002 in "
                                          "questo lavoro."));
  jobState_->setVisible(!jobState_->text().isEmpty());
}

void DeskWindow::Seek() {
  sought_->setFocus();
  sought_->selectAll();
}

void DeskWindow::Say(const QString& text) { statusBar()->showMessage(text, kMessageStays); }

bool DeskWindow::Start(const QString& name, const QStringList& arguments, const QString& folder) {
  const QString wanted = (QStringList{name, folder} + arguments).join('\n');
  if (wanted == starting_ && !started_.hasExpired(kStarting)) return true;
  const bool starts = start(name, arguments, folder);
  starting_ = starts ? wanted : QString();
  started_.start();
  return starts;
}

void DeskWindow::Watch() {
  QStringList wanted = {settings_.Root()};
  if (!job_.isEmpty()) wanted += ToQt(Folder());
  const QStringList old = watcher_.directories();
  for (const QString& path : old)
    if (!wanted.contains(path)) watcher_.removePath(path);
  for (const QString& path : wanted)
    if (!old.contains(path) && QFileInfo::exists(path)) watcher_.addPath(path);
}

// ---------------------------------------------------------------- from outside

// What happened while another window was in front.
bool DeskWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) pause_.start();
  return QMainWindow::event(event);
}

void DeskWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void DeskWindow::dropEvent(QDropEvent* event) {
  QStringList paths;
  for (const QUrl& url : event->mimeData()->urls())
    if (url.isLocalFile()) paths += url.toLocalFile();
  event->acceptProposedAction();
  // Once the program that the files come from is free again: this asks.
  if (!paths.isEmpty())
    QMetaObject::invokeMethod(
        this, [this, paths] { TakeFiles(*this, paths); }, Qt::QueuedConnection);
}

void DeskWindow::TakeHabits() {
  const QSize room = screen()->availableSize();
  if (!restoreGeometry(settings_.State("finestra")))
    resize(QSize(CharactersWide(*this, 160), 680)
               .boundedTo({room.width() - kRoomAround, room.height() * 9 / 10}));
  const int jobs = std::min(CharactersWide(*this, 46), width() / 3);
  if (!splitter_->restoreState(settings_.State("divisione")))
    splitter_->setSizes({jobs, width() - jobs});
}

void DeskWindow::KeepHabits() {
  settings_.KeepState("finestra", saveGeometry());
  settings_.KeepState("divisione", splitter_->saveState());
}

}  // namespace orm
