// orm2002-guida [BOOK|PAGE]: the help in a window of its own, beside whatever the program shows. A
// second call shows its page in the window that is open.
#include <QApplication>
#include <QSettings>
#include <cstdio>

#include "desktop/desktop_app.h"
#include "desktop/guide/help_window.h"
#include "desktop/meeting.h"
#include "desktop/screen.h"
#include "shell/help/program_texts.h"

namespace {

// One window for each person and screen.
QString PlaceOfTheWindow() {
  QString screen = qEnvironmentVariable("WAYLAND_DISPLAY") + qEnvironmentVariable("DISPLAY");
  screen.replace('/', '_');
  return orm::MeetingPlace("guida-" + screen);
}

}  // namespace

int main(int argc, char** argv) {
  if (orm::AnswersForItself("orm2002-guida", argc, argv)) return 0;
  orm::PlatformChoice platform;
  QApplication application(argc, argv);
  if (platform.IsUnseen()) {
    std::fputs("orm2002-guida: non c'è uno schermo su cui mostrare la guida.\n", stderr);
    return 1;
  }
  orm::DressApplication(application);
  const QStringList arguments = QCoreApplication::arguments();
  const QString place = arguments.size() > 1 ? arguments[1] : QString();
  if (orm::HandOver(PlaceOfTheWindow(), place)) return 0;

  QSettings habits(QStringLiteral("ORM2002"), QStringLiteral("Guida"));
  orm::HelpWindow window;
  window.TakeHabits(habits);
  const orm::Meeting meeting(PlaceOfTheWindow(), [&window](const QString& asked) {
    window.Open(asked);
    orm::BringForward(window);
  });
  window.Open(place);
  window.show();
  const int result = QApplication::exec();
  window.KeepHabits(habits);
  return result;
}
