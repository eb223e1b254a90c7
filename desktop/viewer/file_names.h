// Asking for the name of a file to write.
#pragma once

#include <QString>
#include <QWidget>

#include "desktop/export/export.h"

namespace orm {

// What a question for a name tells and proposes.
struct NameQuestion {
  QString title, filter;
  QString suffix;  // of a name that is given without one
  QString name;    // proposed
};

// The path that the person gives, beginning in `folder`; empty when there is none.
QString AskFileName(QWidget* parent, const QString& folder, const NameQuestion& question);

// The question for a copy of the report called `report`.
NameQuestion NameOfCopy(CopyKind kind, const QString& report);

}  // namespace orm
