#include "desktop/player/desktop_player.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <cmath>

#include "desktop/player/chosen_programs.h"
#include "desktop/player/form_dialog.h"
#include "desktop/player/message_window.h"
#include "desktop/player/outside_programs.h"
#include "desktop/qt_text.h"
#include "dialogs/message_boxes.h"

namespace orm {

DesktopPlayer::DesktopPlayer(std::string folder) : folder_(std::move(folder)) {}

void DesktopPlayer::CopyText(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

void DesktopPlayer::Present(Form& form) {
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
  if (QFileInfo(path).isExecutable()) RememberChosen(WholePath(FromQt(path), folder_));
  return FromQt(path);
}

bool DesktopPlayer::MayStart(const std::string& path) {
  const OutsidePrograms own = DefaultPrograms();
  for (const std::string& known : {own.reports, own.configuration, own.pdf, own.help})
    if (path == known) return true;
  if (LiesIn(path, folder_)) {
    Ask(Avviso("IL PROGRAMMA SI TROVA NELLA CARTELLA DI LAVORO E NON VIENE AVVIATO\n" + path));
    return false;
  }
  if (IsChosen(path)) return true;
  const MessageBox question{kAttenzione,
                            "QUESTA CARTELLA CHIEDE DI AVVIARE UN PROGRAMMA CHE SU QUESTO COMPUTER "
                            "NON È ANCORA STATO SCELTO\n" +
                                path + "\nAVVIARLO, ORA E IN FUTURO ?",
                            MessageBox::Icon::Question, MessageBox::Buttons::YesNo};
  const auto shown = BuildMessageWindow(question, Front());
  shown->setDefaultButton(qobject_cast<QPushButton*>(ButtonOf(*shown, Answer::No)));
  Run(*shown, question);
  if (AnswerGiven(*shown, question) != Answer::Yes) return false;
  RememberChosen(path);
  return true;
}

void DesktopPlayer::StartProgram(const std::string& program, const std::string& argument) {
  const std::string path = WholePath(program, folder_);
  if (!path.empty() && !MayStart(path)) return;
  const QStringList arguments = argument.empty() ? QStringList() : QStringList(ToQt(argument));
  // By its whole path: a name alone could be found in the folder.
  if (!path.empty() && QProcess::startDetached(ToQt(path), arguments, ToQt(folder_))) return;
  Ask(Avviso("NON È STATO POSSIBILE AVVIARE IL PROGRAMMA\n" + program));
}

bool DesktopPlayer::ProgramExists(const std::string& path) {
  return QFileInfo(ToQt(path)).isFile() || !QStandardPaths::findExecutable(ToQt(path)).isEmpty();
}

OutsidePrograms DesktopPlayer::DefaultPrograms() { return FindOutsidePrograms(); }

ScreenSize DesktopPlayer::Screen() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double ratio = screen->devicePixelRatio();
  return {static_cast<int>(std::lround(screen->size().width() * ratio)),
          static_cast<int>(std::lround(screen->size().height() * ratio))};
}

}  // namespace orm
