// The programs that a person has chosen on this computer. EDITOR.PER comes with a folder, which may
// come from somebody else: what it names is not started unasked.
#pragma once

#include <string>

namespace orm {

// The program that a name stands for as seen from the working folder: a path, or a command that the
// system knows. Empty when there is no such program.
std::string WholePath(const std::string& program, const std::string& folder);

// A program that came with the folder, by itself or through a link: it is never started.
bool LiesIn(const std::string& wholePath, const std::string& folder);

// The memory lies with the settings of the user, outside of every working folder.
bool IsChosen(const std::string& wholePath);
void RememberChosen(const std::string& wholePath);

}  // namespace orm
