// Fields under real keys, pastes and moves of the focus.
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <map>
#include <memory>

#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "tariff/forms/amount_box.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

class EntryForm : public Form {
 public:
  EntryForm() : Form("frmCampi", "Campi") {
    SetContent(Column({cdImporto, ciNumero, ciMinimo, cdSegno, ciLire, cdEuro, cdFine, txtNome,
                       txtNote, ferri, data, lista, Buttons({cmdOK, cmdFine})}));
    ciMinimo.SetValue(20);
    cmdOK.onPress = [this] { ++confirmed; };
    cmdFine.onPress = [this] { Close(); };
    cdImporto.onLeave = [this] { ++left; };
  }
  FloatBox cdImporto{*this, "cdImporto", "Importo", {.most = 999999999.99}};
  InterBox ciNumero{*this, "ciNumero", "Numero", {.most = 5000}};
  InterBox ciMinimo{*this, "ciMinimo", "Minimo", {.least = 10, .most = 99}};
  FloatBox cdSegno{*this, "cdSegno", "Segno", {.least = -50, .most = 50, .decimals = 1}};
  InterBox ciLire{*this, "ciLire", "Lire", kLavori.lire};
  FloatBox cdEuro{*this, "cdEuro", "Euro", kLavori.euro};
  FloatBox cdFine{*this, "cdFine", "Fine", {.most = 9999, .decimals = 5, .advised = 30}};
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
    for (const QLabel* label : dialog_->findChildren<QLabel*>("avviso"))
      if (label->isVisible()) return FromQt(label->text());
    return {};
  }
  // Keys as a person has them: '@' is the point of the keypad, '<' Backspace, '>' Delete, '{' Home,
  // '}' End, '~' an arrow to the left.
  static void Keys(QWidget* field, const char* keys) {
    const std::map<char, Qt::Key> others = {{'<', Qt::Key_Backspace},
                                            {'>', Qt::Key_Delete},
                                            {'{', Qt::Key_Home},
                                            {'}', Qt::Key_End},
                                            {'~', Qt::Key_Left}};
    for (; *keys != 0; ++keys)
      if (*keys == '@')
        QTest::keyClick(field, Qt::Key_Period, Qt::KeypadModifier);
      else if (const auto key = others.find(*keys); key != others.end())
        QTest::keyClick(field, key->second);
      else
        QTest::keyClick(field, *keys);
  }
  // What is given in is this value and shown so, or is red, told why, and confirms nothing.
  void Holds(NumberBox& box, const char* given, const char* shown) {
    SCOPED_TRACE(box.Name() + " " + given);
    const std::string told = Text(box);
    const int before = form_.confirmed;
    QTest::keyClick(Line(box), Qt::Key_Return);
    const bool red = std::string_view(shown) == "rosso";
    EXPECT_EQ(form_.confirmed, red ? before : before + 1);
    EXPECT_EQ(dialog_->ViewOf(box).Objection().empty(), !red);
    EXPECT_EQ(Balloon(), dialog_->ViewOf(box).Objection());
    if (red) {
      Tab();
      EXPECT_EQ(Text(box), told);  // stays as it was typed, with its note
      EXPECT_NE(Balloon(), "");
    } else {
      Tab();
      EXPECT_EQ(Text(box), shown);
      EXPECT_EQ(box.ShownText(), shown);
    }
    box.SetValue(1);
    box.SetValue(0);
  }
  void Tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }

  EntryForm form_;
  std::unique_ptr<FormDialog> dialog_;
};

TEST_F(EntryWidgets, DigitsGroupWhileOneTypesAndTheCaretStays) {
  QLineEdit* line = Enter(form_.cdImporto);
  EXPECT_EQ(line->text(), "");  // a zero is not in the way
  Keys(line, "1234567,5");
  EXPECT_EQ(form_.cdImporto.Value(), 1234567.5);
  EXPECT_EQ(Text(form_.cdImporto), "1.234.567,5");
  const struct {
    const char *keys, *text;
    int caret;
  } steps[] = {{"~~~<", "123.457,5", 6}, {"8", "1.234.587,5", 8}, {"~~~<", "123.587,5", 4},
               {"{>", "23.587,5", 0},    {"9", "923.587,5", 1},   {"}0", "923.587,50", 10},
               {"{~>>>", "587,50", 0}};
  for (const auto& [keys, text, caret] : steps) {
    Keys(line, keys);
    EXPECT_EQ(FromQt(line->text()), text) << keys;
    EXPECT_EQ(line->cursorPosition(), caret) << keys;
  }
  QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form_.cdImporto.Value(), 0);  // back to what was there
  Keys(line, "1500");
  Tab();
  EXPECT_EQ(form_.left, 1);
  Enter(form_.cdImporto);
  EXPECT_EQ(line->selectedText(), "1.500");
}

// No value is ever ten, a hundred or a thousand times off, whatever marks a hand or a clipboard
// has.
TEST_F(EntryWidgets, EveryWayOfTypingANumber) {
  const struct {
    NumberBox& box;
    const char *keys, *shown;
  } cases[] = {
      {form_.ciLire, "450000,00", "450.000"},   {form_.ciLire, "12500,75", "rosso"},
      {form_.ciLire, "450000.00", "450.000"},   {form_.ciLire, "450000@00", "450.000"},
      {form_.ciLire, "1.234.567", "1.234.567"}, {form_.ciLire, "1,234,567", "1.234.567"},
      {form_.ciLire, "1@234@567", "1.234.567"}, {form_.ciLire, "450,000", "rosso"},
      {form_.ciLire, "450.000", "450.000"},     {form_.ciLire, "450.00", "rosso"},
      {form_.ciLire, "12@5", "rosso"},          {form_.ciLire, "-5", "rosso"},
      {form_.ciLire, "1234567890123", "rosso"}, {form_.ciLire, "12500,75<<<", "12.500"},
      {form_.ciLire, "1234.5", "rosso"},        {form_.ciLire, "0001234", "1.234"},
      {form_.ciLire, "1.234<<<<567", "1.567"},  {form_.cdEuro, "1936.27", "1.936,27"},
      {form_.cdEuro, "1234,5", "1.234,50"},     {form_.cdEuro, "1.234,50", "1.234,50"},
      {form_.cdEuro, "1,234.50", "1.234,50"},   {form_.cdEuro, "1234567@89", "1.234.567,89"},
      {form_.cdEuro, "12,345", "rosso"},        {form_.cdEuro, "1,500", "rosso"},
      {form_.cdEuro, "1.500", "1.500,00"},      {form_.cdEuro, "1000000000", "rosso"},
      {form_.cdEuro, "12,5,5", "rosso"},        {form_.cdEuro, ",5", "0,50"},
      {form_.cdEuro, "1234,000", "1.234,00"},   {form_.cdFine, "0.500", "0,5"},
      {form_.cdFine, "1.23456", "1,23456"},     {form_.cdFine, "1,500", "1,5"},
      {form_.cdFine, "12,345678", "rosso"},     {form_.cdSegno, "-12,5", "-12,5"},
      {form_.cdSegno, "12-5", "rosso"},         {form_.ciNumero, "12,0", "12"},
      {form_.ciNumero, "50000", "rosso"},       {form_.cdImporto, "999999999,99", "999.999.999,99"},
  };
  for (const auto& [box, keys, shown] : cases) {
    Keys(Enter(box), keys);
    Holds(box, keys, shown);
  }
}

TEST_F(EntryWidgets, EveryWayOfPastingANumber) {
  const struct {
    NumberBox& box;
    const char *text, *shown;
  } cases[] = {
      {form_.ciLire, "L. 1.234.567,00\u00A0\n", "1.234.567"},
      {form_.ciLire, "1.234.567", "1.234.567"},
      {form_.ciLire, "Lit. 1.500.=", "1.500"},
      {form_.ciLire, "450000", "450.000"},
      {form_.ciLire, "12500,75", "rosso"},
      {form_.ciLire, "450,000", "rosso"},
      {form_.ciLire, "1936.27", "rosso"},
      {form_.ciLire, "1\u202F234\u202F567", "1.234.567"},
      {form_.cdEuro, "1936.27", "1.936,27"},
      {form_.cdEuro, "€ 12,30", "12,30"},
      {form_.cdEuro, " 7 500,00\n", "7.500,00"},
      {form_.cdEuro, "1.2.3", "rosso"},
      {form_.cdEuro, "1936,275", "rosso"},
      {form_.cdEuro, "0", "0,00"},
  };
  for (const auto& [box, text, shown] : cases) {
    Paste(box, text);
    Holds(box, text, shown);
  }
  // Into figures that are there: what stands around it counts too.
  Keys(Enter(form_.ciLire), "1234");
  Paste(form_.ciLire, "56", false);
  EXPECT_EQ(form_.ciLire.Value(), 123456);
  QTest::keyClick(Line(form_.ciLire), Qt::Key_A, Qt::ControlModifier);
  Paste(form_.ciLire, "123.45", true);
  EXPECT_NE(dialog_->ViewOf(form_.ciLire).Objection(), "");
  Keys(Enter(form_.cdEuro), "1234");
  Paste(form_.cdEuro, "5,60", false);
  EXPECT_EQ(form_.cdEuro.Value(), 12345.6);
}

TEST_F(EntryWidgets, WhatIsNoNumberIsRefusedWithAReasonAndChangesNothing) {
  Paste(form_.cdImporto, "12,5");
  const std::string longText(5000, '9');
  for (const char* text : {"abc", "12a", "€", "8 L. 5", longText.c_str()}) {
    Paste(form_.cdImporto, text);
    EXPECT_EQ(Text(form_.cdImporto), "12,5") << text;
    EXPECT_EQ(form_.cdImporto.Value(), 12.5) << text;
    EXPECT_NE(Balloon(), "") << text;
  }
}

TEST_F(EntryWidgets, WrongKeysAreToldAndLeaveTheDraft) {
  QLineEdit* line = Enter(form_.cdImporto);
  QTest::keyClicks(line, "1,x");
  EXPECT_EQ(Text(form_.cdImporto), "1,");
  EXPECT_EQ(Balloon(), "Qui si scrivono solo cifre e la virgola.");
  QTest::keyClicks(line, "25");
  EXPECT_NE(Balloon(), "");  // who types on without looking still finds it
  QTest::keyClicks(line, "67");
  EXPECT_EQ(Text(form_.cdImporto), "1,2567");
  EXPECT_EQ(Balloon(), "Il numero può avere al massimo 2 decimali.");
  QTest::keyClicks(line, "k");
  EXPECT_EQ(Balloon(), "Qui si scrivono solo cifre e la virgola.");
  QTest::keyClick(line, Qt::Key_Up);
  QTest::keyClick(line, Qt::Key_Down);
  EXPECT_EQ(Text(form_.cdImporto), "1,2567");
}

TEST_F(EntryWidgets, ACaptionsLimitOnlyMarksTheValue) {
  QLineEdit* line = Enter(form_.cdFine);
  for (const auto& [keys, marked] : {std::pair("30", false), std::pair("0", true)}) {
    QTest::keyClicks(line, keys);
    EXPECT_EQ(line->palette().color(QPalette::Base) == AdviceBase(line->palette()), marked) << keys;
  }
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(form_.confirmed, 1);
  EXPECT_EQ(form_.cdFine.Value(), 300);
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
  EXPECT_EQ(Text(form_.ciNumero), "9.000");  // stays to be mended
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
  QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
  Keys(line, "3@2@02");
  EXPECT_EQ(form_.data.Value(), (Date{2002, 2, 3}));
  Paste(form_.data, " 05/03/2002\u00A0\n");
  EXPECT_EQ(form_.data.Value(), (Date{2002, 3, 5}));
  QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(line, "31/02/20");
  EXPECT_EQ(Balloon(), "");
  QTest::keyClicks(line, "02");
  EXPECT_EQ(Balloon(), "Il giorno 31/02/2002 non c'è nel calendario.");
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
