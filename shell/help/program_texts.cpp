#include "shell/help/program_texts.h"

#include <unistd.h>

#include <algorithm>
#include <string>

#include "runtime/version.h"
#include "shell/help/help_texts.h"

namespace orm {

std::string_view ProgramText(std::string_view program) {
  const std::string file = "programs/" + std::string(program) + ".txt";
  for (const HelpText& text : ProgramTexts())
    if (text.file == file) return text.text;
  return {};
}

std::string_view ProgramUsage(std::string_view program) {
  std::string_view text = ProgramText(program);
  text.remove_prefix(std::min(text.find("Uso:"), text.size()));
  return text.substr(0, text.find("\n\n") + 1);
}

bool AnswersForItself(std::string_view program, int count, char** words) {
  std::string answer;
  for (int i = 1; i < count && answer.empty() && words[i] != std::string_view("--"); ++i) {
    const std::string_view word = words[i];
    if (word == "--help") answer = ProgramText(program);
    if (word == "--version") answer = std::string(program) + " " + std::string(kVersione) + "\n";
  }
  return !answer.empty() && ::write(STDOUT_FILENO, answer.data(), answer.size()) > 0;
}

}  // namespace orm
