#include "desktop/guide/help_window.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/find_bar.h"
#include "desktop/guide/help_view.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kFile = Qt::UserRole, kSection = Qt::UserRole + 1;
constexpr int kZoomStep = 10;

QTreeWidgetItem* AddItem(QTreeWidgetItem* above, const QString& text, const QString& file,
                         const QString& section = {}) {
  auto* item = new QTreeWidgetItem(above, {text});
  item->setData(0, kFile, file);
  item->setData(0, kSection, section);
  item->setToolTip(0, text);
  return item;
}

void AddSections(QTreeWidgetItem* above, const HelpPage& page) {
  for (const std::string& section : page.sections)
    AddItem(above, ToQt(section), ToQt(page.file), ToQt(section));
}

}  // namespace

HelpWindow::HelpWindow()
    : books_(HelpBooks()),
      tabs_(new QTabWidget),
      contents_(new QTreeWidget),
      sought_(new QLineEdit),
      hits_(new QListWidget),
      view_(new HelpView(books_)),
      find_(new FindBar(*view_)),
      splitter_(new QSplitter) {
  setWindowTitle(QStringLiteral("ORM2002 - Guida"));
  tabs_->addTab(Contents(), QStringLiteral("&Indice"));
  tabs_->addTab(SearchPanel(), QStringLiteral("&Cerca"));
  connect(tabs_, &QTabWidget::currentChanged, this,
          [this](int tab) { tab == 0 ? contents_->setFocus() : sought_->setFocus(); });
  auto* right = new QWidget;
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(view_, 1);
  column->addWidget(find_);
  splitter_->addWidget(tabs_);
  splitter_->addWidget(right);
  splitter_->setStretchFactor(1, 1);
  splitter_->setSizes({300, 700});
  splitter_->setChildrenCollapsible(false);
  setCentralWidget(splitter_);
  resize(1040, 720);
  BuildCommands();
  view_->setFocus();
  connect(view_, &QTextBrowser::sourceChanged, this, [this] { ShowPlace(); });
}

// ---------------------------------------------------------------- contents

QWidget* HelpWindow::Contents() {
  contents_->setObjectName(QStringLiteral("contents"));
  contents_->setAccessibleName(QStringLiteral("Indice"));
  contents_->setHeaderHidden(true);
  contents_->setFrameShape(QFrame::NoFrame);
  FillContents();
  const auto open = [this](QTreeWidgetItem* item) {
    const QString file = item->data(0, kFile).toString();
    if (!file.isEmpty()) view_->Open(file, item->data(0, kSection).toString());
  };
  connect(contents_, &QTreeWidget::itemClicked, this, open);
  connect(contents_, &QTreeWidget::itemActivated, this, open);
  return contents_;
}

// Books of one page have its sections below them; the manual has groups of pages.
void HelpWindow::FillContents() {
  for (const HelpBook& book : books_) {
    QTreeWidgetItem* top = AddItem(contents_->invisibleRootItem(), ToQt(book.title), {});
    QFont bold = contents_->font();
    bold.setBold(true);
    top->setFont(0, bold);
    if (book.pages.size() == 1) {
      top->setData(0, kFile, ToQt(book.pages[0].file));
      AddSections(top, book.pages[0]);
      continue;
    }
    QTreeWidgetItem* group = top;
    QString groupName;
    for (const HelpPage& page : book.pages) {
      if (ToQt(page.group) != groupName) {
        groupName = ToQt(page.group);
        group = groupName.isEmpty() ? top : AddItem(top, groupName, {});
      }
      AddSections(AddItem(group, ToQt(page.title), ToQt(page.file)), page);
    }
    if (book.file == kManuale) top->setExpanded(true);
  }
}

// The contents follow the page that is read.
void HelpWindow::ShowPlace() {
  const HelpPage* page = view_->Page();
  setWindowTitle(page == nullptr ? QStringLiteral("ORM2002 - Guida")
                                 : "ORM2002 - " + ToQt(page->title));
  for (QTreeWidgetItemIterator at(contents_); *at != nullptr; ++at) {
    if ((*at)->data(0, kFile).toString() != view_->File()) continue;
    const QTreeWidgetItem* now = contents_->currentItem();
    if (now == nullptr || now->data(0, kFile).toString() != view_->File()) {
      contents_->setCurrentItem(*at);
      (*at)->setExpanded(true);
      contents_->scrollToItem(*at);
    }
    return;
  }
}

// ---------------------------------------------------------------- search

QWidget* HelpWindow::SearchPanel() {
  sought_->setObjectName(QStringLiteral("sought"));
  sought_->setPlaceholderText(QStringLiteral("Parole da cercare nella guida"));
  sought_->setAccessibleName(sought_->placeholderText());
  sought_->setClearButtonEnabled(true);
  hits_->setObjectName(QStringLiteral("hits"));
  hits_->setAccessibleName(QStringLiteral("Pagine trovate"));
  hits_->setFrameShape(QFrame::NoFrame);
  hits_->setWordWrap(true);
  hits_->setSpacing(3);
  auto* panel = new QWidget;
  auto* column = new QVBoxLayout(panel);
  column->addWidget(sought_);
  column->addWidget(hits_, 1);
  connect(sought_, &QLineEdit::textChanged, this, [this] { ShowHits(); });
  connect(sought_, &QLineEdit::returnPressed, this, [this] { OpenHit(0); });
  connect(hits_, &QListWidget::itemClicked, this, [this] { OpenHit(hits_->currentRow()); });
  connect(hits_, &QListWidget::itemActivated, this, [this] { OpenHit(hits_->currentRow()); });
  return panel;
}

void HelpWindow::ShowHits() {
  hits_->clear();
  found_ = SearchHelp(books_, FromQt(sought_->text()));
  for (const HelpHit& hit : found_) {
    const HelpPage& page = books_[hit.book].pages[hit.page];
    const QString section = hit.section.empty() ? QString() : ", " + ToQt(hit.section);
    hits_->addItem(ToQt(page.title) + section + "\n" + ToQt(hit.excerpt));
  }
  if (found_.empty() && !sought_->text().trimmed().isEmpty()) {
    hits_->addItem(QStringLiteral("Nessuna pagina contiene queste parole."));
    hits_->item(0)->setFlags(Qt::NoItemFlags);
  }
  view_->Mark(sought_->text());
}

void HelpWindow::OpenHit(int row) {
  if (row < 0 || row >= static_cast<int>(found_.size())) return;
  const HelpHit& hit = found_[static_cast<std::size_t>(row)];
  hits_->setCurrentRow(row);
  view_->Open(ToQt(books_[hit.book].pages[hit.page].file), ToQt(hit.section));
  view_->Mark(sought_->text());
}

void HelpWindow::Search(const QString& sought) {
  tabs_->setCurrentIndex(1);
  sought_->setText(sought);
  sought_->setFocus();
  sought_->selectAll();
}

// ---------------------------------------------------------------- commands

void HelpWindow::BuildCommands() {
  auto* bar = addToolBar(QStringLiteral("Comandi"));
  bar->setMovable(false);
  bar->setIconSize(QSize(20, 20));
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  const auto add = [this, bar](const char* name, LineIcon icon, const QString& caption,
                               const QString& hint, const QList<QKeySequence>& keys, auto run) {
    QAction* action = bar->addAction(IconOf(icon), caption);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    action->setToolTip(hint + " (" + keys[0].toString(QKeySequence::NativeText) + ")");
    connect(action, &QAction::triggered, this, run);
    return action;
  };
  const auto hidden = [this](const QList<QKeySequence>& keys, auto run) {
    auto* action = new QAction(this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
  };
  QAction* back =
      add("back", LineIcon::Back, QStringLiteral("Indietro"), QStringLiteral("La pagina di prima"),
          {QKeySequence("Alt+Left")}, [this] { view_->backward(); });
  QAction* forward = add("forward", LineIcon::Forward, QStringLiteral("Avanti"),
                         QStringLiteral("La pagina da cui si è tornati"),
                         {QKeySequence("Alt+Right")}, [this] { view_->forward(); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(view_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(view_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  bar->addSeparator();
  add("find", LineIcon::Find, QStringLiteral("Trova"), QStringLiteral("Cerca nella pagina"),
      {QKeySequence::Find}, [this] { find_->Open(); });
  add("smaller", LineIcon::Smaller, QStringLiteral("Riduci"), QStringLiteral("Riduce i caratteri"),
      {QKeySequence("Ctrl+-")}, [this] { view_->SetZoom(view_->Zoom() - kZoomStep); });
  add("larger", LineIcon::Larger, QStringLiteral("Ingrandisci"),
      QStringLiteral("Ingrandisce i caratteri"), {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")},
      [this] { view_->SetZoom(view_->Zoom() + kZoomStep); });
  bar->addSeparator();
  add("print", LineIcon::Print, QStringLiteral("Stampa"), QStringLiteral("Stampa la pagina"),
      {QKeySequence::Print}, [this] { view_->Print(); });
  hidden({QKeySequence("Ctrl+0")}, [this] { view_->SetZoom(100); });
  hidden({Qt::Key_F3}, [this] { find_->Next(); });
  hidden({QKeySequence("Shift+F3")}, [this] { find_->Previous(); });
  hidden({QKeySequence("Ctrl+Shift+F")}, [this] { Search(sought_->text()); });
  hidden({QKeySequence("Ctrl+W"), QKeySequence("Ctrl+Q")}, [this] { close(); });
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QMainWindow::keyPressEvent(event);
}

void HelpWindow::Open(const QString& place) {
  const HelpBook* manual = nullptr;
  for (const HelpBook& book : books_) {
    if (book.file == kManuale) manual = &book;
    if (ToQt(book.file).compare(place, Qt::CaseInsensitive) == 0)
      return view_->Open(ToQt(book.pages[0].file));
    for (const HelpPage& page : book.pages)
      if (ToQt(page.file) == place) return view_->Open(place);
  }
  view_->Open(ToQt(manual->pages[0].file));
}

void HelpWindow::TakeHabits(const QSettings& settings) {
  restoreGeometry(settings.value("finestra").toByteArray());
  splitter_->restoreState(settings.value("divisione").toByteArray());
  view_->SetZoom(settings.value("zoom", 100).toInt());
}

void HelpWindow::KeepHabits(QSettings& settings) const {
  settings.setValue("finestra", saveGeometry());
  settings.setValue("divisione", splitter_->saveState());
  settings.setValue("zoom", view_->Zoom());
}

}  // namespace orm
