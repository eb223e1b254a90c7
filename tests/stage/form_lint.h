// What every form on the screen must hold to: for tests.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace orm {

class FormDialog;

// The faults of a shown dialog, each as a sentence that names the control; empty when there are
// none: the rules of its model, every field named for a screen reader, the Tab key in the order on
// the screen, nothing cut off, and the whole no greater than the least screen.
std::vector<std::string> LintForm(const FormDialog& dialog);

// The same of a window without a model: texts cut off, letters of two captions alike, fields
// without a name, more than one default button, the Tab key against the order on the screen.
std::vector<std::string> LintWindow(const QWidget& window);

}  // namespace orm
