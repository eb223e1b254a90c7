// The desktop program. Works in the current folder; no arguments.
#include <cstdio>

#include "desktop/desktop_app.h"
#include "desktop/last_words.h"
#include "desktop/meeting.h"
#include "desktop/player/desktop_player.h"
#include "desktop/player/menu_window.h"
#include "desktop/screen.h"
#include "dialogs/message_boxes.h"
#include "runtime/folder_lock.h"
#include "shell/help/program_texts.h"
#include "shell/shell.h"

int main(int argc, char** argv) {
  if (orm::AnswersForItself("orm2002", argc, argv)) return 0;
  orm::TellFileSizeErrors();
  orm::PlatformChoice platform;
  QApplication application(argc, argv);
  if (platform.IsUnseen()) {
    std::fputs(
        "orm2002: non c'è uno schermo. Le parcelle si calcolano anche con orm2002-calcolo.\n",
        stderr);
    return 1;
  }
  orm::DressApplication(application);
  const orm::WorkFolder folder(".");
  orm::DesktopPlayer player(folder.Path());
  const orm::FolderLock lock(folder);
  if (!lock.Held()) {
    player.Ask(
        orm::Avviso("ORM2002 È GIÀ IN USO IN QUESTA CARTELLA DI LAVORO\n"
                    "CHIUDERE PRIMA L'ALTRO PROGRAMMA"));
    orm::HandOver(orm::MeetingPlaceOfFolder(QStringLiteral(".")));  // it comes forward
    return 1;
  }
  // From now on, since the start may stop at a message.
  const orm::Meeting meeting(orm::MeetingPlaceOfFolder(QStringLiteral(".")), [](const QString&) {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible()) orm::BringForward(*window);
  });
  if (!lock.Certain())
    player.Ask({orm::kAttenzione,
                "LA CARTELLA DI LAVORO È SU UN DISCO DI RETE, O DI UN ALTRO SISTEMA :\n"
                "NON SI PUÒ SAPERE SE SU UN ALTRO COMPUTER ORM2002 LA STA USANDO",
                orm::MessageBox::Icon::Information, orm::MessageBox::Buttons::Ok});
  orm::Shell shell(player, folder);
  if (!shell.Load()) return 0;
  shell.PreparaCartella(orm::InstalledFiles());
  orm::MenuWindow window(shell);
  player.SetMainWindow(&window);
  window.ActivateOnceShown();
  window.show();
  const orm::LastWords lastWords([&shell] { shell.Bozze().Keep(); });
  const int result = QApplication::exec();
  shell.Bozze().Forget();
  return result;
}
