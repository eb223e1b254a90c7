// The menu of a drawing: saved as a picture, with keys alone; a failed save keeps the older one.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "desktop/qt_text.h"
#include "runtime/folder.h"
#include "tests/desktop/gallery_form.h"

namespace orm {
namespace {

// Acts on the menus and boxes that come up while the menu of the drawing is open.
class Person {
 public:
  Person(int downs, const QString& path) : downs_(downs), path_(path) { Wait(); }
  QString said;

 private:
  // Anew each time: a timer does not fire in a dialog that its own event has opened.
  void Wait() {
    QTimer::singleShot(10, &here_, [this] { Act(); });
  }
  void Act() {
    Wait();
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      for (; downs_ > 0; --downs_) QTest::keyClick(menu, Qt::Key_Down);
      QTest::keyClick(menu, Qt::Key_Return);
    } else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      said = box->text();
      QTest::keyClick(box, Qt::Key_Return);
    } else if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
      auto* name = dialog->findChild<QLineEdit*>();
      if (path_.isEmpty()) return QTest::keyClick(dialog, Qt::Key_Escape);
      name->setText(std::exchange(path_, {}));
      QTest::keyClick(name, Qt::Key_Return);
    }
  }
  int downs_;
  QString path_;
  QObject here_;
};

class DrawingMenu : public testing::Test {
 protected:
  // Chooses an entry of the drawing's menu and gives that path; nothing gives up.
  QString Choose(int entry, const QString& path) {
    GalleryForm form;
    TestPlayer player;
    QString said;
    player.onForm = [&](FormDialog& dialog) {
      QWidget* drawing = dialog.ViewOf(form.disegno).Field();
      Person person(entry, path);
      QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, drawing->mapToGlobal(QPoint()));
      QApplication::sendEvent(drawing, &event);
      said = person.said;
    };
    player.Show(form);
    return said;
  }
  QTemporaryDir folder_;
};

TEST_F(DrawingMenu, SavesPictures) {
  EXPECT_EQ(Choose(1, folder_.filePath("uno")), "");
  const WorkFolder folder(folder_.path().toStdString());
  EXPECT_NE(folder.Read("uno.svg").find("σc = 85,0 kg/cmq"), std::string::npos);
  EXPECT_EQ(Choose(2, folder_.filePath("due.png")), "");
  const QImage picture(folder_.filePath("due.png"));
  EXPECT_EQ(picture.width(), 1800);
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
