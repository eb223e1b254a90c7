// The menu of a drawing: saved as a picture, with keys alone; a failed save keeps the older one.
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>

#include "desktop/drawing/drawing_files.h"
#include "dialogs/lavagna.h"
#include "runtime/folder.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

class DrawingMenu : public testing::Test {
 protected:
  DrawingMenu() {
    form_.SetContent(Column({disegno_}));
    disegno_.DrawText(128, 128, "σc = 85,0 kg/cmq");
  }
  // Chooses an entry of the drawing's menu and gives that path; nothing gives up. A message box
  // gets that button, or the one that it proposes.
  QString Choose(int entry, const QString& path, const QString& button = {}) {
    TestPlayer player;
    QString said;
    player.onForm = [&](FormDialog& dialog) {
      QWidget* drawing = dialog.ViewOf(disegno_).Field();
      Person person(entry, path, button);
      QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, drawing->mapToGlobal(QPoint()));
      QApplication::sendEvent(drawing, &event);
      said = person.Said();
    };
    player.Show(form_);
    return said;
  }
  std::string Read(const char* name) { return WorkFolder(folder_.path().toStdString()).Read(name); }

  Form form_{"frmDisegno", ""};
  Lavagna disegno_{form_, "disegno", 200, 150, 520};
  QTemporaryDir folder_;
};

enum Entry { kCopy = 1, kSvg, kPng, kPdf, kDxf };

TEST_F(DrawingMenu, SavesPictures) {
  EXPECT_EQ(Choose(kSvg, folder_.filePath("uno")), "");
  EXPECT_NE(Read("uno.svg").find("σc = 85,0 kg/cmq"), std::string::npos);
  EXPECT_EQ(Choose(kPng, folder_.filePath("due.png")), "");
  EXPECT_EQ(QImage(folder_.filePath("due.png")).width(), 1800);
  EXPECT_EQ(Choose(kPdf, folder_.filePath("tre")), "");
  EXPECT_TRUE(Read("tre.pdf").starts_with("%PDF"));
  EXPECT_EQ(Choose(kDxf, folder_.filePath("quattro")), "");
  EXPECT_NE(Read("quattro.dxf").find("AC1009"), std::string::npos);
  Choose(kSvg, "");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 4);
}

// The question comes after the ending, with "no" in front; then the dialog asks for another name.
TEST_F(DrawingMenu, AsksBeforeItReplaces) {
  const WorkFolder folder(folder_.path().toStdString());
  folder.Replace("uno.svg", "vecchio");
  const QString asked = Choose(kSvg, folder_.filePath("uno"));
  EXPECT_TRUE(asked.contains("uno.svg\nc'è già. Sostituirlo?")) << asked.toStdString();
  EXPECT_EQ(Read("uno.svg"), "vecchio");
  Choose(kSvg, folder_.filePath("uno"), "Sì");
  EXPECT_TRUE(Read("uno.svg").starts_with("<svg"));
}

TEST_F(DrawingMenu, CopiesAPictureByKeyAndByMenu) {
  Choose(kCopy, "");
  EXPECT_EQ(QApplication::clipboard()->image().width(), 1800);
  QApplication::clipboard()->clear();
  TestPlayer player;
  player.onForm = [&](FormDialog& dialog) {
    QTest::keyClick(dialog.ViewOf(disegno_).Field(), Qt::Key_C, Qt::ControlModifier);
  };
  player.Show(form_);
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasFormat("image/svg+xml"));
}

// Data and results beside the drawing, areas too; buttons, hidden fields, empty lines, hints and
// results of other data not; all on the sheet. What is beyond its limit says so.
TEST_F(DrawingMenu, PrintsOneSheetWithDataAndResults) {
  Form form("frm", "VERIFICA");
  Frame dati(form, "dati", "GEOMETRIA");
  FloatBox altezza(form, "altezza", "Altezza [cm]"), nascosta(form, "nascosta", "Non vista");
  FerriBox ferri(form, "ferri", "1"), vuoti(form, "vuoti", "strato vuoto");
  FloatBox d(form, "d", "Distanza"), vuota(form, "vuota", "Distanza");
  Label titolo(form, "titolo", "Ferri"), distanza(form, "distanza", "Distanza");
  FloatBox oltre(form, "oltre", "Acciaio", {.unit = "< 2.600"}), vecchia(form, "vecchia", "Cls");
  oltre.SetWarning(true);
  vecchia.SetStale(true);
  Label aiuto(form, "aiuto", "In blu i diametri");
  aiuto.KeepOffPaper();
  Button calcola(form, "calcola", "CALCOLA", Button::Role::Default);
  Lavagna disegno(form, "disegno", 200, 150, 520);
  disegno.DrawText(10, 100, "asse neutro");
  form.SetContent(
      Column({Row({Group(dati, {Fields({altezza, nascosta, oltre, vecchia}), aiuto}),
                   Column({Fields({Row({titolo, distanza}), Row({ferri, d}), Row({vuoti, vuota})}),
                           disegno})}),
              Buttons({calcola})}));
  altezza.SetValue(80);
  oltre.SetValue(3445.3);
  nascosta.SetVisible(false);
  ferri.SetText("3D16");
  d.SetValue(3);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(96);
  QPainter painter(&writer);
  PaintFormPage(painter, {680, 1000}, disegno);
  painter.end();
  QFile file(folder_.filePath("pagina.pdf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(buffer.data());
  file.close();
  QProcess reader;
  reader.start("pdftotext", {"-layout", file.fileName(), "-"});
  if (!reader.waitForStarted()) GTEST_SKIP() << "pdftotext";
  reader.waitForFinished();
  const QString text = QString::fromUtf8(reader.readAllStandardOutput()).simplified();
  for (const char* there : {"VERIFICA", "asse neutro", "GEOMETRIA", "Altezza [cm] 80",
                            "1 3D16 6,03 cmq 3", "! 3.445,3 oltre 2.600"})
    EXPECT_TRUE(text.contains(there)) << there << " in " << text.toStdString();
  for (const char* away : {"Non vista", "strato vuoto", "CALCOLA", "Cls", "In blu"})
    EXPECT_FALSE(text.contains(away)) << away;
  EXPECT_EQ(text.count("\f"), 0);
}

// The edge at 150 %, where it stands between two pixels; a picture whose height is none of pixels.
TEST_F(DrawingMenu, HasItsEdgeOnTheScreenAndNothingBeyondItInAPicture) {
  TestPlayer player;
  player.onForm = [&](FormDialog& dialog) {
    QWidget* field = dialog.ViewOf(disegno_).Field();
    QImage screen(field->size() * 1.5 + QSize(4, 4), QImage::Format_RGB32);
    screen.setDevicePixelRatio(1.5);
    screen.fill(Qt::red);
    field->render(&screen, QPoint(1, 1));
    const QColor edge =
        field->palette().color(field->hasFocus() ? QPalette::Highlight : QPalette::Mid);
    const int right = qRound((field->width() + 1) * 1.5) - 1;
    for (const QPoint& at : {QPoint(50, 2), QPoint(2, 50), QPoint(right, 50)})
      EXPECT_EQ(screen.pixelColor(at), edge) << at.x() << " " << at.y();
  };
  player.Show(form_);
  Lavagna fine(form_, "fine", 30, 9.799, 504);
  fine.SetBackground({255, 255, 0});
  const QImage picture = PictureOf(fine);
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() - 1), QColor(Qt::yellow));
}

TEST_F(DrawingMenu, AFailedSaveIsTold) {
  const QString path = folder_.filePath("manca/uno.svg");
  const QString said = Choose(kSvg, path);
  EXPECT_TRUE(said.startsWith("Non è stato possibile scrivere il file\n" + path))
      << said.toStdString();
}

}  // namespace
}  // namespace orm
