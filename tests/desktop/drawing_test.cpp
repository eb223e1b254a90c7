// The menu of a drawing: saved as a picture, with keys alone; a failed save keeps the older one.
#include <QContextMenuEvent>
#include <QImage>
#include <QTemporaryDir>

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
  // Chooses an entry of the drawing's menu and gives that path; nothing gives up.
  QString Choose(int entry, const QString& path) {
    TestPlayer player;
    QString said;
    player.onForm = [&](FormDialog& dialog) {
      QWidget* drawing = dialog.ViewOf(disegno_).Field();
      Person person(entry, path);
      QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, drawing->mapToGlobal(QPoint()));
      QApplication::sendEvent(drawing, &event);
      said = person.Said();
    };
    player.Show(form_);
    return said;
  }
  Form form_{"frmDisegno", ""};
  Lavagna disegno_{form_, "disegno", 200, 150, 520};
  QTemporaryDir folder_;
};

TEST_F(DrawingMenu, SavesPictures) {
  EXPECT_EQ(Choose(1, folder_.filePath("uno")), "");
  const WorkFolder folder(folder_.path().toStdString());
  EXPECT_NE(folder.Read("uno.svg").find("σc = 85,0 kg/cmq"), std::string::npos);
  EXPECT_EQ(Choose(2, folder_.filePath("due.png")), "");
  EXPECT_EQ(QImage(folder_.filePath("due.png")).width(), 1800);
  Choose(1, "");
  EXPECT_EQ(folder.Names().size(), 2U);
}

TEST_F(DrawingMenu, AFailedSaveIsTold) {
  const QString path = folder_.filePath("manca/uno.svg");
  const QString said = Choose(1, path);
  EXPECT_TRUE(said.startsWith("Non è stato possibile scrivere il file\n" + path))
      << said.toStdString();
}

}  // namespace
}  // namespace orm
