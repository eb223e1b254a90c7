// The desk of the jobs, with real keys: what a person does with them, and what comes from outside.
#include <sys/stat.h>

#include <QAction>
#include <QClipboard>
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
#include "interchange/interchange.h"
#include "runtime/folder_lock.h"
#include "script/script_player.h"
#include "tests/desktop/test_player.h"
#include "tests/stage/desktop_stage.h"
#include "tests/stage/form_lint.h"

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
  static void MustHold(const QWidget& window) {
    for (const std::string& fault : LintWindow(window)) ADD_FAILURE() << fault;
  }
  // Pastes the name that the next question asks, over the one that it proposes, and leaves it where
  // it is refused.
  void Answer(const QString& name) {
    QTimer::singleShot(10, &here, [this, name] {
      const QWidget* front = QApplication::activeModalWidget();
      if (front == nullptr) return Answer(name);
      auto* field = front->findChild<QLineEdit*>("name");
      if (field == nullptr) field = front->findChild<QLineEdit*>("sought");
      if (field == nullptr) return Answer(name);  // a question before it
      MustHold(*front);
      QApplication::clipboard()->setText(name);
      if (!name.isEmpty()) QTest::keyClick(field, Qt::Key_V, kCtrl);
      if (const auto* label = front->findChild<QLabel*>("refusal")) refused = label->text();
      QTest::keyClick(field, Qt::Key_Return);
      if (front->isVisible()) QTest::keyClick(field, Qt::Key_Escape);
    });
  }
  void KeyAndName(int key, Qt::KeyboardModifiers with, const QString& name) {
    Answer(name);
    Key(key, with);
  }
  void NewJob(const QString& name) { KeyAndName(Qt::Key_N, kCtrl, name); }
  // What is done in orm2002's own windows with the keyboard alone, in the folder of a job.
  void Work(const QString& job, const char* script) {
    DesktopStageOptions keys;
    keys.hand = Hand::Keys;
    ScriptPlayer person(ParseScript(script), kReports, Job(job), {});
    const auto fault = person.Play(DesktopStage(keys));
    EXPECT_FALSE(fault) << fault->line << ": " << fault->text;
  }
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
  QString refused;  // why the last name was
};

constexpr const char* kRoad = R"(
menu PERS_UTENTE dialog frmPER_Utente set casellatesto1 "Mario Rossi"
  set Casellatesto2 "Via Indipendenza 7" casellatesto3 88100 casellatesto4 "Catanzaro "
  set casellatesto5 CZ casellatesto6 "0961 1" casellatesto7 "0961 2"
  set casellatesto8 rossi@posta.example casellatesto9 RSSMRA60A01C352X
  set casellatesto10 01234567890 casellatesto11 Catanzaro casellatesto12 1234
  set casellatesto13 01/02/1990 press Command1
menu PARCELLE_PPE_ID dialog frmGEN_Intestazione set txtCommittente "Provincia di Catanzaro"
  set txtIncarico "Strada \"Serre\", tronco 2°\nlotto unico"
  set txtDocumenti "Delibera n. 7 del 2001" press Command1
dialog frmPPE_Dati set ciPP(0) 2 ciPP(1) 5 ciVC(0) 3 ciVC(1) 1 ciFrazionamenti 1 press cmdESCI
dialog frmGEN_Acconti set ciAccontiRicevuti 1.000.000 cdPercentualeRiduzione 20 press OK
menu PARCELLE_PPE_VS dialog frmPER_Criteri press btnOK
compare UTENTE.DAG INT_PPE.DAP INP_PPE.DAP OUT_PPE.DOC with lire.DOC
starts orm2002-visore OUT_PPE.DOC)";
constexpr const char* kBridge = R"(
copy euro_CRITERI.PER as CRITERI.PER
menu PARCELLE_PPE_E_ID dialog frmGEN_Intestazione set txtCommittente "Società Ponti"
  set txtNote "Importi in €" press Command1
dialog frmPPE_Dati set ciPP(0) 2 ciPP(1) 3 ciVC(1) 1 press cmdESCI
dialog frmGEN_Acconti set cdAccontiRicevuti 100,50 optRiduzione1 on cdPercentualeRiduzione 7,5
  set optApplicazione(2) on press OK)";
constexpr const char* kBridgeReport = R"(
menu PARCELLE_PPE_E_VS dialog frmPER_Criteri press btnOK
compare OUT_PPE_E.DOC with euro.DOC starts orm2002-visore OUT_PPE_E.DOC)";
constexpr const char* kSpoiled = R"(
menu PARCELLE_PPE_E_ID dialog frmGEN_Intestazione set txtCommittente "Altri" press Command1
dialog frmGEN_NuovoCaso press cmdNuova dialog frmPPE_Dati set ciPP(0) 9 press cmdESCI
dialog frmGEN_Acconti press OK)";

// Two jobs, a note entered and calculated in each; one is spoiled and brought back, the other found
// by its client, and both go as PDF into one folder.
TEST_F(Desk, AFirstDayOfWork) {
  ASSERT_EQ(window->focusWidget()->objectName(), "firstJob");
  KeyAndName(Qt::Key_Space, {}, "Strada");
  EXPECT_TRUE(Job("Strada").Exists("TUS.CFG"));
  Work("Strada", kRoad);
  NewJob("Ponte");
  EXPECT_EQ(Job("Ponte").Read("UTENTE.DAG"), Job("Strada").Read("UTENTE.DAG"));
  Work("Ponte", kBridge);
  Work("Ponte", kBridgeReport);
  EXPECT_EQ(window->Job(), "Ponte");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Cell(0, 4) == "dati, relazione"; }));  // it watches
  EXPECT_EQ(Cell(0, 1) + Cell(0, 2) + Cell(0, 5) + Cell(0, 6), "€Società Ponti15/03/2002€ 195,69");

  QTest::qWait(1001);  // nobody is back within the second that names a generation
  Work("Ponte", kSpoiled);
  QTimer::singleShot(100, &here, [] {
    QWidget* versions = QApplication::activeModalWidget();
    QTest::qWait(50);
    MustHold(*versions);
    EXPECT_GT(versions->findChild<QTableView*>("differences")->model()->rowCount(), 0);
    versions->resize(1000, 420);
    const QString pictures = qEnvironmentVariable("ORM_PICTURES");
    EXPECT_TRUE(pictures.isEmpty() || versions->grab().save(pictures + "/versioni.png"));
    QTest::keyClick(versions, Qt::Key_Return);
    EXPECT_TRUE(versions->findChild<QLabel*>("said")->text().startsWith("Riportata"));
    QTest::keyClick(versions, Qt::Key_Escape);
  });
  Key(Qt::Key_V, kBoth);
  EXPECT_EQ(Cell(0, 2) + Cell(0, 4), "Società Pontidati, relazione vecchia");
  Work("Ponte", kBridgeReport);

  for (const char* words : {"provincia catanzaro", "ponti societa"}) {
    Key(Qt::Key_F, kCtrl);
    QTest::keyClicks(window->focusWidget(), words);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Names().size() == 1; }));
    Key(Qt::Key_Return);
    Person person(0, Out());
    Key(Qt::Key_E, kBoth);
  }
  EXPECT_EQ(QDir(Out()).entryList(QDir::Files).join(", "),
            "Ponte - PPE Euro.pdf, Strada - PPE.pdf");
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

// What comes from a choice of files or goes to one, and the programs that it starts.
TEST_F(Desk, FilesAndFoldersChosen) {
  QStringList started;
  window->start = [&](const QString& name, const QStringList& with, const QString& in) {
    started += name + ' ' + QFileInfo(with.value(0)).fileName() + ' ' + QFileInfo(in).fileName();
    return true;
  };
  NewJob("Uno");
  WriteNote("Uno");
  window->Look();
  for (const int key : {Qt::Key_L, Qt::Key_O}) Key(key, kCtrl);
  Key(Qt::Key_F1);
  EXPECT_EQ(started.join(", "),
            "orm2002-visore OUT_PPE.DOC Uno, orm2002  Uno, orm2002-guida lavori.md ");
  const auto choose = [&](int key, Qt::KeyboardModifiers with, const QString& path) {
    Person person(0, path);
    Key(key, with);
  };
  choose(Qt::Key_E, kCtrl, Out() + "/uno.pdf");
  EXPECT_TRUE(WorkFolder(FromQt(Out())).Read("uno.pdf").starts_with("%PDF"));
  choose(Qt::Key_S, kCtrl, Out() + "/uno.zip");
  Answer("Dallo ZIP");
  choose(Qt::Key_R, kCtrl, Out() + "/uno.zip");
  EXPECT_EQ(window->Job(), "Dallo ZIP");
  EXPECT_EQ(Table("jobs").model()->index(0, 1).data(), "1");  // its notes
  Answer("Da file");
  choose(Qt::Key_N, kBoth, ToQt(kSample.PathOf("INP_COA.DAP")));
  EXPECT_EQ(Job("Da file").Read("INP_COA.DAP"), kSample.Read("INP_COA.DAP"));
  choose(Qt::Key_O, kBoth, Out());
  EXPECT_EQ(settings.Root(), Out());
  EXPECT_TRUE(window->Job().isEmpty());
}

TEST_F(Desk, FilesDroppedBecomeAJob) {
  Answer("Vecchi dati");
  Drop({QUrl::fromLocalFile(ToQt(kSample.PathOf("INT_PPE.DAP"))),
        QUrl::fromLocalFile(ToQt(kSample.PathOf("INP_PPE.DAP")))});
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->Job() == "Vecchi dati"; }));
  EXPECT_EQ(Cell(0, 4), "dati");
}

// A note for other programs, and back: dropped on an empty desk, on a job without it, on one that
// has another. The job keeps its own data of the professional unless it is told otherwise.
TEST_F(Desk, NotesGoToOtherProgramsAndComeBack) {
  const WorkFolder out(FromQt(Out()));
  const std::string json = ParcellaInJson(kSample, "PPE", true, {2026, 11, 22}),
                    own = kSample.Read("UTENTE.DAG"), data = kSample.Read("INP_PPE.DAP");
  out.Replace("Strada.json", json);
  const QList<QUrl> dropped = {QUrl::fromLocalFile(Out() + "/Strada.json")};
  Answer("");  // the name that it proposes
  Drop(dropped);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->Job() == "Strada" && Cell(0, 4) == "dati"; }));
  EXPECT_EQ(Job("Strada").Read("INP_PPE.DAP") + Job("Strada").Read("UTENTE.DAG"), data + own);

  WriteNote("Strada");  // its report is of 15/03/2002
  window->Look();
  const std::tuple<int, Qt::KeyboardModifiers, const char*, const char*> copies[] = {
      {Qt::Key_J, kCtrl, "/a.json", "\"data\": \"2002-03-15\""},
      {Qt::Key_K, kCtrl, "/a.csv", ";2587000;ITL;"},
      {Qt::Key_K, kBoth, "/b.csv", ",2587000,ITL,"}};
  for (const auto& [key, with, name, text] : copies) {
    Person person(0, Out() + name);
    Key(key, with);
    EXPECT_NE(out.Read(name + 1).find(text), std::string::npos) << name;
  }

  NewJob("Altro");
  Job("Altro").Replace("UTENTE.DAG", "\"Altri\"\r\n" + own.substr(own.find('\n') + 1));
  const std::string others = Job("Altro").Read("UTENTE.DAG");
  const auto take = [&](const QString& button) {
    Person person{button};
    Drop(dropped);
    QTest::qWait(150);
  };
  take("");  // here, and the job's own professional
  EXPECT_EQ(Job("Altro").Read("INP_PPE.DAP") + Job("Altro").Read("UTENTE.DAG"), data + others);
  Job("Altro").Replace("INP_PPE.DAP", "altro");
  take("");  // nothing is replaced unasked
  EXPECT_EQ(Job("Altro").Read("INP_PPE.DAP"), "altro");
  Job("Altro").Replace("UTENTE.DAG", own);
  {
    Person chooser(0, Out() + "/a.json", "Sostituisci");
    Key(Qt::Key_J, kBoth);
  }
  EXPECT_EQ(Job("Altro").Read("INP_PPE.DAP"), data);
  out.Replace("Strada.json", "{}");
  Person person{"Chiudi"};
  Drop(dropped);
  EXPECT_TRUE(QTest::qWaitFor([&] { return person.Said().contains("Strada.json"); }));
}

// What others do in the folders is seen, and the choice stays.
TEST_F(Desk, WatchesTheFolders) {
  NewJob("Uno");
  QDir(settings.Root()).mkdir("Altro");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Names().size() == 2; }));
  EXPECT_EQ(window->Job(), "Uno");
  QDir(settings.Root() + "/Uno").removeRecursively();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->Job() == "Altro"; }));
  // A name in the letters of another system, which no other function would find again.
  ASSERT_EQ(::mkdir((settings.Root().toStdString() + "/Citt\xE0").c_str(), 0777), 0);
  window->Look();
  window->GoTo(QString("Citt") + QChar(QChar::ReplacementCharacter));
  for (int times = 0; times < 2; ++times, window->ShowState())
    EXPECT_TRUE(window->findChild<QLabel*>("jobState")->text().contains("UTF-8"));
  EXPECT_FALSE(Command("open").isEnabled());
  EXPECT_FALSE(Command("trash").isEnabled());
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
  const QString place = MeetingPlaceOfFolder(settings.Root() + "/Uno");
  const Meeting meeting(place, [&met](const QString&) { met = true; });
  constexpr auto others =
      QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
  EXPECT_TRUE(QFile::exists(place) && !(QFile::permissions(place) & others));
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

// As badly as people type, by the keyboard alone.
TEST_F(Desk, TakesNoHarmFromHastyKeys) {
  const QString longest(150, 'M');
  const struct {
    QString typed, why, job;
  } names[] = {{"   ", "", ""},
               {"a/b", "Il nome si scrive senza", ""},
               {QString(300, 'x'), "Il nome è troppo lungo", ""},
               {"  Città è ü \r\n", "", "Città è ü"},
               {"Prima riga\nseconda\n", "", "Prima riga seconda"},
               {"Città è ü", "C'è già un lavoro", "Prima riga seconda"},
               {longest, "", longest}};
  for (const auto& [typed, why, job] : names) {
    NewJob(typed);
    EXPECT_EQ(window->Job(), job) << FromQt(typed);
    EXPECT_TRUE(why.isEmpty() ? refused.isEmpty() : refused.startsWith(why)) << FromQt(refused);
  }
  // The longest name folds, and the columns share what room there is.
  WriteNote(longest);
  window->Look();
  window->resize(860, 480);
  Pass();
  EXPECT_EQ(window->width(), 860);
  for (const char* name : {"jobs", "contents"})
    EXPECT_LE(Table(name).horizontalHeader()->length(), Table(name).viewport()->width()) << name;
  int started = 0;
  window->start = [&](auto&&...) { return ++started > 0; };
  for (int i = 0; i < 3; ++i) Key(Qt::Key_Return);
  EXPECT_EQ(started, 1);
  Key(Qt::Key_F, kCtrl);
  QApplication::clipboard()->setText("CITTA\n");
  Key(Qt::Key_V, kCtrl);
  EXPECT_EQ(Names(), QStringList{"Città è ü"});
  Key(Qt::Key_Escape);
  EXPECT_TRUE(Names().size() == 3 && Table("jobs").hasFocus());
  QDir(settings.Root()).rename("Città è ü", "Altrove");  // by another program
  Person person{QString()};
  KeyAndName(Qt::Key_F2, {}, "Terzo");
  EXPECT_TRUE(person.Said().startsWith("Il lavoro non è stato rinominato."));
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
