// The report viewer: what it reads comes back byte for byte, a failed save loses nothing, and paper
// has the columns of the report.
#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextEdit>
#include <random>

#include "desktop/export/export.h"
#include "desktop/export/pages.h"
#include "desktop/export/subject.h"
#include "desktop/export/zip.h"
#include "desktop/find_bar.h"
#include "desktop/italian_captions.h"
#include "desktop/viewer/file.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/window.h"
#include "interchange/interchange.h"
#include "runtime/failure.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

class ViewerTest : public testing::Test {
 protected:
  std::string PathOf(const std::string& name) const {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
  }
  void Write(const std::string& name, const std::string& bytes) const {
    WorkFolder(folder_.path().toStdString()).Replace(name, bytes);
  }
  std::string Read(const std::string& name) const {
    return WorkFolder(folder_.path().toStdString()).Read(name);
  }
  // The example's data and the report that they give.
  void WriteSample() const {
    const WorkFolder sources(ORM_SOURCE_DIR);
    for (const char* name : {"UTENTE.DAG", "INT_PPE.DAP", "INP_PPE.DAP"})
      Write(name, sources.Read(std::string("data/sample/") + name));
    Write("OUT_PPE.DOC", sources.Read("tests/scripts/ppe/lire.DOC"));
  }
  QTemporaryDir folder_;
};

// Fee lines of a report: labels from column 1, symbol at 56, amounts up to 72.
const std::string kReport =
    "              PARCELLA DELLE COMPETENZE PROFESSIONALI\r\n"
    "========================== ONORARI E COMPENSI ==========================\r\n"
    "Onorario in funzione delle Partite \r\n"
    " n\xB0  2 x 106.0000                                      L.        212.000\r\n"
    "TOTALE (Onorari e Compensi)                            L.      2.587.000\r\n"
    "Totale onere finanziario Committente                   \x80      1.471,81\r\n";

TEST(ViewerFile, TellsTheEncoding) {
  const auto encoding = [](const std::string& bytes) { return DecodeText(bytes).format.encoding; };
  EXPECT_EQ(encoding("solo ASCII\r\n"), TextEncoding::Windows1252);
  EXPECT_EQ(encoding("citt\xE0 \x80 n.\xB0"), TextEncoding::Windows1252);
  EXPECT_EQ(encoding("citt\xC3\xA0 \xE2\x82\xAC"), TextEncoding::Utf8);
  EXPECT_EQ(encoding("\xEF\xBB\xBFsolo ASCII"), TextEncoding::Utf8);
  // «CAFFÈ» ends in two bytes that could be one character of another alphabet.
  EXPECT_EQ(encoding("\xAB"
                     "CAFF\xC8\xBB"),
            TextEncoding::Windows1252);
  EXPECT_EQ(encoding("CAFF\xC8\xBB"), TextEncoding::Windows1252);
  EXPECT_EQ(DecodeText("\x80").text, "€");
}

TEST(ViewerFile, RefusesWhatIsNoText) {
  EXPECT_THROW(DecodeText(std::string("a\0b", 3)), RuntimeFailure);
  EXPECT_THROW(DecodeText("\x89PNG\r\n\x1A\n"), RuntimeFailure);
  EXPECT_THROW(DecodeText("\x81\x8D"), RuntimeFailure);  // no characters of Windows-1252
}

TEST(ViewerFile, NamesTheCharacterThatTheEncodingLacks) {
  const auto lacking = FirstLackingCharacter("uno\ndue\u2028tre → quattro", {});
  ASSERT_TRUE(lacking);
  EXPECT_EQ(lacking->character, "→");
  EXPECT_EQ(lacking->line, 3);
  EXPECT_FALSE(FirstLackingCharacter("città € n.° “”", {}));
}

// Any text of Windows-1252, with line ends of all kinds mixed, comes back through the page.
TEST_F(ViewerTest, EveryTextComesBackByteForByte) {
  std::mt19937 random(1949);
  const std::string ends[] = {"\r\n", "\n", "\r"};
  ViewerPage page;
  for (int round = 0; round < 300; ++round) {
    const std::string usual = ends[random() % 3];
    std::string bytes;
    for (int i = 0; i < 60; ++i) {
      unsigned byte = 0x20 + random() % 0xE0;
      if (byte == 0x7F || byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 ||
          byte == 0x9D)
        byte = '\t';
      bytes += static_cast<char>(byte);
      if (random() % 6 == 0) bytes += usual;
      if (random() % 40 == 0) bytes += ends[random() % 3];
    }
    if (round % 3 == 0) bytes += "\xC3\xA8\xE2\x86\x92";  // makes some of them broken UTF-8
    DecodedText decoded;
    try {
      decoded = DecodeText(bytes);
    } catch (const RuntimeFailure&) {
      continue;
    }
    page.SetText(decoded.text);
    ASSERT_EQ(EncodeText(page.Text(), decoded.format), bytes) << round;
  }
}

TEST_F(ViewerTest, EditsKeepEncodingAndLineEnds) {
  Write("A.DOC", "citt\xE0\r\ntab. E\nfine \x80\xA0.\r\n");
  Write("B.txt",
        "\xEF\xBB\xBF"
        "citt\xC3\xA0\nfine\n");
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  EXPECT_FALSE(window.Editing());  // a report opens closed
  window.SetEditing(true);
  window.Page().moveCursor(QTextCursor::End);
  QTest::keyClicks(&window.Page(), "Nota");
  QTest::keyClick(&window.Page(), Qt::Key_Return, Qt::ShiftModifier);
  ASSERT_TRUE(window.Save());
  EXPECT_EQ(Read("A.DOC"), "citt\xE0\r\ntab. E\nfine \x80\xA0.\r\nNota\r\n");
  EXPECT_FALSE(window.isWindowModified());

  window.Open(PathOf("B.txt"));
  EXPECT_TRUE(window.Editing());
  QTest::keyClicks(&window.Page(), "La ");
  ASSERT_TRUE(window.Save());
  EXPECT_EQ(Read("B.txt"),
            "\xEF\xBB\xBF"
            "La citt\xC3\xA0\nfine\n");
}

TEST_F(ViewerTest, FailedSaveKeepsEditsAndFile) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  QFile::rename(folder_.filePath("A.DOC"), folder_.filePath("B.DOC"));
  QFile::link("/orm2002/assente", folder_.filePath("A.DOC"));
  window.SetEditing(true);
  QTest::keyClicks(&window.Page(), "Nota");
  Person person("Chiudi");
  EXPECT_FALSE(window.Save());
  EXPECT_TRUE(person.Said().contains("Il file non è stato salvato."))
      << person.Said().toStdString();
  EXPECT_TRUE(person.Said().contains("A.DOC"));
  EXPECT_EQ(Read("B.DOC"), kReport);
  EXPECT_TRUE(window.isWindowModified());
  EXPECT_EQ(window.Page().Text().substr(0, 4), "Nota");
}

// What this program would not open again is refused at the save, or taken out before.
TEST_F(ViewerTest, WhatIsSavedOpensAgain) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  window.SetEditing(true);
  QApplication::clipboard()->setText(QString("pagina\fdue") + QChar(0) + QChar(7));
  window.Page().paste();
  EXPECT_TRUE(window.Page().Text().starts_with("paginadue "));
  for (const QString& endless : {QString(7'000'000, 'x'), QString(3'000'000, '\r')}) {
    QApplication::clipboard()->setText("breve\n" + endless);
    window.Page().paste();  // told, and not taken
    EXPECT_EQ(window.Page().Text().find("breve"), std::string::npos);
  }
  ASSERT_TRUE(window.Save());
  EXPECT_NO_THROW(window.Open(PathOf("A.DOC")));
  window.SetEditing(true);
  const std::string bytes = Read("A.DOC");
  const std::pair<QString, const char*> refused[] = {
      {QString("\f"), "Riga : 1"},
      {QString(10'001, 'x'), "troppo lunga"},
      {(QString(999, 'x') + "\n").repeated(9'000), "troppo grande"},
  };
  for (const auto& [text, reason] : refused) {
    window.Page().insertPlainText(text);
    Person person("Chiudi");
    EXPECT_FALSE(window.Save());
    EXPECT_TRUE(person.Said().contains(reason)) << person.Said().toStdString();
    window.Page().undo();
    EXPECT_EQ(Read("A.DOC"), bytes);
  }
  EXPECT_THROW(CheckOpensAgain("citt\xC3\xA0 \xE2\x82\xAC", {}), RuntimeFailure);
  Person person("Chiudi");
  EXPECT_FALSE(window.SaveCopy(CopyKind::Pdf, PathOf("A.DOC")));
  EXPECT_EQ(Read("A.DOC"), bytes);
  window.Page().document()->setModified(false);
}

TEST_F(ViewerTest, RefusesToSaveACharacterThatTheFileCannotHold) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  window.SetEditing(true);
  window.Page().insertPlainText("→");
  Person person("Annulla");
  EXPECT_FALSE(window.Save());
  EXPECT_TRUE(person.Said().contains("«→» della riga 1")) << person.Said().toStdString();
  EXPECT_EQ(Read("A.DOC"), kReport);
  EXPECT_TRUE(window.isWindowModified());
  EXPECT_TRUE(window.SaveCopy(CopyKind::Utf8, PathOf("copia.txt")));
  EXPECT_EQ(Read("copia.txt").substr(0, 3), "→");
  window.Page().document()->setModified(false);
}

TEST_F(ViewerTest, ClosingWithEditsAsks) {
  Write("A.txt", "uno\r\n");
  ViewerWindow window;
  window.Open(PathOf("A.txt"));
  window.show();
  QTest::keyClicks(&window.Page(), "x");
  {
    Person person("Annulla");
    EXPECT_FALSE(window.close());
  }
  {
    Person person("Non salvare");
    EXPECT_TRUE(window.close());
  }
  EXPECT_EQ(Read("A.txt"), "uno\r\n");
  window.show();
  Person person("Salva");
  EXPECT_TRUE(window.close());
  EXPECT_EQ(Read("A.txt"), "xuno\r\n");
}

TEST_F(ViewerTest, ShowsANewCalculationAtOnce) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  for (const std::string line : {"Primo calcolo\r\n", "Secondo calcolo\r\n"}) {
    Write("A.DOC", line + kReport);  // replaced, as every report is
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return window.Page().Text().starts_with(line.substr(0, 5)); }, 3000))
        << line;
  }
  // An editor that writes in place gives the folder no sign: the new file itself is watched too.
  QFile inPlace(folder_.filePath("A.DOC"));
  ASSERT_TRUE(inPlace.open(QIODevice::ReadWrite));
  inPlace.write("Terzo!");
  inPlace.close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.Page().Text().starts_with("Terzo!"); }, 3000));
  EXPECT_FALSE(window.isWindowModified());
}

TEST_F(ViewerTest, ANewCalculationDoesNotTakeTheEdits) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  window.show();
  window.SetEditing(true);
  QTest::keyClicks(&window.Page(), "Nota");
  Write("A.DOC", "Nuovo calcolo\r\n");
  auto* notice = window.findChild<QWidget*>("noticeBar");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notice->isVisible(); }, 3000));
  EXPECT_TRUE(window.Page().Text().starts_with("Nota"));
  {
    Person person("Annulla");  // saving now would overwrite the calculation unasked
    EXPECT_FALSE(window.Save());
  }
  EXPECT_EQ(Read("A.DOC"), "Nuovo calcolo\r\n");
  notice->findChildren<QPushButton*>().first()->click();
  EXPECT_EQ(window.Page().Text(), "Nuovo calcolo\n");
  EXPECT_FALSE(window.isWindowModified());
}

TEST_F(ViewerTest, RefusedFilesLeaveTheWindowAsItWas) {
  Write("A.DOC", kReport);
  Write("binario.DOC", std::string("\0\1\2", 3));
  Write("vuoto.DOC", "");
  QFile huge(folder_.filePath("grande.DOC"));
  ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(9 << 20));
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  for (const char* name : {"assente.DOC", "binario.DOC", "grande.DOC", "."})
    EXPECT_THROW(window.Open(PathOf(name)), RuntimeFailure) << name;
  EXPECT_EQ(EncodeText(window.Page().Text(), window.Format()), kReport);
  window.Open(PathOf("vuoto.DOC"));
  EXPECT_EQ(window.Page().Text(), "");
}

TEST_F(ViewerTest, FindsForwardBackwardAndByCase) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  window.show();
  window.Find().Open();
  auto* field = window.findChild<QLineEdit*>("findField");
  auto* count = window.findChild<QLabel*>("findCount");
  QTest::keyClicks(field, "totale");
  EXPECT_EQ(count->text(), "1 di 2");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(count->text(), "2 di 2");
  EXPECT_EQ(window.Page().textCursor().blockNumber(), 5);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(count->text(), "1 di 2, ripreso dall'inizio");
  QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(window.Page().textCursor().blockNumber(), 5);
  window.findChild<QAbstractButton*>("findCase")->click();
  EXPECT_EQ(count->text(), "Nessun risultato");
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(window.Find().isVisible());
}

TEST_F(ViewerTest, MessagesNameFolderAndFile) {
  try {
    FilePlace::Of(PathOf("nessuna/copia.txt")).Replace("x");
    ADD_FAILURE();
  } catch (const RuntimeFailure& failure) {
    EXPECT_NE(failure.Text().find("/nessuna\" non esiste."), std::string::npos) << failure.Text();
  }
  Write("binario.DOC", std::string("\0", 1));
  ViewerWindow window;
  try {
    window.Open(PathOf("binario.DOC"));
    ADD_FAILURE();
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.File(), "binario.DOC");
  }
}

TEST_F(ViewerTest, SavesThroughALink) {
  Write("vero.txt", "uno\n");
  QFile::link(QString::fromStdString(PathOf("vero.txt")),
              QString::fromStdString(PathOf("link.txt")));
  ViewerWindow window;
  window.Open(PathOf("link.txt"));
  QTest::keyClicks(&window.Page(), "x");
  ASSERT_TRUE(window.Save());
  EXPECT_EQ(Read("vero.txt"), "xuno\n");
  EXPECT_TRUE(QFileInfo(QString::fromStdString(PathOf("link.txt"))).isSymLink());
}

TEST(ViewerPages, BreaksAtSectionsAndKeepsEveryLine) {
  QStringList lines;
  for (int i = 0; i < 200; ++i)
    lines += i % 37 == 18 ? QString("===================== TITOLO ====").leftJustified(72, '=')
                          : QString("riga %1").arg(i);
  for (int perPage = 1; perPage < 80; ++perPage) {
    QStringList all;
    const auto pages = BreakIntoPages(lines, perPage);
    for (const PageRange& range : pages) {
      const QStringList page = lines.mid(range.first, range.end - range.first);
      EXPECT_LE(page.size(), perPage);
      const bool mayEndInTitle = perPage <= 2 || &range == &pages.back();
      EXPECT_TRUE(mayEndInTitle || !page.last().startsWith("=====")) << perPage;
      all += page;
    }
    EXPECT_EQ(all, lines);
  }
}

// A fee note is printed in one size whatever its texts; an overlong line is folded between words,
// its fee in its column. The tables of a check keep their rows.
TEST(ViewerPages, FoldsOverlongLinesByWords) {
  const QString fee = "L.     28.808.156";
  const QString text = QString("Strada di circonvallazione ").repeated(9).trimmed();
  EXPECT_EQ(PaperColumns({text, QString(72, '=')}), 72);
  EXPECT_EQ(PaperColumns({text, QString(80, 'x')}), 80);
  EXPECT_EQ(FoldedByWords(text, 72).join(' '), text);
  for (const QString& row : FoldedByWords(text, 72)) EXPECT_LE(row.size(), 72);
  const std::pair<QString, QStringList> cases[] = {
      {QString(72, 'x'), {QString(72, 'x')}},
      {QString(100, 'x'), {QString(72, 'x'), QString(28, 'x')}},
      {"  0,25 x " + QString(60, '1') + " x 1,4027 = " + fee,
       {"  0,25 x " + QString(60, '1') + " x", QString("  1,4027 =").leftJustified(55) + fee}},
      {QString(60, '1') + " " + fee, {QString(60, '1'), QString(55, ' ') + fee}},
  };
  for (const auto& [line, rows] : cases) EXPECT_EQ(FoldedByWords(line, 72), rows);
}

// Name and title of a copy: "SUBJECT - CASE", fit for a file on any system.
TEST(ViewerExport, CopiesAreNamedByTheirSubject) {
  const auto note = [](const QString& subject) {
    return "              PARCELLA\ndovute da : Ente\ndi bonifica\nall' Ingegnere A B\n"
           "per le prestazioni di rilievo relative a :\n" +
           subject + "\nDelibera\n==== DATI ====\n";
  };
  const std::pair<QString, QString> cases[] = {
      {"Strada \"Serre\", tronco 2°", "Strada Serre, tronco 2° - PPE_E"},
      {" ../a/b: c* ", "a-b- c - PPE_E"},
      {"", "OUT_PPE_E"},
      {"?.", "OUT_PPE_E"},
      {QString("parola ").repeated(30), QString("parola ").repeated(8).trimmed() + " - PPE_E"},
  };
  for (const auto& [subject, name] : cases)
    EXPECT_EQ(NameBySubject(note(subject), "OUT_PPE_E.DOC").toStdString(), name.toStdString());
  EXPECT_EQ(DocumentTitle(note("Ponte: 2"), "OUT_PPE.DOC"), "Ponte: 2");
  EXPECT_EQ(DocumentTitle("lettera\n", "OUT_LET.DOC"), "OUT_LET.DOC");
}

// By keys alone: another file, the sections, the width of the window, the help.
TEST_F(ViewerTest, OpensGoesAndFitsByKeys) {
  std::string report = kReport;
  for (int i = 0; i < 300; ++i) report += "\r\n";
  Write("A.DOC", report + "== CARICHI ==\r\n1 - CLASSE I/c\r\n");
  Write("B.txt", "uno\r\n");
  QSettings settings(folder_.filePath("visore.ini"), QSettings::IniFormat);
  ViewerWindow window;
  window.Recent().KeepIn(settings);
  window.Open(PathOf("A.DOC"));
  window.show();
  const auto key = [&window](Qt::Key pressed, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, pressed,
                    with);
  };
  const auto line = [&window] { return window.Page().textCursor().blockNumber(); };
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(line(), 1);
  key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(line(), 306);
  key(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(line(), 1);
  key(Qt::Key_F6);
  auto* sections = window.findChild<QListWidget*>("sections");
  ASSERT_TRUE(sections->isVisible() && sections->hasFocus());
  EXPECT_EQ(sections->count(), 3);
  EXPECT_EQ(sections->currentItem()->text(), "ONORARI E COMPENSI");
  key(Qt::Key_End);
  EXPECT_EQ(line(), 307);
  key(Qt::Key_Return);
  EXPECT_TRUE(window.Page().hasFocus());

  key(Qt::Key_9, Qt::ControlModifier);
  const int before = window.Page().Zoom();
  EXPECT_TRUE(window.Page().Fits());
  window.resize(window.width() + 300, window.height());
  QCoreApplication::processEvents();
  EXPECT_GT(window.Page().Zoom(), before);
  EXPECT_EQ(window.Page().horizontalScrollBar()->maximum(), 0);
  key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_FALSE(window.Page().Fits());

  {
    Person person(0, QString::fromStdString(PathOf("B.txt")));
    key(Qt::Key_O, Qt::ControlModifier);
  }
  EXPECT_EQ(window.Page().Text(), "uno\n");
  QTest::keyClicks(&window.Page(), "x");
  {
    Person person("Annulla");  // what is written is not left unasked
    window.OpenInstead(QString::fromStdString(PathOf("A.DOC")));
    EXPECT_EQ(window.Page().Text(), "xuno\n");
  }
  ASSERT_TRUE(window.Save());
  const QStringList both = {folder_.filePath("B.txt"), folder_.filePath("A.DOC")};
  EXPECT_EQ(window.Recent().Paths(), both);
  QFile::remove(folder_.filePath("A.DOC"));
  Person person("Chiudi");
  window.OpenInstead(QString::fromStdString(PathOf("A.DOC")));
  EXPECT_EQ(window.Page().Text(), "xuno\n");
  EXPECT_EQ(window.Recent().Paths(), both.mid(0, 1));  // a file that has gone goes from the list
  // The guide would come up beside the tests.
  EXPECT_EQ(window.findChild<QAction*>("help")->shortcut(), QKeySequence(Qt::Key_F1));
}

struct PaintedRegion : QObject {
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion region;
};

// The chain of the line of the cursor, by keys alone; found, copied, and gone with Esc.
TEST_F(ViewerTest, ExplainsTheLineOfTheCursor) {
  WriteSample();
  ViewerWindow window;
  window.Open(PathOf("OUT_PPE.DOC"));
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto* panel = window.findChild<QWidget*>("explanations");
  auto* heading = panel->findChild<QLabel*>("explanationHeading");
  const auto key = [&window](Qt::Key pressed, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(&window.Page(), pressed, with);
  };
  key(Qt::Key_F4);
  ASSERT_TRUE(panel->isVisible() && window.Page().hasFocus());
  EXPECT_EQ(heading->text(), "Nessuna spiegazione");
  // The line that is explained stands out in its whole width, on the screen too.
  PaintedRegion painted;
  QTest::qWait(20);
  window.Page().viewport()->installEventFilter(&painted);
  key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return painted.region.boundingRect().width() >= window.Page().viewport()->width(); },
      500));
  EXPECT_EQ(heading->text(), "Numero Partite catastali : 2");
  while (!heading->text().startsWith("n° 2 x") && window.Page().LineOfCursor() < 30)
    key(Qt::Key_Down);
  EXPECT_EQ(heading->text(), "n° 2 x 106.0000 L. 212.000");
  key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().contains("2 x 106.000 = 212.000"))
      << QApplication::clipboard()->text().toStdString();

  // Words that stand in the explanations alone are found there, and lead to their line.
  key(Qt::Key_F, Qt::ControlModifier);
  auto* field = window.findChild<QLineEdit*>("findField");
  QTest::keyClicks(field, "2 x 106.000 =");
  EXPECT_EQ(window.findChild<QLabel*>("findCount")->text(), "1 di 1, nelle spiegazioni");
  EXPECT_EQ(panel->findChild<QTextEdit*>()->textCursor().selectedText(), "2 x 106.000 =");
  QApplication::clipboard()->setText("PARCELLA\n");  // a line as it is copied
  for (const Qt::Key letter : {Qt::Key_A, Qt::Key_V})
    QTest::keyClick(field, letter, Qt::ControlModifier);
  EXPECT_EQ(field->text(), "PARCELLA");
  EXPECT_NE(window.findChild<QLabel*>("findCount")->text(), "Nessun risultato");
  QTest::keyClick(field, Qt::Key_Escape);
  key(Qt::Key_Escape);
  EXPECT_FALSE(panel->isVisible());

  Write("INP_PPE.DAP", "99,5,3,1,1\r\n20,1000000,\"\",1\r\n");
  key(Qt::Key_F4);
  const auto told = [panel] { return panel->findChild<QTextEdit*>()->toPlainText(); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return told().contains("I dati sono cambiati dopo"); }, 3000))
      << told().toStdString();
  Person person("Chiudi");
  window.findChild<QAction*>("printExplained")->trigger();
  EXPECT_TRUE(person.Said().contains("I dati sono cambiati dopo"));
}

// A fee with all kinds of steps; what the manual shows of it is kept where tools/pictures says.
TEST_F(ViewerTest, ExplainsAsInTheManual) {
  const WorkFolder sources(ORM_SOURCE_DIR), own(folder_.path().toStdString());
  for (const char* name :
       {"sample/UTENTE.DAG", "sample/INT_PDL.DAP", "sample/INP_PDL.DAP", "CAC.CFG"})
    Write(std::string(name).substr(std::string(name).rfind('/') + 1),
          sources.Read(std::string("data/") + name));
  CalcolaDaCartella(own, "PDL", true).uscita.Save(own, "OUT_PDL.DOC");
  ViewerWindow window;
  window.Open(PathOf("OUT_PDL.DOC"));
  window.resize(1150, 740);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto* panel = window.findChild<QWidget*>("explanations");
  if (!panel->isVisible()) QTest::keyClick(&window.Page(), Qt::Key_F4);  // as it was left before
  ASSERT_TRUE(panel->isVisible());
  const auto* heading = panel->findChild<QLabel*>("explanationHeading");
  for (int line = 0; line < 90 && !heading->text().startsWith("0,25 x 0,35 x"); ++line)
    QTest::keyClick(&window.Page(), Qt::Key_Down);
  EXPECT_TRUE(heading->text().startsWith("0,25 x 0,35 x")) << heading->text().toStdString();
  QTest::qWait(50);  // the page makes room for it
  const QString folder = qEnvironmentVariable("ORM_PICTURES");
  EXPECT_TRUE(folder.isEmpty() || window.grab().save(folder + "/spiegazione.png"));
}

// The note for other programs, by the keys of the menu: what orm2002-calcolo writes, and what is
// told of it.
TEST_F(ViewerTest, CopiesTheNoteForOtherPrograms) {
  WriteSample();
  ViewerWindow window;
  window.Open(PathOf("OUT_PPE.DOC"));
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto copy = [&](Qt::Key kind, const QString& name, const QString& button = {}) {
    window.activateWindow();  // without a desktop nobody gives the place back after a question
    QCoreApplication::processEvents();
    QTest::keyClick(&window.Page(), Qt::Key_F, Qt::AltModifier);
    const QWidget* file = QApplication::activePopupWidget();
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activePopupWidget() != file; }));
    Person person(0, name.isEmpty() ? name : folder_.filePath(name), button);
    QTest::keyClick(QApplication::activePopupWidget(), kind);
    return person.Said().toStdString();
  };
  const auto reckoned = [this](const QString& option) {
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + "/orm2002-calcolo",
                  {"PPE", option, "--data", "15/03/2002", "--cartella", folder_.path()});
    program.waitForFinished();
    return program.readAllStandardOutput().toStdString();
  };
  const std::tuple<Qt::Key, const char*, const char*> kinds[] = {
      {Qt::Key_J, "nota.json", "--json"},
      {Qt::Key_C, "nota.csv", "--csv"},
      {Qt::Key_V, "semplice.csv", "--csv=semplice"}};
  for (const auto& [key, name, option] : kinds) {
    EXPECT_EQ(copy(key, name), "");
    EXPECT_EQ(Read(name), reckoned(option));
  }
  const auto has = [](const std::string& said, const char* what) {
    EXPECT_NE(said.find(what), std::string::npos) << said;
  };
  Write("nota.json", "altro");
  const QStringList before = QDir(folder_.path()).entryList(QDir::Files);
  has(copy(Qt::Key_J, "nota.json"), "nota.json");  // the button offered is "No", and then Esc
  EXPECT_EQ(copy(Qt::Key_C, ""), "");
  EXPECT_EQ(Read("nota.json"), "altro");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), before);
  Write("INP_PPE.DAP", "99,5,3,1,1\r\n20,1000000,\"\",1\r\n");
  has(copy(Qt::Key_J, "dopo.json"), "che sono cambiati dopo questo calcolo");
  EXPECT_EQ(Read("dopo.json"), reckoned("--json"));
  QFile::remove(folder_.filePath("INP_PPE.DAP"));
  has(copy(Qt::Key_C, "senza.csv"), "INP_PPE.DAP");
  EXPECT_FALSE(QFile::exists(folder_.filePath("senza.csv")));
  Write("A.DOC", kReport);
  window.Open(PathOf("A.DOC"));  // no note's report
  EXPECT_FALSE(window.findChild<QAction*>("copyJson")->isEnabled());
}

TEST_F(ViewerTest, OpensADroppedFile) {
  Write("A.DOC", kReport);
  Write("B.txt", "uno\r\n");
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  window.SetEditing(true);
  QMimeData dragged;
  dragged.setUrls({QUrl::fromLocalFile(folder_.filePath("B.txt"))});
  const auto send = [](QWidget* to, auto event) {
    QApplication::sendEvent(to, &event);
    return event.isAccepted();
  };
  QWidget* page = window.Page().viewport();
  EXPECT_TRUE(send(page, QDragEnterEvent({9, 9}, Qt::CopyAction, &dragged, Qt::LeftButton, {})));
  send(page, QDropEvent({9, 9}, Qt::CopyAction, &dragged, Qt::LeftButton, {}));
  EXPECT_EQ(window.Page().Text(), "uno\n");
}

TEST_F(ViewerTest, PdfKeepsTheColumns) {
  std::string text = DecodeText(kReport).text;
  for (int i = 0; i < 80; ++i) text += "riga\n";
  // The number of a note stands behind the columns, the note itself on a page of its own.
  const ReportNotes notes{{{4, 17}},
                          "==== SPIEGAZIONE ====\n(17) " + QString("somma ").repeated(20)};
  WorkFolder(folder_.path().toStdString())
      .Replace("a.pdf", PdfOf(QString::fromStdString(text), "A.DOC", notes));
  QProcess reader;
  reader.start("pdftotext", {"-layout", QString::fromStdString(PathOf("a.pdf")), "-"});
  if (!reader.waitForFinished()) GTEST_SKIP() << "pdftotext is not installed";
  const QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split('\f');
  ASSERT_EQ(pages.size(), 4);  // three, and what follows the last page's end
  const QStringList lines = pages[0].split('\n');
  const auto find = [&lines](const QString& start) {
    for (const QString& line : lines)
      if (line.startsWith(start)) return line;
    return QString();
  };
  EXPECT_EQ(find("TOTALE").left(72),
            "TOTALE (Onorari e Compensi)                            L.      2.587.000");
  EXPECT_EQ(lines.filter("17").size(), 1);
  EXPECT_TRUE(pages[2].startsWith("==== SPIEGAZIONE ====\n(17) somma"));
  EXPECT_EQ(find(" n°").size(), 72);
  EXPECT_EQ(find("Totale onere").indexOf("€"), 55);
  EXPECT_EQ(find("=====").size(), 72);
  EXPECT_TRUE(pages[0].contains("Pagina 1 di 3"));
  EXPECT_TRUE(pages[1].contains("Pagina 2 di 3"));
}

TEST(ViewerZip, ChecksumIsTheCommonOne) {
  EXPECT_EQ(Crc32("123456789"), 0xCBF43926U);  // the check value of this checksum
}

TEST_F(ViewerTest, OdtHoldsEveryLineWithItsBlanks) {
  const std::string odt =
      OdtOf(QString("  a   b <c> & d\n=== A B ===\n======\nfine"), "Strada & C.");
  EXPECT_EQ(odt.substr(30, 8), "mimetype");
  EXPECT_NE(odt.find("<text:s text:c=\"2\"/>a <text:s text:c=\"2\"/>b &lt;c&gt; &amp; d<"),
            std::string::npos);
  EXPECT_NE(odt.find("outline-level=\"1\">=== A B ===</text:h>"), std::string::npos);
  EXPECT_NE(odt.find("\"Standard\">======</text:p>"), std::string::npos);
  EXPECT_NE(odt.find("<dc:title>Strada &amp; C.</dc:title>"), std::string::npos);
  EXPECT_NE(odt.find("fo:page-width=\"210mm\""), std::string::npos);
  WorkFolder(folder_.path().toStdString()).Replace("a.odt", odt);
  QProcess unzip;
  unzip.start("unzip", {"-tq", QString::fromStdString(PathOf("a.odt"))});
  if (!unzip.waitForFinished()) GTEST_SKIP() << "unzip is not installed";
  EXPECT_EQ(unzip.exitCode(), 0);
}

TEST_F(ViewerTest, ShowsAllColumnsOnTheLeastScreen) {
  Write("A.DOC", kReport);
  ViewerWindow window;
  window.Open(PathOf("A.DOC"));
  window.FitToSheet();
  window.show();
  EXPECT_LE(window.width(), 1024);
  EXPECT_GT(window.Page().viewport()->width(), 0);
  EXPECT_EQ(window.Page().horizontalScrollBar()->maximum(), 0);
  const int before = window.Page().SheetWidth();
  window.findChild<QAction*>("larger")->trigger();
  EXPECT_GT(window.Page().SheetWidth(), before);
  EXPECT_FALSE(window.isWindowModified());  // looking closer is no edit
  EXPECT_FALSE(window.Page().document()->isUndoAvailable());
  window.findChild<QAction*>("normal")->trigger();
  EXPECT_EQ(window.Page().SheetWidth(), before);

  // Beside a panel too, as long as it is open.
  window.FitToSheet();
  const int alone = window.Page().Zoom();
  for (const bool beside : {true, false}) {
    window.findChild<QAction*>("showSections")->trigger();
    EXPECT_EQ(window.Page().horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(window.Page().Zoom() == alone || (beside && window.Page().Zoom() < alone));
  }
}

TEST(ViewerItalian, OwnCaptionsReplaceThoseOfTheToolkit) {
  const ItalianCaptions captions;
  EXPECT_EQ(captions.translate("QPlatformTheme", "Cancel", nullptr, -1), "Annulla");
  EXPECT_EQ(captions.translate("QPrintPropertiesWidget", "Advanced", nullptr, -1), "Avanzate");
  EXPECT_EQ(captions.translate("QShortcut", "Shift", nullptr, -1), "Maiusc");
  EXPECT_TRUE(captions.translate("QPlatformTheme", "unknown", nullptr, -1).isNull());
}

}  // namespace
}  // namespace orm
