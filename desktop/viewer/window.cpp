// The window of the report viewer: its parts, what it shows of its state, and its habits.
#include "desktop/viewer/window.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QProcess>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/find_bar.h"
#include "desktop/viewer/messages.h"
#include "desktop/viewer/parts/notice.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/parts/section_list.h"
#include "runtime/text.h"

namespace orm {
namespace {

constexpr int kRoomAround = 20;  // pixels that a new window leaves free
constexpr int kSectionsWidth = 220, kExplanationsWidth = 340, kPageWidth = 780;
constexpr int kEditPause = 300;     // milliseconds
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
      sections_(new SectionList),
      explanations_(new ExplanationPanel),
      side_(new QSplitter),
      edited_(new QTimer(this)),
      unsaved_(*page_),
      watch_([this] { LookAtDisk(); }) {
  auto* whole = new QWidget(this);
  auto* column = new QVBoxLayout(whole);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(notice_);
  side_->addWidget(sections_);
  side_->addWidget(page_);
  BuildExplanations();
  side_->setStretchFactor(1, 1);
  side_->setChildrenCollapsible(false);
  side_->setSizes({kSectionsWidth, kPageWidth, kExplanationsWidth});
  column->addWidget(side_, 1);
  column->addWidget(find_);
  setCentralWidget(whole);
  placeLabel_ = StateLabel(this, "placeLabel");
  modeLabel_ = StateLabel(this, "modeLabel");
  formatLabel_ = StateLabel(this, "formatLabel");
  zoomLabel_ = StateLabel(this, "zoomLabel");
  sections_->hide();
  setAcceptDrops(true);
  commands_ = BuildCommands(*this);

  connect(page_->document(), &QTextDocument::modificationChanged, this, [this] { ShowState(); });
  connect(page_->document(), &QTextDocument::undoAvailable, this, [this] { ShowState(); });
  connect(page_->document(), &QTextDocument::redoAvailable, this, [this] { ShowState(); });
  connect(page_, &QPlainTextEdit::cursorPositionChanged, this, [this] { ShowState(); });
  edited_->setSingleShot(true);
  edited_->setInterval(kEditPause);
  connect(page_->document(), &QTextDocument::contentsChanged, edited_, qOverload<>(&QTimer::start));
  connect(edited_, &QTimer::timeout, this, [this] {
    sections_->Fill(page_->Visible());
    sections_->Follow(page_->textCursor().blockNumber());
    Explain();
  });
  sections_->chosen = [this](int line) { GoToLine(line); };
  sections_->left = [this] { page_->setFocus(); };
  page_->zoomChanged = [this] { ShowState(); };
  page_->setFocus();
}

void ViewerWindow::FitToSheet() {
  const QSize room = screen()->availableSize() - QSize(kRoomAround, 0);
  while (!page_->Fits() && page_->SheetWidth() > room.width() - kRoomAround &&
         page_->Zoom() > kLeastReadable)
    page_->ZoomBy(-1);
  resize(std::min(page_->SheetWidth() + 100, room.width()), std::min(860, room.height() - 60));
}

void ViewerWindow::GoToLine(int line) {
  // Near the top of the window, wherever the line was.
  page_->verticalScrollBar()->setValue(std::max(0, line - 1));
  page_->setTextCursor(QTextCursor(page_->document()->findBlockByNumber(line)));
}

void ViewerWindow::ShowBeside(QWidget& panel, bool on) {
  const int first = &panel == sections_ ? kSectionsWidth : kExplanationsWidth;
  if (on == panel.isHidden() && !isMaximized() && !isFullScreen()) {
    // The page keeps its room as far as the screen goes, and gets back what it had.
    const int before = size().width();
    const int most = std::max(before, screen()->availableSize().width() - kRoomAround);
    const auto grown = grown_.try_emplace(&panel, panel.width() + side_->handleWidth()).first;
    if (on) grown->second = std::min(first + side_->handleWidth(), most - before);
    resize(
        on ? before + grown->second : std::max(before - grown->second, minimumSizeHint().width()),
        height());
  }
  const bool whole = page_->ShowsWholeSheet();
  panel.setVisible(on);
  side_->refresh();
  if (on && whole && !page_->Fits()) MakeRoomBeside();
  if (!SectionsShown() && !ExplanationsShown() && page_->Zoom() == zoomBeside_)
    page_->SetZoom(zoomAlone_);
  (on ? panel : *page_).setFocus();
  ShowState();
}

// A sheet that was seen whole stays so: the amounts stand at its right edge.
void ViewerWindow::MakeRoomBeside() {
  if (page_->Zoom() != zoomBeside_) zoomAlone_ = page_->Zoom();
  while (!page_->ShowsWholeSheet() && page_->Zoom() > kLeastReadable) page_->ZoomBy(-1);
  zoomBeside_ = page_->Zoom();
}

void ViewerWindow::ShowSections(bool on) { ShowBeside(*sections_, on); }

bool ViewerWindow::SectionsShown() const { return !sections_->isHidden(); }

void ViewerWindow::GoToSection(bool backward) {
  const int line = sections_->LineBeyond(page_->textCursor().blockNumber(), backward);
  if (line >= 0) GoToLine(line);
}

void ViewerWindow::ShowHelp() {
  const QString guide = QCoreApplication::applicationDirPath() + QStringLiteral("/orm2002-guida");
  if (!QProcess::startDetached(guide, {QStringLiteral("manuale/visore.md")}))
    Tell(this, QMessageBox::Warning, QStringLiteral("La guida non può essere mostrata."),
         QStringLiteral("Manca il programma ") + guide);
}

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
  for (QAction* command : commands_.ofNote)
    command->setEnabled(NotaDelReport(place_.name).has_value());
  commands_.edit->setChecked(Editing());
  commands_.cut->setEnabled(Editing());
  commands_.paste->setEnabled(Editing());
  commands_.undo->setEnabled(Editing() && page_->document()->isUndoAvailable());
  commands_.redo->setEnabled(Editing() && page_->document()->isRedoAvailable());

  commands_.sections->setChecked(SectionsShown());
  commands_.fit->setChecked(page_->Fits());
  commands_.explanations->setChecked(ExplanationsShown());
  explanations_->ShowLine(static_cast<std::size_t>(page_->LineOfCursor()));

  const QTextCursor cursor = page_->textCursor();
  sections_->Follow(cursor.blockNumber());
  placeLabel_->setText(QStringLiteral("Riga %1, colonna %2")
                           .arg(cursor.blockNumber() + 1)
                           .arg(cursor.positionInBlock() + 1));
  modeLabel_->setText(Editing()   ? QStringLiteral("Modifica")
                      : editable_ ? QStringLiteral("Sola lettura")
                                  : QStringLiteral("Sola lettura (caratteri non conservabili)"));
  formatLabel_->setText(QString::fromStdString(FormatName(format_)));
  zoomLabel_->setText(QStringLiteral("%1 %").arg(page_->Zoom()));
}

void ViewerWindow::TakeHabits(const QSettings& settings) {
  page_->SetZoom(settings.value(QStringLiteral("zoom"), 100).toInt());
  sections_->setVisible(settings.value(QStringLiteral("sections")).toBool());
  side_->restoreState(settings.value(QStringLiteral("side")).toByteArray());
  const int theme = settings.value(QStringLiteral("theme"), 0).toInt();
  if (theme == 1 || theme == 2) SetTheme(static_cast<Theme>(theme));
  if (!restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray())) FitToSheet();
  page_->SetFit(settings.value(QStringLiteral("fit")).toBool());
  ShowState();
}

void ViewerWindow::KeepHabits(QSettings& settings) const {
  settings.setValue(QStringLiteral("zoom"),
                    page_->Zoom() == zoomBeside_ ? zoomAlone_ : page_->Zoom());
  settings.setValue(QStringLiteral("fit"), page_->Fits());
  settings.setValue(QStringLiteral("sections"), SectionsShown());
  settings.setValue(QStringLiteral("side"), side_->saveState());
  settings.setValue(QStringLiteral("theme"), static_cast<int>(theme_));
  settings.setValue(QStringLiteral("geometry"), saveGeometry());
}

}  // namespace orm
