// What the parts of a form's layout are: fields, lines, tables, blocks with a title or a drawing.
#pragma once

#include <vector>

#include "dialogs/form.h"

namespace orm {

bool IsField(Control::Kind kind);
// A field, or a label that is seen.
bool IsFieldItem(const Layout& part);

// A Row that stands with others of its kind like the lines of a table: a box or a field, and what
// belongs to it.
bool IsLine(const Layout& part);
const Layout& FirstOf(const Layout& line);

// Lines of several fields below a line of labels alone.
bool IsTable(const std::vector<Layout>& lines);

// A group with a title, or a block that begins with one; then that group.
bool HasTitle(const Layout& part);
const Layout& TitledGroup(const Layout& part);
bool HoldsDrawing(const Layout& part);

}  // namespace orm
