#include "desktop/desk/window.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <utility>

#include "desktop/desk/contents_model.h"
#include "desktop/desk/desk_view.h"
#include "desktop/desk/job_work.h"
#include "desktop/desk/jobs_model.h"
#include "desktop/desk/note_work.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/messages.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr int kPause = 150;      // milliseconds after the last of a burst of changes
constexpr int kUseCheck = 2000;  // milliseconds between two looks whether the job is in use
constexpr std::chrono::milliseconds kSlice(25);

}  // namespace

DeskWindow::DeskWindow(DeskSettings& settings)
    : settings_(settings),
      jobs_(std::make_unique<JobsModel>(FromQt(settings.Root()))),
      contents_(new ContentsModel(this)),
      sought_(new QLineEdit),
      jobsView_(new QTableView),
      contentsView_(new QTableView),
      found_(DeskLabel("found")),
      jobTitle_(DeskLabel("jobTitle")),
      jobState_(DeskLabel("jobState")),
      emptyText_(DeskLabel("emptyText")),
      splitter_(new QSplitter),
      pages_(new QStackedWidget) {
  setAcceptDrops(true);
  splitter_->addWidget(JobsSide());
  splitter_->addWidget(ContentsSide());
  splitter_->setStretchFactor(1, 1);
  splitter_->setChildrenCollapsible(false);
  pages_->addWidget(splitter_);
  pages_->addWidget(EmptyPage());
  setCentralWidget(pages_);
  menus_ = BuildMenus(*this, *jobsView_, *contentsView_);
  statusBar();
  for (QTimer* timer : {&pause_, &searching_}) timer->setSingleShot(true);
  pause_.setInterval(kPause);
  useCheck_.start(kUseCheck);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &pause_, [this] { pause_.start(); });
  // What a question is about stays as it is until it is answered.
  connect(&pause_, &QTimer::timeout, this,
          [this] { QApplication::activeModalWidget() == nullptr ? Look() : pause_.start(); });
  connect(&searching_, &QTimer::timeout, this, [this] {
    SearchOn();
    jobsView_->currentIndex().isValid() ? MarkFound() : GoTo(job_);
  });
  connect(&useCheck_, &QTimer::timeout, this, [this] { ShowState(); });
  TakeHabits();
  // Before the first painting, and yet behind the window: however many jobs there are, it comes at
  // once.
  QTimer::singleShot(0, this, [this] {
    if (!listed_) ListJobs();
  });
}

DeskWindow::~DeskWindow() = default;

// ---------------------------------------------------------------- what it is made of

QWidget* DeskWindow::JobsSide() {
  sought_->setObjectName(QStringLiteral("sought"));
  sought_->setPlaceholderText(QStringLiteral("Cerca in tutti i lavori"));
  sought_->setToolTip(QStringLiteral(
      "Nome del lavoro, committente, oggetto, caso o importo netto: una o più parole"));
  sought_->setAccessibleName(sought_->placeholderText());
  sought_->setClearButtonEnabled(true);
  DressDeskTable(*jobsView_, "jobs", QStringLiteral("Lavori"));
  ShowWithRoom(*jobsView_, JobsModel::Day, 40);
  ShowModel();
  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  column->addWidget(sought_);
  column->addWidget(jobsView_, 1);
  column->addWidget(found_);
  connect(sought_, &QLineEdit::textChanged, this, [this] { Narrow(); });
  connect(sought_, &QLineEdit::returnPressed, jobsView_, [this] { jobsView_->setFocus(); });
  const auto onKey = [this](Qt::Key key, const std::function<void()>& work) {
    const auto* keys = new QShortcut(key, sought_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(keys, &QShortcut::activated, this, work);
  };
  onKey(Qt::Key_Down, [this] { jobsView_->setFocus(); });
  onKey(Qt::Key_Escape, [this] {
    sought_->clear();
    jobsView_->setFocus();
  });
  connect(jobsView_, &QTableView::activated, this,
          [this] { findChild<QAction*>(QStringLiteral("open"))->trigger(); });
  return side;
}

QWidget* DeskWindow::ContentsSide() {
  DressDeskTable(*contentsView_, "contents", QStringLiteral("Parcelle e testi del lavoro"));
  contentsView_->setModel(contents_);
  QHeaderView* header = contentsView_->horizontalHeader();
  header->setMinimumSectionSize(CharactersWide(*contentsView_, 6));
  const int widths[] = {0, 7, 0, 0, 0, 11, 14};  // characters; 0: a share of what is left
  for (int i = 0; i < ContentsModel::Columns; ++i)
    if (widths[i] > 0)
      header->resizeSection(i, CharactersWide(*contentsView_, widths[i]));
    else
      header->setSectionResizeMode(i, QHeaderView::Stretch);
  ShowWithRoom(*contentsView_, ContentsModel::Day, 72);
  QFont bold = jobTitle_->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.2);
  jobTitle_->setFont(bold);
  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  column->addWidget(jobTitle_);
  column->addWidget(jobState_);
  column->addWidget(contentsView_, 1);
  connect(contentsView_, &QTableView::activated, this, [this] { ShowReport(*this); });
  connect(contentsView_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowState(); });
  return side;
}

QWidget* DeskWindow::EmptyPage() {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  auto* first = new QPushButton(QStringLiteral("&Nuovo lavoro..."));
  first->setObjectName(QStringLiteral("firstJob"));
  first->setAutoDefault(true);
  emptyText_->setAlignment(Qt::AlignCenter);
  column->addStretch(1);
  column->addWidget(emptyText_);
  column->addSpacing(12);
  column->addWidget(first, 0, Qt::AlignHCenter);
  column->addStretch(2);
  connect(first, &QPushButton::clicked, this, [this] { NewJob(*this); });
  return page;
}

// ---------------------------------------------------------------- the jobs

Lavori& DeskWindow::Jobs() { return jobs_->Jobs(); }
std::string DeskWindow::Folder() const { return jobs_->Jobs().CartellaDi(FromQt(job_)); }
int DeskWindow::Row() const { return contentsView_->currentIndex().row(); }

void DeskWindow::ShowModel() {
  jobsView_->setModel(jobs_.get());
  QHeaderView* header = jobsView_->horizontalHeader();
  header->setSectionResizeMode(JobsModel::Name, QHeaderView::Stretch);
  header->resizeSection(JobsModel::Notes, CharactersWide(*jobsView_, 9));
  header->resizeSection(JobsModel::Day, CharactersWide(*jobsView_, 14));
  connect(jobsView_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ChooseRow(); });
}

void DeskWindow::SetRoot(const QString& folder) {
  settings_.SetRoot(folder);
  const auto former = std::exchange(jobs_, std::make_unique<JobsModel>(FromQt(folder)));
  ShowModel();
  job_.clear();
  sought_->clear();
  ListJobs();
}

// The choice outlives a list that is read anew.
void DeskWindow::ListJobs() {
  listing_ = listed_ = true;
  unreadable_.clear();
  bool changed = false;
  try {
    changed = jobs_->Look();
  } catch (const RuntimeFailure& failure) {
    unreadable_ = ToQt(failure.Text());
  }
  listing_ = false;
  ShowPages();
  if (!changed) return ChooseRow();
  SearchOn();
  GoTo(job_);
}

void DeskWindow::Look() {
  const int row = Row();
  const std::string at = row < 0 ? std::string() : contents_->NameOf(row);
  ListJobs();
  if (const int again = contents_->RowOf(at); again >= 0) contentsView_->selectRow(again);
}

void DeskWindow::Narrow() {
  listing_ = true;
  jobs_->Seek(sought_->text().simplified());  // a line is pasted with its end
  listing_ = false;
  SearchOn();
  GoTo(job_);
}

// A slice of the search; the next one when the window has done what else there is to do.
void DeskWindow::SearchOn() {
  const bool ended = jobs_->GoOn(kSlice);
  const int shown = jobs_->rowCount();
  const auto all = Jobs().Voci().size();
  QString text = sought_->text().trimmed().isEmpty() ? QStringLiteral("%1 lavori").arg(all)
                 : shown == 0 && ended ? QStringLiteral("Nessun lavoro trovato su %1").arg(all)
                 : shown == 1          ? QStringLiteral("Trovato 1 lavoro su %1").arg(all)
                              : QStringLiteral("Trovati %1 lavori su %2").arg(shown).arg(all);
  if (all == 1 && sought_->text().trimmed().isEmpty()) text = QStringLiteral("1 lavoro");
  if (!ended) text += QStringLiteral(" - cerco ancora...");
  found_->setText(text);
  if (!ended) searching_.start(0);
}

bool DeskWindow::IsListed(const QString& job) {
  return std::ranges::any_of(
      Jobs().Voci(), [name = FromQt(job)](const VoceLavoro& one) { return one.nome == name; });
}

void DeskWindow::GoTo(const QString& job) {
  if (!listed_) ListJobs();
  int row = job.isEmpty() ? -1 : jobs_->RowOf(job);
  const bool hidden = row < 0 && IsListed(job);
  if (hidden && job != job_) {
    sought_->clear();
    row = jobs_->RowOf(job);
  }
  if (row < 0 && jobs_->rowCount() > 0) row = 0;
  listing_ = true;
  if (row >= 0) {
    jobsView_->selectRow(row);
    jobsView_->scrollTo(jobs_->index(row, 0));
  }
  listing_ = false;
  ChooseRow();
}

void DeskWindow::ChooseRow() {
  if (listing_) return;
  job_ = jobs_->NameAt(jobsView_->currentIndex().row());
  ShowJob();
}

void DeskWindow::ShowPages() {
  const bool empty = Jobs().Voci().empty();
  emptyText_->setText(
      unreadable_.isEmpty()
          ? QStringLiteral(
                "Qui staranno i lavori, ciascuno in una cartella con le sue parcelle.\n\n"
                "Il primo si fa con il pulsante, oppure trascinando qui i file di "
                "ORM2002, un archivio ZIP o una parcella in JSON.\n\nCartella dei lavori: %1")
                .arg(Foldable(settings_.Root()))
          : QStringLiteral("La cartella dei lavori non si può leggere.\n\n") +
                Foldable(unreadable_));
  const bool was = pages_->currentIndex() == 1;
  pages_->setCurrentIndex(empty ? 1 : 0);
  if (empty) findChild<QPushButton*>(QStringLiteral("firstJob"))->setFocus();
  if (!empty && (was || focusWidget() == nullptr)) jobsView_->setFocus();
}

}  // namespace orm
