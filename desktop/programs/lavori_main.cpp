// orm2002-lavori [CARTELLA]: the desk of the jobs. A folder given is the root this time.
#include <QFileInfo>
#include <cstdio>

#include "desktop/desk/window.h"
#include "desktop/desktop_app.h"
#include "desktop/qt_text.h"
#include "desktop/screen.h"
#include "jobs/job_commands.h"
#include "runtime/folder.h"
#include "shell/help/program_texts.h"

int main(int argc, char** argv) {
  if (orm::AnswersForItself("orm2002-lavori", argc, argv)) return 0;
  orm::TellFileSizeErrors();
  if (argc > 2) {
    std::fputs(std::string(orm::ProgramUsage("orm2002-lavori")).c_str(), stderr);
    return 3;
  }
  orm::PlatformChoice platform;
  QApplication application(argc, argv);
  if (platform.IsUnseen()) {
    std::fputs("orm2002-lavori: non c'è uno schermo su cui mostrare i lavori.\n", stderr);
    return 1;
  }
  orm::DressApplication(application);
  orm::DeskSettings settings;
  if (argc == 2)
    settings.ShowOnce(QFileInfo(QCoreApplication::arguments().at(1)).absoluteFilePath());
  orm::RipulisciRadice(orm::FromQt(settings.Root()));
  orm::DeskWindow window(settings);
  window.show();
  const int result = QApplication::exec();
  window.KeepHabits();
  return result;
}
