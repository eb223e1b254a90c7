// What a person may type: numbers, bars, texts, days.
#include <gtest/gtest.h>

#include "dialogs/bars.h"
#include "dialogs/drawing/svg.h"
#include "dialogs/form.h"
#include "dialogs/lavagna.h"
#include "dialogs/number_entry.h"
#include "runtime/dates.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

const NumberLimits kEuro{.most = 99999999.99, .decimals = 2};
const NumberLimits kLire{.most = 9999999999.0, .decimals = 0};
const char* const kUnclear =
    "Così il numero non è chiaro: le migliaia si separano con il punto, i decimali con la virgola.";

// A pasted number never lands ten or a thousand times off.
TEST(ReadNumber, KnowsPointsFromCommas) {
  EXPECT_EQ(ReadNumber("1936.27", kEuro).value, 1936.27);
  EXPECT_EQ(ReadNumber("1.500", kEuro).value, 1500);
  EXPECT_EQ(ReadNumber("1.234.567,5", kEuro).value, 1234567.5);
  EXPECT_EQ(ReadNumber("1,234,567.5", kEuro).value, 1234567.5);
  EXPECT_EQ(ReadNumber("1,5", kEuro).value, 1.5);
  EXPECT_EQ(ReadNumber(",5", kEuro).value, 0.5);
  EXPECT_EQ(ReadNumber("€ 1.234,50\n", kEuro).value, 1234.5);
  EXPECT_EQ(ReadNumber("12.5", kEuro).value, 12.5);
  EXPECT_EQ(ReadNumber("", kEuro).value, 0);
  EXPECT_EQ(ReadNumber("450000,00", kLire).value, 450000);
  EXPECT_EQ(ReadNumber("450000.00", kLire).value, 450000);
  for (const char* text : {"L. 1.234.567,00\u00A0\r\n", "Lit. 1.234.567.=", "1 234 567",
                           "1.234.567,-", "1,234,567.00 EUR", "LIRE 1\u00A0234\u00A0567"})
    EXPECT_EQ(ReadNumber(text, kLire).value, 1234567) << text;
}

TEST(ReadNumber, SaysWhyNot) {
  EXPECT_EQ(ReadNumber("1936.27", kLire).objection, "Il numero deve essere intero.");
  EXPECT_EQ(ReadNumber("abc", kLire).objection, "Non è un numero.");
  EXPECT_EQ(ReadNumber("1.50.000", kEuro).objection,
            "I punti delle migliaia non sono al loro posto.");
  EXPECT_EQ(ReadNumber("1,005", kEuro).objection, kUnclear);
  EXPECT_EQ(ReadNumber("450,000", kLire).objection, kUnclear);
  EXPECT_EQ(ReadNumber("1234,567", kEuro).objection, "Il numero può avere al massimo 2 decimali.");
  EXPECT_EQ(ReadNumber("10000000000", kLire).objection,
            "Il numero deve essere fra 0 e 9.999.999.999.");
  EXPECT_EQ(ReadNumber("-5", kEuro).objection, "Il numero non può essere negativo.");
  for (const char* text :
       {",", ".", "-", "1,2,3", "1..5", ".500.", "1e5", "１２", "12 50", "8 L. 5"})
    EXPECT_FALSE(ReadNumber(text, kEuro).value.has_value()) << text;
  EXPECT_FALSE(ReadNumber("450.00", kLire).value.has_value());
}

TEST(GroupThousands, KeepsThePlaceOfTheCaret) {
  const struct {
    const char *before, *after;  // the caret is '|'
  } cases[] = {{"1234|", "1.234|"},         {"1.29|34", "12.9|34"},
               {"|1234567", "|1.234.567"},  {"-1234,567|8", "-1.234,567|8"},
               {"1.23|", "123|"},           {"0001|234", "0001|234"},
               {"1.234,5.6|", "1.234,5.6|"}};
  for (const auto& [before, after] : cases) {
    std::string draft = before;
    std::size_t caret = draft.find('|');
    draft.erase(caret, 1);
    GroupThousands(draft, caret);
    EXPECT_EQ(draft.insert(caret, "|"), after);
  }
}

TEST(AdmitsDraft, TakesNothingButNumbers) {
  EXPECT_TRUE(AdmitsDraft("1.234,5", kEuro));
  EXPECT_TRUE(AdmitsDraft("-1,2", kLire));  // to be told why, and never to be 12
  EXPECT_FALSE(AdmitsDraft("1a", kLire));
}

TEST(ReadNumber, ReadsBackWhatIsShown) {
  for (const double value : {0.0, 0.5, 7.25, 999.0, 1000.0, 1234567.89, 99999999.99}) {
    EXPECT_EQ(ReadNumber(ShownNumber(value, kEuro), kEuro).value, value);
    EXPECT_EQ(ReadNumber(DraftNumber(value, kEuro), kEuro).value, value);
  }
  EXPECT_EQ(ShownNumber(1234.5, {.decimals = 2, .trailingZeros = true}), "1.234,50");
}

TEST(Bars, GiveTheirArea) {
  EXPECT_NEAR(BarsArea("2D16+2D12"), 2 * 2.010619298297468 + 2 * 1.1309733552923256, 1e-12);
  EXPECT_EQ(BarsArea(" 2 d 16 + 2D12"), BarsArea("2D16+2D12"));
  for (const char* text : {"", "0"}) EXPECT_TRUE(IsBarsText(text) && BarsArea(text) == 0) << text;
  for (const char* text : {"2D", "D16", "2D16+", "2X16", "2D16 2D12+", "0D16"})
    EXPECT_TRUE(!IsBarsText(text) && BarsArea(text) == 0) << text;
  for (const char* text : {"2", "2D", "D16", "2D16++3", "2D+2D12"})
    EXPECT_TRUE(AdmitsBarsDraft(text)) << text;
  for (const char* text : {"2E", "a", "2D1,6"}) EXPECT_FALSE(AdmitsBarsDraft(text)) << text;
}

TEST(Dates, AreRealDays) {
  EXPECT_EQ(ParseDate("15/03/2002"), (Date{2002, 3, 15}));
  EXPECT_EQ(ParseDate("1-2-29"), (Date{2029, 2, 1}));
  EXPECT_EQ(ParseDate("1.2.30"), (Date{1930, 2, 1}));
  EXPECT_EQ(ParseDate("29/02/2000"), (Date{2000, 2, 29}));
  for (const char* text :
       {"29/02/1900", "31/4/2002", "0/1/2002", "1/13/2002", "15/03", "15/03/200", "x", "1/1/2002 "})
    EXPECT_FALSE(ParseDate(text)) << text;
  EXPECT_EQ(DayNumber({2000, 3, 1}) - DayNumber({2000, 2, 28}), 2);
}

// A form with one of each, to try their rules without a player.
struct Sample : Form {
  Sample() : Form("frmProva", "") {
    SetContent(Column({Group(frame, {Fields({text, whole})}), one, two, combo, day, slider}));
  }
  Frame frame{*this, "frame"};
  TestoBox text{*this, "text", "Testo", {.longest = 5}};
  InterBox whole{*this, "whole", "Intero", {.most = 99}};
  OptionGroup group;
  OptionButton one{*this, "one", "Uno", group}, two{*this, "two", "Due", group};
  ComboBox combo{*this, "combo", "Lista", {"a", "b"}};
  DatePicker day{*this, "day", "Giorno", {2000, 1, 1}, {2000, 12, 31}};
  Slider slider{*this, "slider", "Cursore", 10, 20, 10};
};

TEST(Controls, TakeOnlyWhatTheyAdmit) {
  Sample form;
  EXPECT_EQ(form.text.Enter("àbc€"), "");
  EXPECT_NE(form.text.Enter("abcdef"), "");
  EXPECT_NE(form.text.Enter("Ω"), "");
  EXPECT_NE(form.text.Enter("a\nb"), "");
  EXPECT_EQ(form.text.Text(), "àbc€");
  EXPECT_NE(form.whole.Enter("100"), "");
  EXPECT_EQ(form.whole.Enter("42"), "");
  EXPECT_EQ(form.combo.Enter("#1"), "");
  EXPECT_NE(form.combo.Enter("#2"), "");
  EXPECT_NE(form.combo.Enter("c"), "");
  EXPECT_EQ(form.combo.ShownText(), "b");
  EXPECT_NE(form.day.Enter("01/01/2001"), "");
  EXPECT_EQ(form.day.Enter("31/02/2000"), "Il giorno 31/02/2000 non c'è nel calendario.");
  EXPECT_EQ(form.day.Enter("31/02/200"), DatePicker::Writing());
  form.day.SetValue({2005, 5, 5});
  EXPECT_EQ(form.day.ShownText(), "31/12/2000");
  EXPECT_EQ(form.slider.Enter("15"), "");
  EXPECT_EQ(form.slider.Position(), 5);
}

TEST(Controls, OptionsExcludeEachOtherAndFramesCount) {
  Sample form;
  form.one.SetValue(true);
  int changes = 0;
  form.one.onChange = form.two.onChange = [&changes] { ++changes; };
  form.two.Enter("on");
  EXPECT_FALSE(form.one.Value());
  EXPECT_EQ(form.group.Chosen(), 1);
  EXPECT_EQ(changes, 2);
  form.frame.SetVisible(false);
  EXPECT_FALSE(form.text.IsShown());
  EXPECT_TRUE(form.text.OwnVisible());
  EXPECT_EQ(form.FirstFocus(), &form.one);
}

TEST(Lavagna, KeepsItsOperationsAsTextAndSvg) {
  Sample form;
  Lavagna panel(form, "Lavagna", 30, 10);
  panel.SetColour({0, 0, 255});
  panel.DrawLine(1, 1, 2.5, 1);
  panel.DrawText(1, 2, "a < b");
  panel.DrawLine(0, 0, std::numeric_limits<double>::quiet_NaN(), 1);
  EXPECT_EQ(panel.AsText(),
            "scale 0 0 30 10\nbackground 255,255,255\nline 1 1 2.5 1 width 1 colour 0,0,255\n"
            "text 1 2 \"a < b\" font 10 colour 0,0,255\n");
  EXPECT_NE(SvgOf(panel, 300).find("<line x1=\"10\" y1=\"90\" x2=\"25\" y2=\"90\""),
            std::string::npos);
  EXPECT_NE(SvgOf(panel, 300).find("a &lt; b"), std::string::npos);
}

}  // namespace
}  // namespace orm
