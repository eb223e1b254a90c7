// What every form on the screen must hold to: for tests.
#pragma once

#include <string>
#include <vector>

namespace orm {

class FormDialog;

// The faults of a shown dialog, each as a sentence that names the control; empty when there are
// none: the rules of its model, every field named for a screen reader, the Tab key in the order on
// the screen, nothing cut off, and the whole no greater than the least screen.
std::vector<std::string> LintForm(const FormDialog& dialog);

}  // namespace orm
