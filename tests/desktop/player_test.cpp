// The desktop player as a whole: message boxes, life of a form, menus, texts with looks, drawings.
#include <QAbstractButton>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextDocument>

#include "desktop/controls/rich_text_document.h"
#include "desktop/drawing/paint_drawing.h"
#include "desktop/player/heading_line.h"
#include "desktop/player/menu_keys.h"
#include "desktop/player/menu_window.h"
#include "desktop/player/message_window.h"
#include "desktop/qt_text.h"
#include "runtime/failure.h"
#include "shell/letter/form_letter.h"
#include "tariff/forms/form_header.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

TEST(Ask, GivesBackTheButtonThatWasPressed) {
  TestPlayer player;
  for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel}) {
    player.onMessage = [&](QMessageBox& shown) {
      QTest::mouseClick(ButtonOf(shown, answer), Qt::LeftButton);
    };
    EXPECT_EQ(
        player.Ask({"", "Salvare ?", MessageBox::Icon::Question, MessageBox::Buttons::YesNoCancel}),
        answer);
  }
}

TEST(Ask, EnterIsTheFirstButtonAndEscapeTheOneThatChangesNothing) {
  TestPlayer player;
  const MessageBox box{"", "Salvare ?", MessageBox::Icon::Question, MessageBox::Buttons::YesNo};
  player.onMessage = [](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Return); };
  EXPECT_EQ(player.Ask(box), Answer::Yes);
  player.onMessage = [](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Escape); };
  EXPECT_EQ(player.Ask(box), Answer::No);
}

class PlainForm : public Form {
 public:
  explicit PlainForm(bool anyKey = false)
      : Form("frmSemplice", "  Titolo ", "passo"), anyKey_(anyKey) {
    SetContent(Column({Buttons({cmdOK})}));
  }
  bool ClosesOnAnyKey() const override { return anyKey_; }
  Button cmdOK{*this, "cmdOK", "&O.K."};

 private:
  bool anyKey_;
};

TEST(Show, AFailureOfAnEventEndsTheFormAndGoesOn) {
  PlainForm form;
  form.cmdOK.onPress = [] { throw RuntimeFailure("Disco pieno."); };
  TestPlayer player;
  player.onForm = [&](FormDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Titolo");
    QTest::mouseClick(dialog.ViewOf(form.cmdOK).Field(), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
  };
  EXPECT_THROW(player.Show(form), RuntimeFailure);
  EXPECT_EQ(form.View(), nullptr);
}

TEST(Show, FormsShowFormsAndMessages) {
  PlainForm outer, inner;
  TestPlayer player;
  int shown = 0;
  inner.cmdOK.onPress = [&] { inner.Close(); };
  outer.cmdOK.onPress = [&] {
    player.Show(inner);
    player.Ask({"", "Fatto", MessageBox::Icon::Information, MessageBox::Buttons::Ok});
    outer.Close();
  };
  player.onMessage = [&](QMessageBox&) { ++shown; };
  player.onForm = [&](FormDialog& dialog) {
    ++shown;
    QTest::mouseClick(dialog.findChild<QAbstractButton*>("cmdOK"), Qt::LeftButton);
  };
  player.Show(outer);
  EXPECT_EQ(shown, 3);
  player.Show(inner);  // a form may be shown again
  EXPECT_EQ(shown, 4);
}

// What Escape leaves behind is brought back by a key, and given up for good by a confirmation.
TEST(Show, DraftsComeBack) {
  struct Sheet : Form {
    Sheet() : Form("frmFoglio", "Foglio") {
      SetContent(Column({Fields({txtNome}), Buttons({cmdOK})}));
      cmdOK.onPress = [this] { Esci(Uscita::Conferma); };
    }
    TestoBox txtNome{*this, "txtNome", "Nome"};
    Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};
  };
  TestPlayer player;
  const auto show = [&](const std::function<void(Sheet&, FormDialog&)>& hand) {
    Sheet sheet;
    player.onForm = [&](FormDialog& dialog) { hand(sheet, dialog); };
    player.Show(sheet);
  };
  const auto offered = [](Sheet& sheet, FormDialog& dialog) {
    return dialog.ViewOf(*sheet.ResumeButton()).Field()->isVisible();
  };
  show([&](Sheet& sheet, FormDialog& dialog) {
    EXPECT_FALSE(offered(sheet, dialog));
    QTest::keyClicks(dialog.focusWidget(), "Ada");
    EXPECT_EQ(player.DraftsOfRun().WithOpenForms().size(), 1U);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
  });
  show([&](Sheet& sheet, FormDialog& dialog) {
    EXPECT_TRUE(offered(sheet, dialog));
    EXPECT_EQ(sheet.txtNome.Text(), "");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(dialog.focusWidget(), dialog.ViewOf(sheet.cmdOK).Field());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(sheet.txtNome.Text(), "Ada");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(sheet.Confermato());
  });
  show([&](Sheet& sheet, FormDialog& dialog) { EXPECT_FALSE(offered(sheet, dialog)); });
}

TEST(Player, FindsProgramsInThePath) {
  TestPlayer player;
  EXPECT_TRUE(player.ProgramExists("sh"));
  EXPECT_TRUE(player.ProgramExists("/bin/sh"));
  EXPECT_FALSE(player.ProgramExists("programma-che-non-esiste") || player.ProgramExists(""));
}

TEST(Show, AnyKeyOrClickWhereTheFormEndsOnOne) {
  for (const bool key : {true, false}) {
    PlainForm form(true);
    TestPlayer player;
    player.onForm = [&](FormDialog& dialog) {
      QTest::keyClick(&dialog, Qt::Key_Shift);
      EXPECT_TRUE(form.IsOpen());
      key ? QTest::keyClick(&dialog, Qt::Key_X)
          : QTest::mouseClick(&dialog, Qt::LeftButton, {}, {2, 2});
      EXPECT_FALSE(form.IsOpen());
    };
    player.Show(form);
  }
}

TEST(MenuKeys, EachCaptionGetsALetterOfItsOwn) {
  const std::vector<std::string> keys =
      MenuKeys({"FILE", "PARCELLE ( £ )", "PARCELLE ( € )", "A & B", " 1 - UNO", "", "A"});
  EXPECT_EQ(keys, (std::vector<std::string>{"&FILE", "&PARCELLE ( £ )", "P&ARCELLE ( € )",
                                            "A && &B", " &1 - UNO", "", "A"}));
}

// Where there is no room the subject gives way, and a tooltip has the whole line.
TEST(Show, TheHeadingOfAChainTellsWhereOneIs) {
  PlainForm form;
  TestPlayer player;
  const std::string subject = "Ampliamento della scuola\nelementare di via Giacomo Pini in Rende";
  player.place = {"ESL · Lire", subject, {"lotto 1 di 2", "1/c"}};
  const QString whole = ToQt(player.HeadingOf(form).Text());
  EXPECT_EQ(FromQt(whole),
            "ESL · Lire · Ampliamento della scuola elementare di via Giacomo Pini "
            "in Rende · lotto 1 di 2 · 1/c · passo");
  player.onForm = [&](FormDialog& dialog) {
    const HeadingLine& line = *dialog.TopLine();
    EXPECT_TRUE(line.Shown().startsWith("ESL · Lire · Ampl") && line.Shown().contains("…"));
    EXPECT_TRUE(line.Shown().endsWith("Rende · lotto 1 di 2 · 1/c · passo"));
    EXPECT_EQ(QString(line.toolTip()).replace('\n', ' '), whole);
  };
  player.Show(form);
  player.place = {};
  player.onForm = [](FormDialog& dialog) { EXPECT_EQ(dialog.TopLine(), nullptr); };
  player.Show(form);
}

// A window that a person may size is steady.
TEST(Show, AFrameThatComesAndGoesLeavesTheWindow) {
  TestPlayer player;
  RunState stato(player, WorkFolder("."));
  FrmGenLettera form(stato);
  player.onForm = [&](FormDialog& dialog) {
    const QSize before = dialog.size();
    form.fraParcella.SetVisible(false);
    EXPECT_EQ(dialog.size(), before);
    form.fraParcella.SetVisible(true);
    EXPECT_EQ(dialog.size(), before);
  };
  player.Show(form);
}

class SampleWindow : public MainWindow {
 public:
  const std::string& Title() const override { return title_; }
  const std::vector<MenuItem>& Menu() const override { return menu_; }
  bool Load() override { return true; }
  void FirstActivation() override { events.push_back("first"); }
  void MenuOpened(std::string_view name) override { events.push_back("open " + std::string(name)); }
  void Choose(std::string_view name) override { events.push_back("choose " + std::string(name)); }
  void Help(std::string_view name) override { events.push_back("help " + std::string(name)); }
  bool Ended() const override { return false; }
  SavedNote TakeSaved() override { return std::exchange(saved, {}); }
  std::vector<std::string> events;
  SavedNote saved;

 private:
  std::string title_ = "   ORM2002 ";
  std::vector<MenuItem> menu_ = {
      {"FILE", "FILE", {{"ESCI", "ESCI & via"}, {"", ""}, {"ALTRO", "Altro"}}}};
};

TEST(MenuWindow, MenusOpenByKeyAndCommandsAreChosen) {
  SampleWindow window;
  MenuWindow shown(window);
  EXPECT_EQ(shown.windowIconText(), QDir::current().dirName());  // which of two jobs
  shown.ActivateOnceShown();
  shown.show();
  QTest::qWait(20);
  shown.hide();
  shown.show();
  QTest::qWait(20);
  EXPECT_EQ(shown.windowTitle(), "ORM2002");
  EXPECT_EQ(shown.CommandAction("ESCI")->text(), "&ESCI && via");
  QTest::keyClick(&shown, Qt::Key_F, Qt::AltModifier);
  QWidget* menu = shown.PathTo("ESCI").front();
  EXPECT_TRUE(menu->isVisible());
  QTest::keyClick(menu, Qt::Key_F1);
  QTest::keyClick(menu, Qt::Key_A);
  QTest::keyClick(&shown, Qt::Key_F1);
  EXPECT_EQ(window.events,
            (std::vector<std::string>{"first", "open FILE", "help ESCI", "choose ALTRO", "help "}));
}

// Told once, with the keys of the calculation, and gone when a menu opens.
TEST(MenuWindow, ASavedNoteIsToldInPassing) {
  SampleWindow window;
  MenuWindow shown(window);
  shown.show();
  QTest::qWait(20);
  const auto* line = shown.findChild<QLabel*>("archiviata");
  window.saved = {"ESL · Lire · Scuola · 2 lotti", "ESCI"};
  shown.CommandAction("ALTRO")->trigger();
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->text(), "Archiviata: ESL · Lire · Scuola · 2 lotti\nPer il calcolo: Alt+F, E");
  EXPECT_TRUE(line->parentWidget()->rect().contains(line->geometry()));
  QTest::keyClick(&shown, Qt::Key_F, Qt::AltModifier);
  EXPECT_FALSE(line->isVisible());
  shown.CommandAction("ALTRO")->trigger();
  EXPECT_FALSE(line->isVisible());
}

// A text of the header folds by words at the columns that print, however wide the window is.
TEST(Header, TextsFoldAtTheColumnsThatPrint) {
  TestPlayer player;
  RunState stato(player, WorkFolder("."));
  FrmGenIntestazione form(stato, "assente.DAP");
  player.onForm = [&](FormDialog& dialog) {
    auto* field = qobject_cast<QPlainTextEdit*>(dialog.ViewOf(form.txtIncarico).Field());
    QTest::keyClicks(field, QString(72, 'W'));
    EXPECT_EQ(field->document()->firstBlock().layout()->lineCount(), 1);
    QTest::keyClicks(field, "W");
    EXPECT_EQ(field->document()->firstBlock().layout()->lineCount(), 2);
    dialog.resize(dialog.width() + 300, dialog.height());
    QCoreApplication::processEvents();
    EXPECT_EQ(field->document()->firstBlock().layout()->lineCount(), 2);
  };
  player.Show(form);
}

TEST(RichTextDocument, KeepsEveryLookThatTheLogicKnows) {
  RichDocument document;
  document.page = {{"paperw", 11906}};
  RichParagraph title;
  title.setting.alignment = RichSetting::Alignment::Centre;
  title.setting.before = 120;
  title.Append("Scadenze",
               {.font = "Arial", .halfPoints = 31, .bold = true, .colour = Colour{0, 0, 160}});
  title.Append(" è\nqui", {.italic = true, .underline = true});
  RichParagraph empty;
  RichParagraph item;
  item.setting.bullet = true;
  item.setting.left = 360, item.setting.first = -360;
  item.Append("voce", {});
  RichParagraph columns;
  columns.setting.tabs = {1440, 2880};
  columns.setting.alignment = RichSetting::Alignment::Justified;
  columns.Append("a\tb", {});
  document.paragraphs = {title, empty, item, item, columns};
  QTextDocument editor;
  FillDocument(editor, document);
  EXPECT_EQ(ReadDocument(editor, document), document);
}

// No bands beside it: the room has the background of the drawing.
TEST(PaintDrawing, KeepsItsProportionsAtAnySize) {
  PlainForm form;
  Lavagna panel(form, "disegno", 100, 50, 200);
  panel.SetBackground({255, 255, 0});
  panel.SetColour({255, 0, 0});
  panel.DrawPolygon({{0, 0}, {50, 0}, {50, 25}, {0, 25}}, true);
  for (const int side : {120, 400}) {
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    PaintDrawing(painter, panel, picture.rect());
    painter.end();
    EXPECT_EQ(picture.pixelColor(side / 2, side / 8), QColor(255, 255, 0));
    EXPECT_EQ(picture.pixelColor(side / 4, side * 5 / 8), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(side * 3 / 4, side * 3 / 8), QColor(255, 255, 0));
  }
}

}  // namespace
}  // namespace orm
