// The programs that the desk starts.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace orm {

// Starts a program of ours in a folder and goes on; false when it cannot be started.
bool StartProgram(const QString& name, const QStringList& arguments, const QString& folder);

using ProgramStart = std::function<decltype(StartProgram)>;

// What came of opening a job.
enum class Opened {
  Started,
  BroughtForward,  // the orm2002 that works there was asked to come forward
  InUse,           // by a program that has no window to bring forward
  Failed
};
Opened OpenIn(const QString& folder, const ProgramStart& start);

}  // namespace orm
