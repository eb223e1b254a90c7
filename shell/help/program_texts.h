// What each program says of itself on a terminal. The texts are docs/programs/NAME.txt, of which
// the manual pages are made too.
#pragma once

#include <string_view>

namespace orm {

// The whole text; empty for a program that has none.
std::string_view ProgramText(std::string_view program);

// Its usage, "Uso:" with the lines below it, each with its line end.
std::string_view ProgramUsage(std::string_view program);

// Answers --help and --version, up to a "--", on standard output; true when there is nothing more
// to do.
bool AnswersForItself(std::string_view program, int count, char** words);

}  // namespace orm
