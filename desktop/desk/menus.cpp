#include "desktop/desk/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>

#include "desktop/desk/job_work.h"
#include "desktop/desk/note_arrival_work.h"
#include "desktop/desk/note_work.h"
#include "desktop/desk/window.h"
#include "desktop/icons.h"

namespace orm {
namespace {

using Work = void (*)(DeskWindow&);

// One command: where it stands is the order of the tables below.
struct Row {
  const char* name;  // nullptr: a line between commands
  const char* caption = nullptr;
  const char* key = nullptr;
  Work work = nullptr;
  std::vector<QAction*> DeskMenus::*group = nullptr;  // the commands that it comes and goes with
};

constexpr const char* kTrash = "trash";

const Row kJobRows[] = {
    {"new", "&Nuovo lavoro...", "Ctrl+N", NewJob},
    {"open", "&Apri", "Ctrl+O", OpenJob, &DeskMenus::ofJob},
    {nullptr},
    {"duplicate", "&Duplica...", "Ctrl+D", DuplicateJob, &DeskMenus::ofJob},
    {"rename", "&Rinomina...", "F2", RenameJob, &DeskMenus::ofFreeJob},
    {"model", "&Modello dei nuovi lavori", "Ctrl+M", ChooseModel, &DeskMenus::ofJob},
    {nullptr},
    {"zip", "Archivia in &ZIP...", "Ctrl+S", ArchiveJob, &DeskMenus::ofJob},
    {"unzip", "R&iprendi da ZIP...", "Ctrl+R", TakeArchive},
    {"files", "Nuovo lavoro da &file...", "Ctrl+Shift+N", AskFiles},
    {kTrash, "Sposta nel &cestino...", "Del", TrashJob, &DeskMenus::ofFreeJob},
    {nullptr},
    {"root", "Cartella dei &lavori...", "Ctrl+Shift+O", AskRoot},
    {"close", "C&hiudi", "Ctrl+Q", [](DeskWindow& window) { window.close(); }}};

const Row kNoteRows[] = {
    {"show", "&Mostra la relazione", "Ctrl+L", ShowReport, &DeskMenus::ofReport},
    {"pdf", "&PDF...", "Ctrl+E", [](DeskWindow& window) { SaveCopy(window, CopyKind::Pdf); },
     &DeskMenus::ofReport},
    {"allPdf", "PDF di &tutte...", "Ctrl+Shift+E", PdfOfAll},
    {nullptr},
    {"copy", "&Copia la parcella in un altro lavoro...", "Ctrl+Shift+C", CopyNote,
     &DeskMenus::ofNote},
    {"versions", "&Versioni...", "Ctrl+Shift+V", ShowVersions, &DeskMenus::ofNote},
    {nullptr},
    {"json", "&JSON (per altri programmi)...", "Ctrl+J",
     [](DeskWindow& window) { SaveCopy(window, CopyKind::Json); }, &DeskMenus::ofNote},
    {"csv", "C&SV (tabella degli importi)...", "Ctrl+K",
     [](DeskWindow& window) { SaveCopy(window, CopyKind::Csv); }, &DeskMenus::ofNote},
    {"plainCsv", "CSV con vi&rgole e punto decimale...", "Ctrl+Shift+K",
     [](DeskWindow& window) { SaveCopy(window, CopyKind::PlainCsv); }, &DeskMenus::ofNote},
    {"fromJson", "Pre&ndi una parcella da JSON...", "Ctrl+Shift+J", AskNote}};

const Row kFindRows[] = {
    {"find", "&Cerca in tutti i lavori", "Ctrl+F", [](DeskWindow& window) { window.Seek(); }},
    {"look", "&Aggiorna", "F5", [](DeskWindow& window) { window.Look(); }}};

const Row kHelpRows[] = {{"help", "&Guida", "F1", ShowHelp}};

template <std::size_t N>
QMenu* AddMenu(DeskWindow& window, DeskMenus& menus, const char* caption, const Row (&rows)[N]) {
  QMenu* menu = window.menuBar()->addMenu(QString::fromUtf8(caption));
  for (const Row& row : rows) {
    if (row.name == nullptr) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(QString::fromUtf8(row.caption));
    action->setObjectName(QString::fromLatin1(row.name));
    action->setShortcut(QKeySequence(QString::fromLatin1(row.key)));
    QObject::connect(action, &QAction::triggered, &window,
                     [&window, work = row.work] { work(window); });
    if (row.group != nullptr) (menus.*row.group).push_back(action);
  }
  return menu;
}

struct Button {
  const char* name;
  LineIcon icon;
  const char *caption, *hint;
};

const Button kButtons[] = {
    {"new", LineIcon::NewFolder, "Nuovo lavoro", "Fa un lavoro nuovo"},
    {"open", LineIcon::Folder, "Apri", "Fa partire ORM2002 nel lavoro"},
    {"show", LineIcon::Preview, "Mostra", "Mostra la parcella o il testo nel visore"},
    {"pdf", LineIcon::Pdf, "PDF", "Ne scrive il PDF"},
    {"versions", LineIcon::Clock, "Versioni", "Com'era la parcella prima, e come riportarla"},
    {"find", LineIcon::Find, "Cerca", "Cerca in tutti i lavori"}};

void AddToolBar(DeskWindow& window) {
  QToolBar* bar = window.addToolBar(QStringLiteral("Comandi"));
  bar->setObjectName(QStringLiteral("commands"));
  bar->setMovable(false);
  bar->setIconSize(QSize(20, 20));
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  for (const Button& button : kButtons) {
    auto* action = window.findChild<QAction*>(QString::fromLatin1(button.name));
    action->setIcon(IconOf(button.icon));
    action->setIconVisibleInMenu(false);
    action->setIconText(QString::fromUtf8(button.caption));
    action->setToolTip(QString::fromUtf8(button.hint) + " (" +
                       action->shortcut().toString(QKeySequence::NativeText) + ")");
    bar->addAction(action);
  }
}

// The commands of a menu on the table that they are about.
void OnTable(QTableView& table, const QMenu& menu) {
  table.setContextMenuPolicy(Qt::ActionsContextMenu);
  table.addActions(menu.actions());
}

}  // namespace

void DeskMenus::ShowChoice(const DeskChoice& choice) const {
  const auto enable = [](const std::vector<QAction*>& actions, bool on) {
    for (QAction* action : actions) action->setEnabled(on);
  };
  enable(ofJob, choice.job);
  enable(ofFreeJob, choice.job && !choice.inUse);
  enable(ofNote, choice.note);
  enable(ofReport, choice.report);
  allPdf->setEnabled(choice.reports);
  model->setChecked(choice.model);
}

DeskMenus BuildMenus(DeskWindow& window, QTableView& jobs, QTableView& contents) {
  DeskMenus menus;
  const QMenu* ofJobs = AddMenu(window, menus, "&Lavori", kJobRows);
  const QMenu* ofNotes = AddMenu(window, menus, "&Parcelle", kNoteRows);
  AddMenu(window, menus, "&Cerca", kFindRows);
  AddMenu(window, menus, "&Aiuto", kHelpRows);
  menus.allPdf = window.findChild<QAction*>(QStringLiteral("allPdf"));
  menus.model = window.findChild<QAction*>(QStringLiteral("model"));
  menus.model->setCheckable(true);
  AddToolBar(window);
  OnTable(jobs, *ofJobs);
  OnTable(contents, *ofNotes);
  // The key that deletes a letter deletes a job on the list of jobs alone.
  window.findChild<QAction*>(QString::fromLatin1(kTrash))->setShortcutContext(Qt::WidgetShortcut);
  return menus;
}

}  // namespace orm
