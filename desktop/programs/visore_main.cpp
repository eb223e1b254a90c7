// orm2002-visore [FILE]: shows a report as a page of fixed columns; without a name it asks for one.
//
//   orm2002-visore --pdf OUT.pdf FILE     writes a copy and shows nothing; no display is needed
//   orm2002-visore --odt OUT.odt FILE
//   orm2002-visore --utf8 OUT.txt FILE
//
// Exit 0 done; 1 the file cannot be shown or the copy not written; 3 wrong usage.
#include <QApplication>
#include <QDir>
#include <QSettings>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "desktop/desktop_app.h"
#include "desktop/export/export.h"
#include "desktop/export/subject.h"
#include "desktop/last_words.h"
#include "desktop/player/desktop_player.h"
#include "desktop/screen.h"
#include "desktop/viewer/messages.h"
#include "desktop/viewer/window.h"
#include "runtime/failure.h"
#include "runtime/folder.h"
#include "shell/help/program_texts.h"
#include "shell/memo/form_memo.h"
#include "shell/saved_drafts.h"
#include "shell/shell_boxes.h"

namespace orm {
namespace {

constexpr int kDone = 0, kFailed = 1, kWrongUsage = 3;

constexpr const char* kProgram = "orm2002-visore";

const std::map<std::string, CopyKind> kCopies = {
    {"--pdf", CopyKind::Pdf}, {"--odt", CopyKind::Odt}, {"--utf8", CopyKind::Utf8}};

struct Request {
  std::string copyOption;  // empty: show the file
  std::string copy, file;
  bool valid = false;
};

Request RequestOf(const std::vector<std::string>& arguments) {
  Request request;
  if (arguments.size() == 1 && !arguments[0].starts_with("-")) {
    request.file = arguments[0];
    request.valid = !request.file.empty();
  } else if (arguments.size() == 2 && arguments[0] == "--") {
    request.file = arguments[1];
    request.valid = true;
  } else if (arguments.size() == 3) {
    request.copyOption = arguments[0], request.copy = arguments[1], request.file = arguments[2];
    request.valid = kCopies.contains(request.copyOption);
  }
  return request;
}

void Complain(const std::string& text) {
  std::fputs(("orm2002-visore: " + text + "\n").c_str(), stderr);
}

int WriteCopy(const Request& request) {
  try {
    const FilePlace place = FilePlace::Of(request.file);
    const QString text = QString::fromStdString(DecodeText(place.Read()).text);
    const FilePlace copy = FilePlace::Of(request.copy);
    RefuseSameFile(place, copy);
    const QString title = DocumentTitle(text, QString::fromStdString(place.name));
    copy.Replace(CopyOf(kCopies.at(request.copyOption), text, title));
    return kDone;
  } catch (RuntimeFailure& failure) {
    Complain(failure.AtFile(request.file).Text());
  } catch (const std::exception& error) {
    Complain(error.what());
  }
  return kFailed;
}

// Rich text is no report: it has the window of the memo, which can also make it.
int ShowRichText(const std::string& file) {
  const FilePlace place = FilePlace::Of(file);
  DesktopPlayer player(place.folder.Path());
  RunState stato(player, place.folder);
  FrmGenVisualizzaRtf form(stato);
  form.NomeFile = place.name;
  form.SetTitle(place.name);
  SavedDrafts drafts(player.DraftsOfRun(), place.folder, place.name);
  if (drafts.Load()) player.Ask(AvvisoBozze());
  const LastWords lastWords([&drafts] { drafts.Keep(); });
  player.Show(form);
  drafts.Forget();
  return kDone;
}

int ShowReport(const std::string& file) {
  QSettings habits(QStringLiteral("ORM2002"), QStringLiteral("Visore"));
  ViewerWindow window;
  window.Recent().KeepIn(habits);
  window.Open(file);
  window.TakeHabits(habits);
  window.show();
  const LastWords lastWords([&window] { window.KeepUnsaved(); });
  const int result = QApplication::exec();
  window.KeepHabits(habits);
  return result;
}

int ShowFile(const std::string& file) {
  try {
    return IsRichText(file) ? ShowRichText(file) : ShowReport(file);
  } catch (const RuntimeFailure& failure) {
    Tell(nullptr, QMessageBox::Warning, QStringLiteral("Il file non può essere mostrato."),
         QString::fromStdString(failure.Text()));
    return kFailed;
  }
}

int AskAndShow() {
  const QString path = AskFileToOpen(nullptr, QDir::currentPath());
  return path.isEmpty() ? kDone : ShowFile(path.toStdString());
}

int Run(int argc, char** argv) {
  if (AnswersForItself(kProgram, argc, argv)) return kDone;
  const Request request = RequestOf({argv + 1, argv + argc});
  PlatformChoice platform(request.copyOption.empty());
  QApplication application(argc, argv);
  const bool unseen = platform.IsUnseen();

  if (request.valid && !request.copyOption.empty()) return WriteCopy(request);
  if (!request.valid && unseen) {
    Complain(std::string(ProgramUsage(kProgram)));
    return kWrongUsage;
  }
  if (unseen) {
    Complain("non c'è uno schermo su cui mostrare il file.");
    return kFailed;
  }
  DressApplication(application);
  if (request.valid) return ShowFile(request.file);
  if (argc == 1) return AskAndShow();
  Tell(nullptr, QMessageBox::Information, QStringLiteral("Gli argomenti non sono quelli attesi."),
       QString::fromUtf8(ProgramUsage(kProgram)).trimmed());
  return kWrongUsage;
}

}  // namespace
}  // namespace orm

int main(int argc, char** argv) {
  orm::TellFileSizeErrors();
  return orm::Run(argc, argv);
}
