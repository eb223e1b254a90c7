// What every form on the screen must hold to: for tests.
#pragma once

#include <string>
#include <vector>

namespace orm {

class FormDialog;

// The faults of a shown dialog, each as a sentence that names the control; empty when there are
// none: every control named and in the layout, the Tab key in reading order, keys used once, one
// default button at most, nothing cut off, and the whole no greater than the least screen.
std::vector<std::string> LintForm(const FormDialog& dialog);

}  // namespace orm
