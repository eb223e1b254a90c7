// Plays scripts by the plain player, without Qt: for the sanitizers, and for quick loops.
#include <iostream>

#include "script/run_scripts.h"

int main(int count, char** words) {
  std::vector<std::string> scripts(words + 1, words + count);
  orm::ScriptOptions options;
  options.output = &std::cout;
  if (!scripts.empty() && scripts.front() == "--aggiorna") {
    options.update = true;
    scripts.erase(scripts.begin());
  }
  return orm::RunScripts(scripts, orm::BuildPlainStage, options, std::cout);
}
