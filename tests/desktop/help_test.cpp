// The window of the help, with real keys and clicks.
#include <QAction>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <QTreeWidget>

#include "desktop/find_bar.h"
#include "desktop/guide/help_view.h"
#include "desktop/guide/help_window.h"
#include "desktop/qt_text.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

class Help : public testing::Test {
 protected:
  void SetUp() override {
    window.show();
    window.Open("manuale/coa.md");
    QCoreApplication::processEvents();
  }
  template <class Widget>
  Widget& Named(const char* name) {
    return *window.findChild<Widget*>(name);
  }
  QString Title() const { return window.windowTitle(); }

  HelpWindow window;
};

TEST_F(Help, BooksAndPagesOpenByTheirNames) {
  EXPECT_EQ(Title(), "ORM2002 - Collaudo amministrativo");
  window.Open("norme.hlp");
  EXPECT_EQ(window.View().File(), "help/norme.md");
  window.Open("AVVERTENZE.HLP");
  EXPECT_EQ(window.View().File(), "help/avvertenze.md");
  window.Open("altro.hlp");
  EXPECT_TRUE(window.View().File().startsWith("manuale/"));
}

TEST_F(Help, ThePageHasTheKeyboardFirst) {
  window.activateWindow();
  QCoreApplication::processEvents();
  EXPECT_EQ(window.focusWidget(), &window.View());
}

TEST_F(Help, ContentsFollowThePageAndOpenSections) {
  auto& contents = Named<QTreeWidget>("contents");
  ASSERT_NE(contents.currentItem(), nullptr);
  EXPECT_EQ(contents.currentItem()->text(0), "Collaudo amministrativo");
  EXPECT_TRUE(contents.currentItem()->isExpanded());
  contents.setFocus();
  QTest::keyClick(&contents, Qt::Key_Down);
  QTest::keyClick(&contents, Qt::Key_Down);
  QTest::keyClick(&contents, Qt::Key_Return);
  EXPECT_EQ(window.View().textCursor().block().text(), contents.currentItem()->text(0));
  EXPECT_GT(window.View().verticalScrollBar()->value(), 0);
}

TEST_F(Help, EveryPictureIsInTheProgram) {
  for (const HelpBook& book : HelpBooks())
    for (const HelpPage& page : book.pages) {
      window.Open(ToQt(page.file));
      for (QTextBlock block = window.View().document()->begin(); block.isValid();
           block = block.next())
        for (auto at = block.begin(); !at.atEnd(); ++at)
          if (const QTextImageFormat image = at.fragment().charFormat().toImageFormat();
              image.isValid()) {
            const QUrl name(image.name());
            const QVariant picture = window.View().loadResource(QTextDocument::ImageResource, name);
            EXPECT_FALSE(picture.value<QPixmap>().isNull()) << page.file << FromQt(image.name());
          }
    }
}

TEST_F(Help, BackAndForward) {
  window.Open("NORME.HLP");
  QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Title(), "ORM2002 - Collaudo amministrativo");
  QTest::keyClick(&window, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(window.View().File(), "help/norme.md");
}

TEST_F(Help, SearchFindsMarksAndOpens) {
  QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  auto& sought = Named<QLineEdit>("sought");
  QTest::keyClicks(&sought, "verbale consistenza");
  auto& hits = Named<QListWidget>("hits");
  ASSERT_GT(hits.count(), 0);
  QTest::keyClick(&sought, Qt::Key_Return);
  EXPECT_EQ(hits.currentRow(), 0);
  EXPECT_FALSE(window.View().extraSelections().isEmpty());
  sought.setText("xyzzy");
  EXPECT_EQ(hits.item(0)->text(), "Nessuna pagina contiene queste parole.");
  QTest::keyClick(&sought, Qt::Key_Return);  // nothing to open
  EXPECT_TRUE(window.View().extraSelections().isEmpty());
}

TEST_F(Help, FindInThePageAndEscapeOneAfterTheOther) {
  QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(window.Find().isVisible());
  QTest::keyClicks(&Named<QLineEdit>("findField"), "facciate");
  EXPECT_EQ(window.View().textCursor().selectedText().toLower(), "facciate");
  QTest::keyClick(&Named<QLineEdit>("findField"), Qt::Key_Escape);
  EXPECT_FALSE(window.Find().isVisible());
  EXPECT_TRUE(window.isVisible());
  QTest::keyClick(&window.View(), Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(Help, ZoomKeepsThePageAndItsPlace) {
  const QString text = window.View().toPlainText();
  window.Open("manuale/ppe.md");
  window.Open("manuale/coa.md");
  for (int i = 0; i < 30; ++i) QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(window.View().Zoom(), HelpView::kMostZoom);
  EXPECT_EQ(window.View().toPlainText(), text);
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(window.View().Zoom(), 100);
  QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(window.View().File(), "manuale/ppe.md");  // zooming is no page of its own
}

TEST_F(Help, PicturesFitANarrowWindow) {
  window.Open("manuale/solaio_traliccio.md");
  for (const int width : {1100, 760, 1100}) {
    window.resize(width, 700);
    QTest::qWait(20);
    EXPECT_EQ(window.View().horizontalScrollBar()->maximum(), 0) << width;
  }
}

// What the manual shows of it is kept where tools/pictures says.
TEST_F(Help, ContentsAndSearchAsInTheManual) {
  const QString folder = qEnvironmentVariable("ORM_PICTURES");
  const auto keep = [&](const char* name) {
    QCoreApplication::processEvents();
    EXPECT_TRUE(folder.isEmpty() || window.grab().save(folder + name));
  };
  keep("/guida.png");
  window.Search("compensi accessori");
  keep("/guida_cerca.png");
  EXPECT_GT(Named<QListWidget>("hits").count(), 1);
}

}  // namespace
}  // namespace orm
