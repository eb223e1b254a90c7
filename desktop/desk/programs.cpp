#include "desktop/desk/programs.h"

#include <QCoreApplication>
#include <QProcess>

#include "desktop/meeting.h"
#include "desktop/qt_text.h"
#include "jobs/job.h"

namespace orm {

bool StartProgram(const QString& name, const QStringList& arguments, const QString& folder) {
  return QProcess::startDetached(QCoreApplication::applicationDirPath() + '/' + name, arguments,
                                 folder);
}

Opened OpenIn(const QString& folder, const ProgramStart& start) {
  if (InUso(FromQt(folder)))
    return HandOver(MeetingPlaceOfFolder(folder)) ? Opened::BroughtForward : Opened::InUse;
  return start(QStringLiteral("orm2002"), {}, folder) ? Opened::Started : Opened::Failed;
}

}  // namespace orm
