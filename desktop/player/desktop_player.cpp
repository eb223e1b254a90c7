#include "desktop/player/desktop_player.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <cmath>

#include "desktop/player/form_dialog.h"
#include "desktop/player/message_window.h"
#include "desktop/player/outside_programs.h"
#include "desktop/qt_text.h"
#include "dialogs/message_boxes.h"

namespace orm {

DesktopPlayer::DesktopPlayer(std::string folder) : folder_(std::move(folder)) {}

void DesktopPlayer::Show(Form& form) {
  form.Open();
  if (!form.IsOpen()) return;
  FormDialog dialog(form, Front());
  open_.push_back(&dialog);
  struct Leaving {
    std::vector<QWidget*>& open;
    ~Leaving() { open.pop_back(); }
  } const leaving{open_};
  Run(dialog);
  dialog.RethrowFailure();
}

void DesktopPlayer::Run(FormDialog& dialog) { dialog.exec(); }

Answer DesktopPlayer::Ask(const MessageBox& box) {
  const auto shown = BuildMessageWindow(box, Front());
  Run(*shown, box);
  return AnswerGiven(*shown, box);
}

void DesktopPlayer::Run(QMessageBox& shown, const MessageBox&) { shown.exec(); }

std::optional<std::string> DesktopPlayer::ChooseFile(const FileChoice& choice) {
  QString pattern = ToQt(choice.pattern).replace(';', ' ');
  const QString all = "Tutti i file (*)";
  const QString filters = pattern.isEmpty() ? all : "File (" + pattern + ");;" + all;
  const QString path = QFileDialog::getOpenFileName(Front(), ToQt(choice.title).trimmed(),
                                                    ToQt(choice.start), filters);
  if (path.isEmpty()) return std::nullopt;
  return FromQt(path);
}

void DesktopPlayer::StartProgram(const std::string& program, const std::string& argument) {
  const QStringList arguments = argument.empty() ? QStringList() : QStringList(ToQt(argument));
  if (QProcess::startDetached(ToQt(program), arguments, ToQt(folder_))) return;
  Ask(Avviso("NON È STATO POSSIBILE AVVIARE IL PROGRAMMA\n" + program));
}

bool DesktopPlayer::ProgramExists(const std::string& path) {
  return !path.empty() && QFileInfo(ToQt(path)).isFile();
}

OutsidePrograms DesktopPlayer::DefaultPrograms() { return FindOutsidePrograms(); }

ScreenSize DesktopPlayer::Screen() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double ratio = screen->devicePixelRatio();
  return {static_cast<int>(std::lround(screen->size().width() * ratio)),
          static_cast<int>(std::lround(screen->size().height() * ratio))};
}

}  // namespace orm
