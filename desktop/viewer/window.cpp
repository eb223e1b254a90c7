// The window of the report viewer and what it does with its file.
#include "desktop/viewer/window.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/find_bar.h"
#include "desktop/viewer/messages.h"
#include "desktop/viewer/notice.h"
#include "desktop/viewer/page.h"
#include "desktop/viewer/print.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace orm {
namespace {

constexpr int kMessageMilliseconds = 6000;
constexpr int kRoomAround = 20;     // pixels that a new window leaves free
constexpr int kLeastReadable = 60;  // per cent: a sheet too wide for the screen shrinks no further

QLabel* StateLabel(ViewerWindow* window, const char* name) {
  auto* label = new QLabel(window);
  label->setObjectName(QString::fromLatin1(name));
  label->setContentsMargins(8, 0, 8, 0);
  window->statusBar()->addPermanentWidget(label);
  return label;
}

}  // namespace

bool IsReport(const std::string& name) { return Capitals(name).ends_with(".DOC"); }

ViewerWindow::ViewerWindow()
    : notice_(new NoticeBar),
      page_(new ViewerPage),
      find_(new FindBar(*page_)),
      unsaved_(*page_),
      watch_([this] { LookAtDisk(); }) {
  auto* whole = new QWidget(this);
  auto* column = new QVBoxLayout(whole);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(notice_);
  column->addWidget(page_, 1);
  column->addWidget(find_);
  setCentralWidget(whole);
  placeLabel_ = StateLabel(this, "placeLabel");
  modeLabel_ = StateLabel(this, "modeLabel");
  formatLabel_ = StateLabel(this, "formatLabel");
  zoomLabel_ = StateLabel(this, "zoomLabel");
  commands_ = BuildCommands(*this);

  connect(page_->document(), &QTextDocument::modificationChanged, this, [this] { ShowState(); });
  connect(page_->document(), &QTextDocument::undoAvailable, this, [this] { ShowState(); });
  connect(page_->document(), &QTextDocument::redoAvailable, this, [this] { ShowState(); });
  connect(page_, &QPlainTextEdit::cursorPositionChanged, this, [this] { ShowState(); });
  page_->zoomChanged = [this] { ShowState(); };
  page_->setFocus();
}

void ViewerWindow::FitToSheet() {
  const QSize room = screen()->availableSize() - QSize(kRoomAround, 0);
  while (page_->SheetWidth() > room.width() - kRoomAround && page_->Zoom() > kLeastReadable)
    page_->ZoomBy(-1);
  resize(std::min(page_->SheetWidth() + 100, room.width()), std::min(860, room.height() - 60));
}

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
  watch_.Follow(QFileInfo(QString::fromStdString(place_.Path())).absoluteFilePath());
}

void ViewerWindow::Show(const std::string& bytes) {
  const DecodedText decoded = DecodeText(bytes);
  format_ = decoded.format;
  onDisk_ = bytes;
  asked_.clear();
  notice_->hide();
  page_->SetText(decoded.text);
  // A text that would not come back byte for byte is only shown.
  const std::string back = page_->Text();
  editable_ = !FirstLackingCharacter(back, format_) && EncodeText(back, format_) == bytes;
  if (!editable_) SetEditing(false);
  ShowState();
}

bool ViewerWindow::RefusedForEncoding() {
  const auto lacking = FirstLackingCharacter(page_->Text(), format_);
  if (!lacking) return false;
  const QString text =
      QStringLiteral(
          "Il carattere «%1» della riga %2 non esiste nella codifica Windows-1252 del file.")
          .arg(QString::fromStdString(lacking->character))
          .arg(lacking->line);
  const QString detail = QStringLiteral(
      "Il file non è stato salvato e le modifiche restano nella finestra. Si può togliere il "
      "carattere, oppure salvare una copia in UTF-8.");
  if (Choose(this, text, detail,
             {QStringLiteral("Salva copia &UTF-8..."), QStringLiteral("&Annulla")}) == 0)
    AskCopy(CopyKind::Utf8);
  return true;
}

bool ViewerWindow::WriteTo(const FilePlace& place) {
  if (RefusedForEncoding()) return false;
  try {
    const std::string bytes = EncodeText(page_->Text(), format_);
    CheckOpensAgain(bytes, format_);
    place.Replace(bytes);
    onDisk_ = bytes;
  } catch (const RuntimeFailure& failure) {
    Tell(this, QMessageBox::Warning, QStringLiteral("Il file non è stato salvato."),
         QString::fromStdString(failure.Text()) +
             QStringLiteral("\n\nLe modifiche restano nella finestra."));
    return false;
  }
  asked_.clear();
  notice_->hide();
  page_->document()->setModified(false);
  statusBar()->showMessage(QStringLiteral("Salvato."), kMessageMilliseconds);
  if (const std::string why = place.folder.TakeWarning(); !why.empty())
    Tell(this, QMessageBox::Information,
         QStringLiteral("Il file è salvato, ma quello di prima non è nella cartella storico."),
         QString::fromStdString(why));
  return true;
}

bool ViewerWindow::Save() {
  std::string now;
  try {
    now = place_.Read();
  } catch (const RuntimeFailure&) {
    now = onDisk_;  // gone or unreadable: writing it anew tells what there is to tell
  }
  if (now != onDisk_ &&
      Choose(this, QStringLiteral("Il file è stato cambiato da un altro programma."),
             QStringLiteral("Salvando, quello che è stato scritto nel frattempo andrebbe perduto."),
             {QStringLiteral("&Sovrascrivi"), QStringLiteral("&Annulla")}, 1) != 0)
    return false;
  return WriteTo(place_);
}

bool ViewerWindow::SaveAs(const std::string& path) {
  const FilePlace place = FilePlace::Of(path);
  if (!WriteTo(place)) return false;
  unsaved_.Forget();
  place_ = place;
  unsaved_.Follow(place_);
  watch_.Follow(QFileInfo(QString::fromStdString(place_.Path())).absoluteFilePath());
  ShowState();
  return true;
}

bool ViewerWindow::SaveCopy(CopyKind kind, const std::string& path) {
  try {
    const FilePlace copy = FilePlace::Of(path);
    RefuseSameFile(place_, copy);
    copy.Replace(CopyOf(kind, page_->Visible(), Title()));
  } catch (const RuntimeFailure& failure) {
    Tell(this, QMessageBox::Warning, QStringLiteral("La copia non è stata salvata."),
         QString::fromStdString(failure.Text()));
    return false;
  }
  statusBar()->showMessage(QStringLiteral("Copia salvata: ") + QString::fromStdString(path),
                           kMessageMilliseconds);
  return true;
}

bool ViewerWindow::AskSaveAs() {
  const QString path =
      AskName({QStringLiteral("Salva con nome"), QStringLiteral("Tutti i file (*)"), {}, Title()});
  return !path.isEmpty() && SaveAs(path.toStdString());
}

bool ViewerWindow::AskCopy(CopyKind kind) {
  const QString path = AskName(NameOfCopy(kind, Title()));
  return !path.isEmpty() && SaveCopy(kind, path.toStdString());
}

QString ViewerWindow::AskName(const NameQuestion& question) {
  return AskFileName(this, QString::fromStdString(place_.folder.Path()), question);
}

void ViewerWindow::AskReload() {
  if (page_->document()->isModified() &&
      Choose(this, QStringLiteral("Il documento ha modifiche non salvate."),
             QStringLiteral("Ricaricando il file dal disco andrebbero perdute."),
             {QStringLiteral("&Ricarica"), QStringLiteral("&Annulla")}) != 0)
    return;
  try {
    Show(place_.Read());
    statusBar()->showMessage(QStringLiteral("Ricaricato."), kMessageMilliseconds);
  } catch (const RuntimeFailure& failure) {
    Tell(this, QMessageBox::Warning, QStringLiteral("Il file non può essere ricaricato."),
         QString::fromStdString(failure.Text()));
  }
}

void ViewerWindow::LookAtDisk() {
  try {
    const std::string now = place_.Read();
    if (now == onDisk_ || now == asked_) return;
    DecodeText(now);
    if (!page_->document()->isModified()) {
      Show(now);
      statusBar()->showMessage(QStringLiteral("Aggiornato: il file è stato riscritto."),
                               kMessageMilliseconds);
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
    statusBar()->showMessage(QString::fromStdString(failure.Reason()), kMessageMilliseconds);
  }
}

void ViewerWindow::Print() { PrintReport(page_->Visible(), Title(), this); }
void ViewerWindow::Preview() { PreviewReport(page_->Visible(), Title(), this); }

bool ViewerWindow::Editing() const { return !page_->isReadOnly(); }

void ViewerWindow::SetEditing(bool on) {
  const bool editing = on && editable_;
  page_->setReadOnly(!editing);
  if (!editing)
    page_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  ShowState();
}

void ViewerWindow::SetTheme(Theme theme) {
  theme_ = theme;
  ApplyTheme(theme);
}

void ViewerWindow::ShowState() {
  const bool modified = page_->document()->isModified();
  setWindowTitle(Title() + QStringLiteral("[*] - ") + QString::fromLatin1(kViewerName));
  setWindowModified(modified);
  commands_.save->setEnabled(modified);
  commands_.edit->setEnabled(editable_);
  commands_.edit->setChecked(Editing());
  commands_.cut->setEnabled(Editing());
  commands_.paste->setEnabled(Editing());
  commands_.undo->setEnabled(Editing() && page_->document()->isUndoAvailable());
  commands_.redo->setEnabled(Editing() && page_->document()->isRedoAvailable());

  const QTextCursor cursor = page_->textCursor();
  placeLabel_->setText(QStringLiteral("Riga %1, colonna %2")
                           .arg(cursor.blockNumber() + 1)
                           .arg(cursor.positionInBlock() + 1));
  modeLabel_->setText(Editing()   ? QStringLiteral("Modifica")
                      : editable_ ? QStringLiteral("Sola lettura")
                                  : QStringLiteral("Sola lettura (caratteri non conservabili)"));
  formatLabel_->setText(QString::fromStdString(FormatName(format_)));
  zoomLabel_->setText(QStringLiteral("%1 %").arg(page_->Zoom()));
}

void ViewerWindow::closeEvent(QCloseEvent* event) {
  if (!page_->document()->isModified()) return event->accept();
  const int choice = Choose(
      this, QStringLiteral("Salvare le modifiche a %1?").arg(Title()),
      QStringLiteral("Senza salvarle andrebbero perdute."),
      {QStringLiteral("&Salva"), QStringLiteral("&Non salvare"), QStringLiteral("&Annulla")});
  const bool leave = choice == 1 || (choice == 0 && Save());
  if (leave) unsaved_.Forget();
  event->setAccepted(leave);
}

void ViewerWindow::TakeHabits(const QSettings& settings) {
  page_->SetZoom(settings.value(QStringLiteral("zoom"), 100).toInt());
  const int theme = settings.value(QStringLiteral("theme"), 0).toInt();
  if (theme == 1 || theme == 2) SetTheme(static_cast<Theme>(theme));
  if (!restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray())) FitToSheet();
}

void ViewerWindow::KeepHabits(QSettings& settings) const {
  settings.setValue(QStringLiteral("zoom"), page_->Zoom());
  settings.setValue(QStringLiteral("theme"), static_cast<int>(theme_));
  settings.setValue(QStringLiteral("geometry"), saveGeometry());
}

}  // namespace orm
