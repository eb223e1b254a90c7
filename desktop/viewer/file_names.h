// Asking for the name of a file to write or to read.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "desktop/export/export.h"

class QFileDialog;

namespace orm {

// What a question for a name tells and proposes.
struct NameQuestion {
  QString title, filter;
  QString suffix;  // of a name that is given without one
  QString name;    // proposed
};

// What the person chooses in the dialog, whose captions become Italian; empty when nothing.
QStringList ChosenIn(QFileDialog& dialog, const QString& accept);

// The path that the person gives, beginning in `folder`; empty when there is none.
QString AskFileName(QWidget* parent, const QString& folder, const NameQuestion& question);

// The path of a file to show; empty when there is none.
QString AskFileToOpen(QWidget* parent, const QString& folder);

// The question for a copy, which proposes `name` with the ending of its kind.
NameQuestion NameOfCopy(CopyKind kind, const QString& name);

}  // namespace orm
