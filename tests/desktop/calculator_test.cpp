// The calculator under the keys of the keyboard and of the keypad.
#include <QPlainTextEdit>

#include "desktop/qt_text.h"
#include "tests/desktop/test_player.h"
#include "utilities/form_calculator.h"

namespace orm {
namespace {

// The keys of a text, from either part of the keyboard; '#' is Enter.
void Keys(const char* keys, Qt::KeyboardModifiers pad) {
  for (; *keys != 0; ++keys)
    if (*keys == '#')
      QTest::keyClick(QApplication::focusWidget(), pad ? Qt::Key_Enter : Qt::Key_Return, pad);
    else
      QTest::keyClick(QApplication::focusWidget(), *keys, pad);
}

TEST(Calculator, ReckonsByKeysAlone) {
  const struct {
    const char *keys, *shown;
  } cases[] = {{"12.5*8=", "100"}, {"12,5x8=", "100"}, {"100/8#", "12,5"},
               {"7:2=", "3,5"},    {"1-3=", "-2"},     {"-5+2=", "-3"},
               {"2+3=4+1=", "5"},  {"2+3=*2=", "10"},  {"1234567,5+,5=", "1.234.568"},
               {"1+2+3=", "6"},    {"1.500+1=", "2,5"}};
  for (const Qt::KeyboardModifiers pad :
       {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::KeypadModifier)})
    for (const auto& example : cases) {
      const auto& keys = example.keys;
      const auto& shown = example.shown;
      TestPlayer player;
      RunState stato(player, WorkFolder("."));
      FrmUtiCalcolatrice form(stato);
      player.onForm = [&](FormDialog& dialog) {
        Keys(keys, pad);
        EXPECT_EQ(dialog.ViewOf(form.cdNumero).Shown(), shown) << keys;
        EXPECT_TRUE(dialog.ViewOf(form.cdNumero).Field()->hasFocus()) << keys;
        EXPECT_FALSE(form.Text1.Text().empty());
      };
      player.Show(form);
    }
}

TEST(Calculator, EscapeForgetsAndThenLeaves) {
  TestPlayer player;
  RunState stato(player, WorkFolder("."));
  FrmUtiCalcolatrice form(stato);
  player.onForm = [&](FormDialog& dialog) {
    Keys("5+", {});
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    ASSERT_TRUE(form.IsOpen());
    Keys("3=", {});
    EXPECT_EQ(form.cdNumero.Value(), 3);  // nothing is left of the 5
    auto* tape = dialog.findChild<QPlainTextEdit*>("Text1");
    tape->moveCursor(QTextCursor::Start);
    QTest::mouseClick(tape->viewport(), Qt::LeftButton, {}, tape->cursorRect().center());
    EXPECT_EQ(form.cdNumero.Value(), 5);
    Keys("+1=", {});
    EXPECT_EQ(form.cdNumero.Value(), 6);
    Keys("5,5,5", {});
    EXPECT_NE(dialog.ViewOf(form.cdNumero).Objection(), "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(dialog.ViewOf(form.cdNumero).Shown() + dialog.ViewOf(form.cdNumero).Objection(), "0");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(form.IsOpen());
  };
  player.Show(form);
}

}  // namespace
}  // namespace orm
