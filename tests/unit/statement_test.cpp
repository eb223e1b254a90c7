// Scripts as they are read: several statements on a line, rounds written out, and what is refused.
#include "script/statement.h"

#include <gtest/gtest.h>

namespace orm {
namespace {

std::string Read(std::string_view text) {
  std::string out;
  for (const Statement& s : ParseScript(text)) {
    out += std::to_string(s.line) + ":";
    for (const Word& w : s.words) out += w.text + " ";
    out.back() = ';';
  }
  return out;
}

TEST(ParseScript, ALineHoldsSeveralStatements) {
  EXPECT_EQ(Read("copy A B as C D\n dialog F set a 1 b \"set\" press X expect c 2 d \"\" close"),
            "1:copy A;1:copy B as C;1:copy D;2:dialog F;2:set a 1;2:set b set;2:press X;"
            "2:expect c 2;2:expect d ;2:close;");
  EXPECT_EQ(Read("same A B compare A B with C message T U ok menu M"),
            "1:same A;1:same B;1:compare A;1:compare B with C;1:message T U ok;1:menu M;");
}

TEST(ParseScript, WritesRoundsOutAndKeepsTheirLines) {
  EXPECT_EQ(Read("repeat 2\n  dialog A press B\n  repeat 2\n    close\n  end\nend\nmenu M"),
            "2:dialog A;2:press B;4:close;4:close;2:dialog A;2:press B;4:close;4:close;7:menu M;");
  EXPECT_EQ(Read("repeat 1\nclose\nend\nrepeat 3\nend\ndialog A close"),
            "2:close;6:dialog A;6:close;");
  EXPECT_EQ(Read("repeat 2 dialog A close end"), "1:dialog A;1:close;1:dialog A;1:close;");
}

TEST(ParseScript, RefusesWithTheLine) {
  const auto line = [](std::string_view text) {
    try {
      ParseScript(text);
    } catch (const Mismatch& mismatch) {
      return mismatch.line;
    }
    return 0;
  };
  for (const char* text :
       {"close\nend", "close\nrepeat 2\nclose", "#\nrepeat 0\nend", "#\nrepeat 1,5\nend",
        "#\nrepeat due\nend", "#\ndialog A set b", "#\ndialog A press", "\ndialog A close B",
        "#\ndialog A \"press\" B", "#\nset A 1 B", "#\ncopy A as", "#\npress A B"})
    EXPECT_EQ(line(text), 2) << text;
  EXPECT_EQ(line("repeat 1000\nrepeat 1000\nclose\nend\nend"), 5) << "too many statements";
}

}  // namespace
}  // namespace orm
