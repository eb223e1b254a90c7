// The desk of the jobs, with real keys: what a person does with them, and what comes from outside.
#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QTableView>
#include <QTemporaryDir>

#include "desktop/desk/window.h"
#include "desktop/meeting.h"
#include "desktop/qt_text.h"
#include "runtime/folder_lock.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

const Qt::KeyboardModifiers kCtrl = Qt::ControlModifier, kBoth = kCtrl | Qt::ShiftModifier;
const WorkFolder kSample(QT_TESTCASE_SOURCEDIR "/../../data/sample"),
    kReports(QT_TESTCASE_SOURCEDIR "/../scripts/ppe");

class Desk : public testing::Test {
 protected:
  Desk() : settings(home.filePath("desk.ini")) {
    QDir(home.path()).mkdir("uscita");
    settings.SetRoot(home.filePath("lavori"));
    settings.SetFolder(Out());
    Open();
  }
  void Open() {
    window = std::make_unique<DeskWindow>(settings);
    window->resize(1280, 680);
    window->show();
    window->activateWindow();
    Pass();
  }
  static void Pass() { QTest::qWait(5); }
  QString Out() const { return home.filePath("uscita"); }
  WorkFolder Job(const QString& name) const {
    return WorkFolder(FromQt(settings.Root() + '/' + name));
  }
  void Key(int key, Qt::KeyboardModifiers with = {}) {
    window->activateWindow();  // without a desktop nobody gives the place back after a question
    QCoreApplication::processEvents();
    QTest::keyClick(window->focusWidget() != nullptr ? window->focusWidget() : window.get(),
                    static_cast<Qt::Key>(key), with);
    Pass();
  }
  // Types the name that the next question asks, over the one that it proposes.
  void Answer(const QString& name) {
    QTimer::singleShot(10, &here, [this, name] {
      const QWidget* front = QApplication::activeModalWidget();
      if (front == nullptr) return Answer(name);
      auto* field = front->findChild<QLineEdit*>("name");
      if (field == nullptr) field = front->findChild<QLineEdit*>("sought");
      QTest::keyClicks(field, name);
      QTest::keyClick(field, Qt::Key_Return);
    });
  }
  void KeyAndName(int key, Qt::KeyboardModifiers with, const QString& name) {
    Answer(name);
    Key(key, with);
  }
  void NewJob(const QString& name) { KeyAndName(Qt::Key_N, kCtrl, name); }
  // A note as the forms write it, with its report.
  void WriteNote(const QString& job, const std::string& ending = "") {
    const std::string of = "PPE" + ending + ".DAP";
    for (const std::string& name : {"INT_" + of, "INP_" + of})
      Job(job).Replace(name, kSample.Read(name));
    Job(job).Replace("OUT_PPE" + ending + ".DOC",
                     kReports.Read(ending.empty() ? "lire.DOC" : "euro.DOC"));
  }
  QTableView& Table(const char* name) { return *window->findChild<QTableView*>(name); }
  QStringList Names() {
    QStringList names;
    const QAbstractItemModel& model = *Table("jobs").model();
    for (int row = 0; row < model.rowCount(); ++row) names += model.index(row, 0).data().toString();
    return names;
  }
  QString Cell(int row, int column) {
    return Table("contents").model()->index(row, column).data().toString();
  }
  QAction& Command(const char* name) { return *window->findChild<QAction*>(name); }
  void Drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &enter);
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &drop);
    Pass();
  }

  QTemporaryDir home;
  DeskSettings settings;
  std::unique_ptr<DeskWindow> window;
  QObject here;
};

// Two jobs, a note in each; one is spoiled and brought back, the other found by its client, and
// both go as PDF into one folder.
TEST_F(Desk, AFirstDayOfWork) {
  ASSERT_EQ(window->focusWidget()->objectName(), "firstJob");
  KeyAndName(Qt::Key_Space, {}, "Scuola Rossi");
  EXPECT_TRUE(Job("Scuola Rossi").Exists("TUS.CFG"));
  Job("Scuola Rossi").Replace("UTENTE.DAG", kSample.Read("UTENTE.DAG"));
  NewJob("Ponte");
  EXPECT_EQ(Job("Ponte").Read("UTENTE.DAG"), kSample.Read("UTENTE.DAG"));
  WriteNote("Scuola Rossi");
  WriteNote("Ponte", "_E");
  EXPECT_EQ(window->Job(), "Ponte");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Cell(0, 1) == "€"; }));  // the watch has seen it
  EXPECT_EQ(Cell(0, 2), "Società Ponti S.p.A.");
  EXPECT_EQ(Cell(0, 5), "15/03/2002");
  EXPECT_EQ(Cell(0, 6), "€ 195,69");

  const std::string header = Job("Ponte").Read("INT_PPE_E.DAP"),
                    data = Job("Ponte").Read("INP_PPE_E.DAP");
  Job("Ponte").Replace("INT_PPE_E.DAP", kSample.Read("INT_PPE.DAP"));  // "NUOVA PARCELLA"
  Job("Ponte").Replace("INP_PPE_E.DAP", kSample.Read("INP_PPE.DAP"));
  QTimer::singleShot(100, &here, [] {
    QWidget* versions = QApplication::activeModalWidget();
    QTest::qWait(50);
    EXPECT_GT(versions->findChild<QTableView*>("differences")->model()->rowCount(), 0);
    versions->resize(1000, 420);
    const QString pictures = qEnvironmentVariable("ORM_PICTURES");
    EXPECT_TRUE(pictures.isEmpty() || versions->grab().save(pictures + "/versioni.png"));
    QTest::keyClick(versions, Qt::Key_Return);
    EXPECT_TRUE(versions->findChild<QLabel*>("said")->text().startsWith("Riportata"));
    QTest::keyClick(versions, Qt::Key_Escape);
  });
  Key(Qt::Key_V, kBoth);
  EXPECT_EQ(Job("Ponte").Read("INT_PPE_E.DAP"), header);
  EXPECT_EQ(Job("Ponte").Read("INP_PPE_E.DAP"), data);

  for (const char* words : {"provincia catanzaro", "s.p.a. ponti"}) {
    Key(Qt::Key_F, kCtrl);
    QTest::keyClicks(window->focusWidget(), words);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Names().size() == 1; }));
    Key(Qt::Key_Return);
    Person person(0, Out());
    Key(Qt::Key_E, kBoth);
  }
  EXPECT_EQ(QDir(Out()).entryList(QDir::Files).join(", "),
            "Ponte - PPE Euro.pdf, Scuola Rossi - PPE.pdf");
}

TEST_F(Desk, CommandsOnJobs) {
  NewJob("Uno");
  WriteNote("Uno");
  KeyAndName(Qt::Key_D, kCtrl, "Due");
  EXPECT_EQ(window->Job(), "Due");
  EXPECT_EQ(Job("Due").Read("INP_PPE.DAP"), Job("Uno").Read("INP_PPE.DAP"));
  KeyAndName(Qt::Key_F2, {}, "Tre");
  EXPECT_EQ(window->Job(), "Tre");
  {
    Person person(0, Out() + "/a.zip");
    Key(Qt::Key_S, kCtrl);
  }
  Answer("Quattro");
  Drop({QUrl::fromLocalFile(Out() + "/a.zip")});
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->Job() == "Quattro"; }));
  EXPECT_EQ(Job("Quattro").Read("INP_PPE.DAP"), Job("Uno").Read("INP_PPE.DAP"));

  Key(Qt::Key_M, kCtrl);
  EXPECT_EQ(settings.Model(), "Quattro");
  EXPECT_TRUE(Command("model").isChecked());
  NewJob("Vuoto");
  EXPECT_TRUE(Cell(0, 0).isEmpty());
  window->GoTo("Uno");
  KeyAndName(Qt::Key_C, kBoth, "vuo");
  EXPECT_EQ(Job("Vuoto").Read("INP_PPE.DAP"), Job("Uno").Read("INP_PPE.DAP"));

  Table("jobs").setFocus();
  for (const char* button : {"", "Sposta nel cestino"}) {  // the safe one first, by Enter
    EXPECT_TRUE(Names().contains("Uno"));
    qputenv("XDG_DATA_HOME", FromQt(home.filePath("dati")).c_str());
    Person person{QString(button)};
    Key(Qt::Key_Delete);
    EXPECT_TRUE(person.Said().startsWith("Spostare nel cestino il lavoro \"Uno\"?"));
  }
  EXPECT_FALSE(Names().contains("Uno"));
  EXPECT_TRUE(QFileInfo::exists(home.filePath("dati/Trash/files/Uno/INP_PPE.DAP")));
}

TEST_F(Desk, FilesDroppedBecomeAJob) {
  Answer("Vecchi dati");
  Drop({QUrl::fromLocalFile(ToQt(kSample.PathOf("INT_PPE.DAP"))),
        QUrl::fromLocalFile(ToQt(kSample.PathOf("INP_PPE.DAP")))});
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->Job() == "Vecchi dati"; }));
  EXPECT_EQ(Cell(0, 4), "dati");
}

// What others do in the folders is seen, and the choice stays.
TEST_F(Desk, WatchesTheFolders) {
  NewJob("Uno");
  QDir(settings.Root()).mkdir("Altro");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Names().size() == 2; }));
  EXPECT_EQ(window->Job(), "Uno");
  QDir(settings.Root() + "/Uno").removeRecursively();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->Job() == "Altro"; }));
}

TEST_F(Desk, AJobInUseSaysSoAndItsWindowIsCalled) {
  NewJob("Uno");
  const FolderLock lock(Job("Uno"));
  window->Look();
  EXPECT_TRUE(window->findChild<QLabel*>("jobState")->text().startsWith("In uso"));
  EXPECT_FALSE(Command("rename").isEnabled());
  {
    Person person{QString()};
    Key(Qt::Key_O, kCtrl);
    EXPECT_TRUE(person.Said().startsWith("Il lavoro \"Uno\" è in uso."));
  }
  bool met = false;
  const Meeting meeting(MeetingPlaceOfFolder(settings.Root() + "/Uno"),
                        [&met](const QString&) { met = true; });
  Key(Qt::Key_O, kCtrl);
  EXPECT_TRUE(QTest::qWaitFor([&] { return met; }));
}

// The laws of forms, as far as they hold for a window of tables: every command has a key of its
// own, every field a name, and no caption is cut off.
TEST_F(Desk, CommandsHaveKeysAndNothingIsCutOff) {
  NewJob("Uno");
  WriteNote("Uno");
  window->Look();
  QSet<QString> keys;
  for (const QAction* top : window->menuBar()->actions()) {
    QSet<QString> letters;
    for (const QAction* action : top->menu()->actions()) {
      if (action->isSeparator()) continue;
      const QString key = action->shortcut().toString();
      const QString letter = QKeySequence::mnemonic(action->text()).toString();
      EXPECT_FALSE(key.isEmpty() || keys.contains(key)) << FromQt(action->text() + key);
      EXPECT_FALSE(letter.isEmpty() || letters.contains(letter)) << FromQt(action->text());
      keys += key;
      letters += letter;
    }
  }
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool button = widget->inherits("QToolButton") && widget->parent()->inherits("QToolBar");
    const bool table = widget->inherits("QTableView");
    EXPECT_TRUE(!button || widget->width() >= widget->sizeHint().width());
    EXPECT_TRUE(label == nullptr || label->height() >= label->heightForWidth(label->width()));
    EXPECT_TRUE(!table || !widget->accessibleName().isEmpty());
  }
  for (const char* name : {"jobs", "contents"}) {
    const QHeaderView& header = *Table(name).horizontalHeader();
    for (int i = 0; i < header.count(); ++i)
      EXPECT_GE(header.sectionSize(i), header.sectionSizeHint(i)) << name << i;
    EXPECT_LE(header.length(), Table(name).viewport()->width()) << name;
  }
}

// What the manual shows of it is kept where tools/pictures says.
TEST_F(Desk, AsInTheManual) {
  const QString folder = qEnvironmentVariable("ORM_PICTURES");
  for (const char* name : {"Ponte sul Corace", "Strada Serre", "Scuola media di Rende"})
    NewJob(name);
  for (const std::string& name : kSample.Names())
    if (name.find("PPE") != std::string::npos || name.find("COA") != std::string::npos)
      Job(window->Job()).Replace(name, kSample.Read(name));
  WriteNote(window->Job());
  window->Look();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Table("contents").model()->rowCount() >= 3; }));
  EXPECT_TRUE(folder.isEmpty() || window->grab().save(folder + "/lavori.png"));
}

}  // namespace
}  // namespace orm
