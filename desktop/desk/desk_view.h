// Tables and labels as the desk has them.
#pragma once

#include <QString>

class QLabel;
class QTableView;

namespace orm {

// A label of plain text that folds.
QLabel* DeskLabel(const char* name);

// A table of whole rows, one of which is chosen; it is read, not written in.
void DressDeskTable(QTableView& table, const char* name, const QString& accessible);

// The column gives way to the others while the table is narrower than so many characters.
void ShowWithRoom(QTableView& table, int column, int characters);

}  // namespace orm
