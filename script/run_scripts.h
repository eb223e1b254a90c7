// Runs scripts one after the other, each in a fresh working folder of its own.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "script/script_player.h"

namespace orm {

// One script in a working folder of its own: the first mismatch, at line 0 when it cannot be played
// at all, or nothing.
std::optional<Mismatch> RunScript(const std::string& path, const StageBuilder& build,
                                  const ScriptOptions& options);

// Prints each mismatch with script and line, and at the end how many held. Returns the exit code:
// 0 all held, 1 a mismatch.
int RunScripts(const std::vector<std::string>& paths, const StageBuilder& build,
               const ScriptOptions& options, std::ostream& output);

}  // namespace orm
