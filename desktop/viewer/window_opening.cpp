// What the window reads: the file that it is given, another in its place, and the same again when
// somebody has rewritten it.
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QProcess>
#include <QStatusBar>
#include <QTimer>

#include "desktop/viewer/messages.h"
#include "desktop/viewer/parts/notice.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/parts/section_list.h"
#include "desktop/viewer/window.h"
#include "runtime/failure.h"

namespace orm {
namespace {

QStringList LocalFiles(const QMimeData* dragged) {
  QStringList files;
  for (const QUrl& url : dragged->urls())
    if (url.isLocalFile()) files += url.toLocalFile();
  return files;
}

// In a window of its own: for what this one does not show, a rich text above all.
void ShowElsewhere(const QString& path) {
  QProcess::startDetached(QCoreApplication::applicationFilePath(), {QStringLiteral("--"), path});
}

}  // namespace

void ViewerWindow::Open(const std::string& path) {
  const FilePlace place = FilePlace::Of(path);
  const std::string bytes = place.Read();
  try {
    DecodeText(bytes);  // refuses what is no text before anything changes
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(place.name);
  }
  place_ = place;
  Show(bytes);
  page_->moveCursor(QTextCursor::Start);
  unsaved_.Follow(place_);
  SetEditing((editable_ && unsaved_.ComesBack(this)) || !IsReport(place_.name));
  FollowFile();
}

void ViewerWindow::FollowFile() {
  const QString path = QFileInfo(QString::fromStdString(place_.Path())).absoluteFilePath();
  watch_.Follow(path);
  recent_.Add(path);
}

void ViewerWindow::OpenInstead(const QString& path) {
  try {
    const std::string file = path.toStdString();
    if (IsRichText(file)) return ShowElsewhere(path);
    FilePlace::Of(file).Read();  // what cannot be read is told before anything is asked
    if (MayLeave()) Open(file);
  } catch (const RuntimeFailure& failure) {
    if (!QFileInfo::exists(path)) recent_.Forget(path);
    Tell(this, QMessageBox::Warning, QStringLiteral("Il file non può essere mostrato."),
         QString::fromStdString(failure.Text()));
  }
}

void ViewerWindow::AskOpen() {
  const QString path = AskFileToOpen(this, QString::fromStdString(place_.folder.Path()));
  if (!path.isEmpty()) OpenInstead(path);
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!LocalFiles(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void ViewerWindow::dropEvent(QDropEvent* event) {
  QStringList files = LocalFiles(event->mimeData());
  if (files.isEmpty()) return;
  event->acceptProposedAction();
  const QString first = files.takeFirst();
  for (const QString& other : files) ShowElsewhere(other);
  OpenInstead(first);
}

void ViewerWindow::Show(const std::string& bytes) {
  const DecodedText decoded = DecodeText(bytes);
  format_ = decoded.format;
  onDisk_ = bytes;
  asked_.clear();
  notice_->hide();
  page_->SetText(decoded.text);
  sections_->Fill(page_->Visible());
  // A text that would not come back byte for byte is only shown.
  const std::string back = page_->Text();
  editable_ = !FirstLackingCharacter(back, format_) && EncodeText(back, format_) == bytes;
  if (!editable_) SetEditing(false);
  ShowState();
}

void ViewerWindow::AskReload() {
  if (page_->document()->isModified() &&
      Choose(this, QStringLiteral("Il documento ha modifiche non salvate."),
             QStringLiteral("Ricaricando il file dal disco andrebbero perdute."),
             {QStringLiteral("&Ricarica"), QStringLiteral("&Annulla")}) != 0)
    return;
  try {
    Show(place_.Read());
    statusBar()->showMessage(QStringLiteral("Ricaricato."), kStatusMilliseconds);
  } catch (const RuntimeFailure& failure) {
    Tell(this, QMessageBox::Warning, QStringLiteral("Il file non può essere ricaricato."),
         QString::fromStdString(failure.Text()));
  }
}

void ViewerWindow::LookAtDisk() {
  try {
    const std::string now = place_.Read();
    edited_->start();  // the data beside it may have changed too, and with them the explanations
    if (now == onDisk_ || now == asked_) return;
    DecodeText(now);
    if (!page_->document()->isModified()) {
      Show(now);
      statusBar()->showMessage(QStringLiteral("Aggiornato: il file è stato riscritto."),
                               kStatusMilliseconds);
      return;
    }
    asked_ = now;
    notice_->Ask(
        QStringLiteral("Il file è stato riscritto, forse da un nuovo calcolo, mentre qui ci "
                       "sono modifiche non salvate."),
        {QStringLiteral("&Ricarica dal disco"), QStringLiteral("&Tieni le modifiche")},
        [this, now](int choice) {
          if (choice == 0) return Show(now);
          onDisk_ = now;  // known now: saving may replace it
        });
  } catch (const RuntimeFailure& failure) {
    statusBar()->showMessage(QString::fromStdString(failure.Reason()), kStatusMilliseconds);
  }
}

}  // namespace orm
