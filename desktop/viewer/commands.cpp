// Menus, tool bar and keys of the viewer.
#include "desktop/viewer/commands.h"

#include <QAction>
#include <QActionGroup>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <utility>

#include "desktop/find_bar.h"
#include "desktop/icons.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/window.h"

namespace orm {
namespace {

using Keys = QList<QKeySequence>;

template <typename Function>
QAction* Command(QMenu* menu, const char* name, const QString& caption, const Keys& keys,
                 Function&& run) {
  QAction* action = menu->addAction(caption);
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcuts(keys);
  QObject::connect(action, &QAction::triggered, action, std::forward<Function>(run));
  return action;
}

// Gives a command its place on the tool bar: drawing, short caption, and a hint with its key.
void OnToolBar(QToolBar* bar, QAction* action, LineIcon icon, const QString& caption,
               const QString& hint) {
  action->setIcon(IconOf(icon));
  action->setIconVisibleInMenu(false);
  action->setIconText(caption);
  const QString key = action->shortcut().toString(QKeySequence::NativeText);
  action->setToolTip(key.isEmpty() ? hint : hint + QStringLiteral(" (") + key + ')');
  bar->addAction(action);
}

void CopyMenu(QMenu* file, ViewerWindow& window, ViewerCommands& commands) {
  QMenu* copies = file->addMenu(QStringLiteral("Salva &copia come"));
  Command(copies, "copyPdf", QStringLiteral("&PDF..."), {},
          [&window] { window.AskCopy(CopyKind::Pdf); });
  Command(copies, "copyExplained", QStringLiteral("PDF con le &spiegazioni..."), {},
          [&window] { window.AskExplainedPdf(); });
  Command(copies, "copyOdt", QStringLiteral("&ODT (documento di testo)..."), {},
          [&window] { window.AskCopy(CopyKind::Odt); });
  Command(copies, "copyUtf8", QStringLiteral("&Testo UTF-8..."), {},
          [&window] { window.AskCopy(CopyKind::Utf8); });
  copies->addSeparator();
  commands.ofNote = {
      Command(copies, "copyJson", QStringLiteral("&JSON (la parcella per altri programmi)..."), {},
              [&window] { window.AskCopy(CopyKind::Json); }),
      Command(copies, "copyCsv", QStringLiteral("&CSV (tabella degli importi)..."), {},
              [&window] { window.AskCopy(CopyKind::Csv); }),
      Command(copies, "copyPlainCsv", QStringLiteral("CS&V con virgole e punto decimale..."), {},
              [&window] { window.AskCopy(CopyKind::PlainCsv); })};
}

void RecentMenu(QMenu* file, ViewerWindow& window) {
  QMenu* recent = file->addMenu(QStringLiteral("Apri recent&i"));
  recent->setObjectName(QStringLiteral("recent"));
  recent->setToolTipsVisible(true);
  QObject::connect(recent, &QMenu::aboutToShow, recent, [recent, &window] {
    recent->clear();
    int number = 0;
    for (const QString& path : window.Recent().Paths()) {
      const QFileInfo place(path);
      const QString folder = QFileInfo(place.path()).fileName();
      QString caption = place.fileName() + QStringLiteral("  -  ") + folder;
      caption.replace('&', QStringLiteral("&&"));
      QAction* action = recent->addAction(QStringLiteral("&%1  ").arg(++number % 10) + caption);
      action->setToolTip(path);
      QObject::connect(action, &QAction::triggered, &window,
                       [&window, path] { window.OpenInstead(path); });
    }
    if (number == 0) recent->addAction(QStringLiteral("Nessuno"))->setEnabled(false);
  });
}

void FileMenu(QToolBar* bar, ViewerWindow& window, ViewerCommands& commands) {
  QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
  Command(file, "open", QStringLiteral("&Apri..."), {QKeySequence::Open},
          [&window] { window.AskOpen(); });
  RecentMenu(file, window);
  file->addSeparator();
  commands.save = Command(file, "save", QStringLiteral("&Salva"), {QKeySequence::Save},
                          [&window] { window.Save(); });
  Command(file, "saveAs", QStringLiteral("Salva con &nome..."),
          {QKeySequence(QStringLiteral("Ctrl+Shift+S"))}, [&window] { window.AskSaveAs(); });
  CopyMenu(file, window, commands);
  QAction* reload = Command(file, "reload", QStringLiteral("&Ricarica"), {Qt::Key_F5},
                            [&window] { window.AskReload(); });
  file->addSeparator();
  QAction* preview =
      Command(file, "preview", QStringLiteral("Ant&eprima di stampa..."),
              {QKeySequence(QStringLiteral("Ctrl+Shift+P"))}, [&window] { window.Preview(); });
  QAction* print = Command(file, "print", QStringLiteral("S&tampa..."), {QKeySequence::Print},
                           [&window] { window.Print(); });
  Command(file, "printExplained", QStringLiteral("Stampa con le spie&gazioni..."), {},
          [&window] { window.Print(true); });
  QAction* pdf = Command(file, "exportPdf", QStringLiteral("Esporta P&DF..."),
                         {QKeySequence(QStringLiteral("Ctrl+E"))},
                         [&window] { window.AskCopy(CopyKind::Pdf); });
  file->addSeparator();
  Command(file, "close", QStringLiteral("C&hiudi"),
          {QKeySequence(QStringLiteral("Ctrl+W")), QKeySequence(QStringLiteral("Ctrl+Q"))},
          [&window] { window.close(); });

  OnToolBar(bar, print, LineIcon::Print, QStringLiteral("Stampa"),
            QStringLiteral("Stampa il documento"));
  OnToolBar(bar, preview, LineIcon::Preview, QStringLiteral("Anteprima"),
            QStringLiteral("Mostra le pagine come saranno stampate"));
  OnToolBar(bar, pdf, LineIcon::Pdf, QStringLiteral("PDF"),
            QStringLiteral("Esporta il documento in PDF"));
  bar->addSeparator();
  OnToolBar(bar, commands.save, LineIcon::Save, QStringLiteral("Salva"),
            QStringLiteral("Salva le modifiche"));
  OnToolBar(bar, reload, LineIcon::Reload, QStringLiteral("Ricarica"),
            QStringLiteral("Rilegge il file dal disco"));
}

void EditMenu(QToolBar* bar, ViewerWindow& window, ViewerCommands& commands) {
  QMenu* edit = window.menuBar()->addMenu(QStringLiteral("&Modifica"));
  ViewerPage& page = window.Page();
  commands.edit = Command(edit, "edit", QStringLiteral("&Modifica il testo"), {Qt::Key_F2}, [] {});
  commands.edit->setCheckable(true);
  QObject::connect(commands.edit, &QAction::toggled, &window,
                   [&window](bool on) { window.SetEditing(on); });
  edit->addSeparator();
  commands.undo = Command(edit, "undo", QStringLiteral("&Annulla"),
                          {QKeySequence(QStringLiteral("Ctrl+Z"))}, [&page] { page.undo(); });
  commands.redo = Command(
      edit, "redo", QStringLiteral("Ri&peti"),
      {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))},
      [&page] { page.redo(); });
  edit->addSeparator();
  commands.cut =
      Command(edit, "cut", QStringLiteral("&Taglia"), {QKeySequence::Cut}, [&page] { page.cut(); });
  Command(edit, "copy", QStringLiteral("&Copia"), {QKeySequence::Copy}, [&page] { page.copy(); });
  Command(edit, "copyExplanation", QStringLiteral("Copia la spie&gazione"),
          {QKeySequence(QStringLiteral("Ctrl+Shift+C"))}, [&window] { window.CopyExplanation(); });
  commands.paste = Command(edit, "paste", QStringLiteral("&Incolla"), {QKeySequence::Paste},
                           [&page] { page.paste(); });
  Command(edit, "selectAll", QStringLiteral("&Seleziona tutto"), {QKeySequence::SelectAll},
          [&page] { page.selectAll(); });
  OnToolBar(bar, commands.edit, LineIcon::Edit, QStringLiteral("Modifica"),
            QStringLiteral("Permette di modificare il testo"));
}

void FindMenu(QToolBar* bar, ViewerWindow& window) {
  QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&Cerca"));
  FindBar& find = window.Find();
  QAction* open = Command(menu, "find", QStringLiteral("&Trova..."), {QKeySequence::Find},
                          [&find] { find.Open(); });
  Command(menu, "findNextCommand", QStringLiteral("&Successivo"), {Qt::Key_F3},
          [&find] { find.Next(); });
  Command(menu, "findPreviousCommand", QStringLiteral("&Precedente"),
          {QKeySequence(QStringLiteral("Shift+F3"))}, [&find] { find.Previous(); });
  menu->addSeparator();
  Command(menu, "nextSection", QStringLiteral("Sezione s&eguente"),
          {QKeySequence(QStringLiteral("Ctrl+PgDown"))}, [&window] { window.GoToSection(false); });
  Command(menu, "previousSection", QStringLiteral("Sezione p&recedente"),
          {QKeySequence(QStringLiteral("Ctrl+PgUp"))}, [&window] { window.GoToSection(true); });
  Command(menu, "nextExplained", QStringLiteral("Cifra spiegata se&guente"),
          {QKeySequence(QStringLiteral("Alt+Down"))}, [&window] { window.GoToExplained(false); });
  Command(menu, "previousExplained", QStringLiteral("Cifra spiegata pre&cedente"),
          {QKeySequence(QStringLiteral("Alt+Up"))}, [&window] { window.GoToExplained(true); });
  OnToolBar(bar, open, LineIcon::Find, QStringLiteral("Trova"), QStringLiteral("Cerca nel testo"));
}

void ThemeMenu(QMenu* view, ViewerWindow& window) {
  QMenu* themes = view->addMenu(QStringLiteral("&Tema"));
  auto* group = new QActionGroup(themes);
  const std::pair<Theme, QString> choices[] = {{Theme::System, QStringLiteral("Del &sistema")},
                                               {Theme::Light, QStringLiteral("&Chiaro")},
                                               {Theme::Dark, QStringLiteral("Sc&uro")}};
  for (const auto& [theme, caption] : choices) {
    QAction* action =
        Command(themes, "theme", caption, {}, [&window, theme = theme] { window.SetTheme(theme); });
    action->setCheckable(true);
    group->addAction(action);
  }
  QObject::connect(themes, &QMenu::aboutToShow, themes, [group, &window] {
    group->actions().at(static_cast<int>(window.CurrentTheme()))->setChecked(true);
  });
}

void ViewMenu(QToolBar* bar, ViewerWindow& window, ViewerCommands& commands) {
  QMenu* view = window.menuBar()->addMenu(QStringLiteral("&Visualizza"));
  ViewerPage& page = window.Page();
  QAction* larger =
      Command(view, "larger", QStringLiteral("&Ingrandisci"),
              {QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))},
              [&page] { page.ZoomBy(1); });
  QAction* smaller =
      Command(view, "smaller", QStringLiteral("&Riduci"), {QKeySequence(QStringLiteral("Ctrl+-"))},
              [&page] { page.ZoomBy(-1); });
  Command(view, "normal", QStringLiteral("&Dimensione normale"),
          {QKeySequence(QStringLiteral("Ctrl+0"))}, [&page] { page.SetZoom(100); });
  commands.fit = Command(view, "fit", QStringLiteral("&Adatta alla larghezza"),
                         {QKeySequence(QStringLiteral("Ctrl+9"))}, [] {});
  commands.fit->setCheckable(true);
  QObject::connect(commands.fit, &QAction::toggled, &page, [&page](bool on) {
    if (page.Fits() != on) page.SetFit(on);
  });
  view->addSeparator();
  commands.sections =
      Command(view, "showSections", QStringLiteral("&Sezioni"), {Qt::Key_F6}, [] {});
  commands.sections->setCheckable(true);
  QObject::connect(commands.sections, &QAction::toggled, &window, [&window](bool on) {
    if (window.SectionsShown() != on) window.ShowSections(on);
  });
  commands.explanations =
      Command(view, "explain", QStringLiteral("S&piegazioni delle cifre"), {Qt::Key_F4}, [] {});
  commands.explanations->setCheckable(true);
  QObject::connect(commands.explanations, &QAction::toggled, &window,
                   [&window](bool on) { window.ShowExplanations(on); });
  view->addSeparator();
  ThemeMenu(view, window);
  bar->addSeparator();
  OnToolBar(bar, smaller, LineIcon::Smaller, QStringLiteral("Riduci"),
            QStringLiteral("Riduce i caratteri"));
  OnToolBar(bar, larger, LineIcon::Larger, QStringLiteral("Ingrandisci"),
            QStringLiteral("Ingrandisce i caratteri"));
}

void HelpMenu(ViewerWindow& window) {
  QMenu* help = window.menuBar()->addMenu(QStringLiteral("&Aiuto"));
  Command(help, "help", QStringLiteral("&Guida del visore"), {QKeySequence::HelpContents},
          [&window] { window.ShowHelp(); });
}

}  // namespace

ViewerCommands BuildCommands(ViewerWindow& window) {
  auto* bar = new QToolBar(QStringLiteral("Comandi"), &window);
  bar->setObjectName(QStringLiteral("commands"));
  bar->setMovable(false);
  bar->setIconSize(QSize(20, 20));
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  window.addToolBar(bar);
  ViewerCommands commands;
  FileMenu(bar, window, commands);
  EditMenu(bar, window, commands);
  FindMenu(bar, window);
  ViewMenu(bar, window, commands);
  HelpMenu(window);
  return commands;
}

}  // namespace orm
