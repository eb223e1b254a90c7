// Fields under real keys, pastes and moves of the focus.
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <memory>

#include "desktop/qt_text.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

class EntryForm : public Form {
 public:
  EntryForm() : Form("frmCampi", "Campi") {
    SetContent(Column({cdImporto, ciNumero, ciMinimo, cdSegno, txtNome, txtNote, ferri, data, lista,
                       Buttons({cmdOK, cmdFine})}));
    ciMinimo.SetValue(20);
    cmdOK.onPress = [this] { ++confirmed; };
    cmdFine.onPress = [this] { Close(); };
    cdImporto.onLeave = [this] { ++left; };
  }
  FloatBox cdImporto{*this, "cdImporto", "Importo", {.most = 999999999.99}};
  InterBox ciNumero{*this, "ciNumero", "Numero", {.most = 5000}};
  InterBox ciMinimo{*this, "ciMinimo", "Minimo", {.least = 10, .most = 99}};
  FloatBox cdSegno{*this, "cdSegno", "Segno", {.least = -50, .most = 50, .decimals = 1}};
  TestoBox txtNome{*this, "txtNome", "Nome", {.longest = 10}};
  TestoBox txtNote{*this, "txtNote", "Note", {.longest = 20, .lines = 3}};
  FerriBox ferri{*this, "ferri", "Armatura"};
  DatePicker data{*this, "data", "Data", {1990, 1, 1}, {2029, 12, 31}};
  ListBox lista{*this, "lista", "Profilo", {"NP 80", "NP 100", "NP 120"}};
  Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};
  Button cmdFine{*this, "cmdFine", "&FINE", Button::Role::Close};
  int confirmed = 0, left = 0;
};

class EntryWidgets : public testing::Test {
 protected:
  EntryWidgets() {
    form_.Open();
    dialog_ = std::make_unique<FormDialog>(form_, nullptr);
    dialog_->open();
    QCoreApplication::processEvents();
  }
  ~EntryWidgets() override { dialog_->hide(); }
  QLineEdit* Line(const Control& control) {
    return dialog_->findChild<QLineEdit*>(ToQt(control.Name()));
  }
  QLineEdit* Enter(const Control& control) {
    Line(control)->setFocus(Qt::TabFocusReason);
    return Line(control);
  }
  std::string Text(const Control& control) { return FromQt(Line(control)->text()); }
  // Pastes over the whole content, or at the cursor.
  void Paste(const Control& control, const char* text, bool whole = true) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
    QLineEdit* line = Enter(control);
    whole ? line->selectAll() : line->end(false);
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
  }
  std::string Balloon() {
    const auto* label = dialog_->findChild<QLabel*>("avviso");
    return label != nullptr && label->isVisible() ? FromQt(label->text()) : std::string();
  }
  void Tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }

  EntryForm form_;
  std::unique_ptr<FormDialog> dialog_;
};

TEST_F(EntryWidgets, ThousandsPointsStandOnlyWhileTheFocusIsElsewhere) {
  QLineEdit* line = Enter(form_.cdImporto);
  EXPECT_EQ(line->text(), "");  // a zero is not in the way
  QTest::keyClicks(line, "1234567,5");
  EXPECT_EQ(form_.cdImporto.Value(), 1234567.5);
  EXPECT_EQ(Text(form_.cdImporto), "1234567,5");
  Tab();
  EXPECT_EQ(Text(form_.cdImporto), "1.234.567,5");
  EXPECT_EQ(form_.left, 1);
  Enter(form_.cdImporto);
  EXPECT_EQ(Text(form_.cdImporto), "1234567,5");
  EXPECT_EQ(line->selectedText(), "1234567,5");
}

TEST_F(EntryWidgets, TheKeypadPointIsTheComma) {
  QLineEdit* line = Enter(form_.cdImporto);
  QTest::keyClicks(line, "12");
  QTest::keyClick(line, Qt::Key_Period, Qt::KeypadModifier);
  QTest::keyClicks(line, "5");
  EXPECT_EQ(Text(form_.cdImporto), "12,5");
  EXPECT_EQ(form_.cdImporto.Value(), 12.5);
  line = Enter(form_.ciNumero);
  QTest::keyClicks(line, "12");
  QTest::keyClick(line, Qt::Key_Period, Qt::KeypadModifier);
  QTest::keyClicks(line, "5");
  EXPECT_EQ(Text(form_.ciNumero), "125");
}

TEST_F(EntryWidgets, PastedNumbersAreReadAsAWhole) {
  const std::pair<const char*, double> cases[] = {
      {"1936.27", 1936.27}, {"€ 12,30", 12.3}, {" 7 500,00\n", 7500}, {"0", 0}};
  for (const auto& [text, value] : cases) {
    Paste(form_.cdImporto, text);
    EXPECT_EQ(form_.cdImporto.Value(), value) << text;
    EXPECT_EQ(Balloon(), "") << text;
  }
  EXPECT_EQ(Text(form_.cdImporto), "0");
}

TEST_F(EntryWidgets, WhatIsNoNumberIsRefusedWithAReasonAndChangesNothing) {
  Paste(form_.cdImporto, "12,5");
  const std::string longText(5000, '9');
  for (const char* text : {"abc", "12a", "1.2.3", "€", "1936,275", longText.c_str()}) {
    Paste(form_.cdImporto, text);
    EXPECT_EQ(Text(form_.cdImporto), "12,5") << text;
    EXPECT_EQ(form_.cdImporto.Value(), 12.5) << text;
    EXPECT_NE(Balloon(), "") << text;
  }
  Paste(form_.ciNumero, "1936.27");
  EXPECT_EQ(Text(form_.ciNumero), "");
  EXPECT_EQ(Balloon(), "Il numero deve essere intero.");
}

TEST_F(EntryWidgets, WrongKeysAreToldAndLeaveTheDraft) {
  QLineEdit* line = Enter(form_.cdImporto);
  QTest::keyClicks(line, "1,x");
  EXPECT_EQ(Text(form_.cdImporto), "1,");
  EXPECT_EQ(Balloon(), "Qui si scrivono solo cifre e la virgola.");
  QTest::keyClicks(line, "25");
  EXPECT_EQ(Balloon(), "");
  QTest::keyClicks(line, "6");
  EXPECT_EQ(Text(form_.cdImporto), "1,25");
  EXPECT_EQ(Balloon(), "Il numero può avere al massimo 2 decimali.");
  QTest::keyClick(line, Qt::Key_Up);
  QTest::keyClick(line, Qt::Key_Down);
  EXPECT_EQ(Text(form_.cdImporto), "1,25");
}

TEST_F(EntryWidgets, AValueOutOfLimitsIsNotTakenAndStopsTheConfirmation) {
  form_.ciNumero.SetValue(7);
  QLineEdit* line = Enter(form_.ciNumero);
  QTest::keyClicks(line, "9000");
  EXPECT_EQ(form_.ciNumero.Value(), 7);
  EXPECT_EQ(Balloon(), "Il numero deve essere fra 0 e 5.000.");
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(form_.confirmed, 0);
  Tab();
  EXPECT_EQ(Text(form_.ciNumero), "9000");  // stays to be mended
  QTest::mouseClick(dialog_->ViewOf(form_.cmdOK).Field(), Qt::LeftButton);
  EXPECT_EQ(form_.confirmed, 0);
  EXPECT_TRUE(line->hasFocus());
  line->end(false);
  QTest::keyClick(line, Qt::Key_Backspace);
  EXPECT_EQ(form_.ciNumero.Value(), 900);
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(form_.confirmed, 1);
}

TEST_F(EntryWidgets, ADraftBelowTheLeastIsToldOnlyWhenTheFieldIsLeft) {
  QLineEdit* line = Enter(form_.ciMinimo);
  QTest::keyClicks(line, "3");
  EXPECT_EQ(Balloon(), "");
  EXPECT_EQ(form_.ciMinimo.Value(), 20);
  QTest::keyClicks(line, "5");
  EXPECT_EQ(form_.ciMinimo.Value(), 35);
  QTest::keyClick(line, Qt::Key_Backspace);
  Tab();
  EXPECT_EQ(Balloon(), "Il numero deve essere fra 10 e 99.");
  EXPECT_EQ(form_.ciMinimo.Value(), 20);  // the value from before
  // Leaving the form is always possible.
  QTest::mouseClick(dialog_->ViewOf(form_.cmdFine).Field(), Qt::LeftButton);
  EXPECT_FALSE(form_.IsOpen());
}

TEST_F(EntryWidgets, NegativeValuesWhereTheyAreAllowed) {
  QTest::keyClicks(Enter(form_.cdSegno), "-12,5");
  EXPECT_EQ(form_.cdSegno.Value(), -12.5);
  QTest::keyClicks(Enter(form_.cdImporto), "-");
  EXPECT_EQ(Balloon(), "Il numero non può essere negativo.");
}

TEST_F(EntryWidgets, TheFormMayGiveAnotherValueWhileTyping) {
  form_.ciNumero.onChange = [&] {
    if (form_.ciNumero.Value() > 100) form_.ciNumero.SetValue(100);
  };
  QTest::keyClicks(Enter(form_.ciNumero), "250");
  EXPECT_EQ(form_.ciNumero.Value(), 100);
  EXPECT_EQ(Text(form_.ciNumero), "100");
}

TEST_F(EntryWidgets, TextsAreLimitedAndToldSo) {
  QLineEdit* line = Enter(form_.txtNome);
  QTest::keyClicks(line, "Roccabruna");
  QTest::keyClicks(line, "x");
  EXPECT_EQ(form_.txtNome.Text(), "Roccabruna");
  EXPECT_EQ(Balloon(), "Il testo può avere al massimo 10 caratteri.");
  Paste(form_.txtNome, "a\tb\r\nc\n");
  EXPECT_EQ(form_.txtNome.Text(), "a b c");
  Paste(form_.txtNome, "e\u0301");  // a letter and its accent apart
  EXPECT_EQ(form_.txtNome.Text(), "é");
  Paste(form_.txtNome, "Ω");
  EXPECT_EQ(form_.txtNome.Text(), "é");
  EXPECT_NE(Balloon(), "");
}

TEST_F(EntryWidgets, SeveralLines) {
  auto* area = dialog_->findChild<QPlainTextEdit*>("txtNote");
  area->setFocus();
  QTest::keyClicks(area, "uno");
  QTest::keyClick(area, Qt::Key_Return);
  QTest::keyClicks(area, "due");
  EXPECT_EQ(form_.txtNote.Text(), "uno\ndue");
  EXPECT_EQ(form_.confirmed, 0);
  QGuiApplication::clipboard()->setText("01234567890123456789");
  area->paste();
  EXPECT_EQ(form_.txtNote.Text(), "uno\ndue");
  EXPECT_EQ(Balloon(), "Il testo può avere al massimo 20 caratteri.");
  QTest::keyClick(area, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(form_.txtNote.Text(), "uno\ndue");  // what was typed can still be undone
  QTest::keyClick(area, Qt::Key_Tab);
  EXPECT_TRUE(Line(form_.ferri)->hasFocus());
}

TEST_F(EntryWidgets, BarsMustBeComplete) {
  QLineEdit* line = Enter(form_.ferri);
  QTest::keyClicks(line, "2d16+");
  EXPECT_EQ(Balloon(), "");
  QTest::keyClicks(line, "x");
  EXPECT_EQ(Balloon(), FerriBox::Writing());
  Tab();
  EXPECT_EQ(Balloon(), FerriBox::Writing());
  line = Enter(form_.ferri);
  line->end(false);
  QTest::keyClicks(line, "1D10");
  EXPECT_NEAR(form_.ferri.Area(), 4.8066, 1e-4);
}

TEST_F(EntryWidgets, BarsAreCorrectedInTheirMiddle) {
  form_.ferri.SetText("2D16+2D12");
  QLineEdit* line = Enter(form_.ferri);
  line->setCursorPosition(4);
  for (int i = 0; i < 2; ++i) QTest::keyClick(line, Qt::Key_Backspace);
  EXPECT_EQ(line->text(), "2D+2D12");
  EXPECT_EQ(form_.ferri.Area(), 0);
  QTest::keyClicks(line, "20");
  EXPECT_NEAR(form_.ferri.Area(), 8.5451, 1e-4);
  line->home(false);
  for (int i = 0; i < 5; ++i) QTest::keyClick(line, Qt::Key_Delete);
  EXPECT_EQ(Balloon(), "");
  EXPECT_EQ(form_.ferri.Text(), "2D12");
}

TEST_F(EntryWidgets, DaysAreTypedInManyForms) {
  for (const char* text : {"5/3/2002", "05-03-02", "5.3.2002"}) {
    form_.data.SetValue({1999, 1, 1});
    QLineEdit* line = Enter(form_.data);
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, text);
    EXPECT_EQ(form_.data.Value(), (Date{2002, 3, 5})) << text;
    Tab();
    EXPECT_EQ(Text(form_.data), "05/03/2002");
  }
  QLineEdit* line = Enter(form_.data);
  QTest::keyClicks(line, "31/02/2002");
  EXPECT_NE(Balloon(), "");
  EXPECT_EQ(form_.data.Value(), (Date{2002, 3, 5}));
}

TEST_F(EntryWidgets, EnterConfirmsFromAFieldAndEscapeLeaves) {
  QLineEdit* line = Enter(form_.cdImporto);
  QTest::keyClicks(line, "8");
  QTest::keyClick(line, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(form_.confirmed, 1);
  EXPECT_EQ(form_.cdImporto.Value(), 8);
  Paste(form_.cdImporto, "5", false);
  EXPECT_EQ(form_.cdImporto.Value(), 85);
  QTest::keyClick(line, Qt::Key_Escape);
  EXPECT_FALSE(form_.IsOpen());
  EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(EntryWidgets, AListIsGoneThroughWithKeys) {
  auto* list = dialog_->findChild<QWidget*>("lista");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(form_.lista.Index(), 2);
}

}  // namespace
}  // namespace orm
