#include "desktop/desk/job_work.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "desktop/desk/note_arrival_work.h"
#include "desktop/desk/questions.h"
#include "desktop/desk/window.h"
#include "desktop/desktop_app.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/file_names.h"
#include "desktop/viewer/messages.h"
#include "jobs/job_commands.h"
#include "jobs/job_list.h"
#include "jobs/job_zip.h"
#include "runtime/failure.h"

namespace orm {
namespace {

// The name of a job to be made; `own`: a name that is no fault although it is there.
std::optional<QString> AskJobName(DeskWindow& window, NameOfJob question, const QString& own = {}) {
  const std::string root = window.Jobs().Radice();
  question.label = QStringLiteral("&Nome del lavoro:");
  question.refusal = [root, own](const QString& name) {
    if (name == own) return QString();
    return ToQt(DifettoDelNome(root, FromQt(name)).value_or(std::string()));
  };
  return AskName(&window, question);
}

QString FreeName(DeskWindow& window, const QString& name) {
  return ToQt(NomeLibero(window.Jobs().Radice(), FromQt(name)));
}

// Does the work and shows the job that came of it; false when it failed.
bool Make(DeskWindow& window, const QString& failed, const QString& name,
          const std::function<void()>& work) {
  const bool made = Try(&window, failed, work);
  window.Look();
  if (made) window.GoTo(name);
  return made;
}

// The model chosen, as long as there is that job; else the newest job.
QString ModelOf(DeskWindow& window) {
  QString model = window.Settings().Model();
  for (const VoceLavoro& job : window.Jobs().Voci())
    if (ToQt(job.nome) == model) return model;
  return {};
}

}  // namespace

void NewJob(DeskWindow& window) { MakeNewJob(window, {}); }

bool MakeNewJob(DeskWindow& window, const QString& proposed) {
  const QString model = ModelOf(window);
  const QString from = model.isEmpty() ? QStringLiteral("dell'ultimo lavoro che li ha")
                                       : QStringLiteral("del lavoro \"%1\"").arg(model);
  const auto name =
      AskJobName(window, {QStringLiteral("Nuovo lavoro"),
                          {},
                          QStringLiteral("&Fai il lavoro"),
                          proposed.isEmpty() ? QString() : FreeName(window, proposed),
                          window.Jobs().Voci().empty()
                              ? QString()
                              : QStringLiteral("Dati del professionista e criteri: %1.").arg(from),
                          {}});
  if (!name) return false;
  return Make(window, QStringLiteral("Il lavoro non è stato fatto."), *name, [&] {
    NuovoLavoro(window.Jobs().Radice(), FromQt(*name), FromQt(model), WorkFolder(InstalledFiles()));
  });
}

void OpenJob(DeskWindow& window) {
  if (window.Job().isEmpty()) return;
  const ProgramStart start = [&window](const auto&... what) { return window.Start(what...); };
  switch (OpenIn(ToQt(window.Folder()), start)) {
    case Opened::Started:
      return window.Say(QStringLiteral("Apro ORM2002 in \"%1\"...").arg(window.Job()));
    case Opened::BroughtForward:
      return window.Say(QStringLiteral("ORM2002 lavora già in \"%1\": la sua finestra è stata "
                                       "chiamata in primo piano.")
                            .arg(window.Job()));
    case Opened::InUse:
      return Tell(&window, QMessageBox::Information,
                  QStringLiteral("Il lavoro \"%1\" è in uso.").arg(window.Job()),
                  QStringLiteral("Un altro programma lavora nella sua cartella, senza una finestra "
                                 "da portare in primo piano."),
                  kDeskName);
    case Opened::Failed:
      return Tell(&window, QMessageBox::Warning, QStringLiteral("ORM2002 non si può far partire."),
                  QFileInfo(ToQt(window.Folder())).isDir()
                      ? QStringLiteral("Il programma orm2002 non è accanto a orm2002-lavori.")
                      : QStringLiteral("La cartella del lavoro non c'è più."),
                  kDeskName);
  }
}

void DuplicateJob(DeskWindow& window) {
  const QString job = window.Job();
  const auto name = AskJobName(window, {QStringLiteral("Duplica \"%1\"").arg(job),
                                        {},
                                        QStringLiteral("&Duplica"),
                                        FreeName(window, job),
                                        {},
                                        {}});
  if (!name) return;
  Make(window, QStringLiteral("Il lavoro non è stato duplicato."), *name,
       [&] { DuplicaLavoro(window.Jobs().Radice(), FromQt(job), FromQt(*name)); });
}

void RenameJob(DeskWindow& window) {
  const QString job = window.Job();
  const auto name = AskJobName(
      window,
      {QStringLiteral("Rinomina \"%1\"").arg(job), {}, QStringLiteral("&Rinomina"), job, {}, {}},
      job);
  if (!name || *name == job) return;
  const bool model = window.Settings().Model() == job;
  Make(window, QStringLiteral("Il lavoro non è stato rinominato."), *name, [&] {
    RinominaLavoro(window.Jobs().Radice(), FromQt(job), FromQt(*name));
    if (model) window.Settings().SetModel(*name);
  });
}

void ChooseModel(DeskWindow& window) {
  const bool was = window.Settings().Model() == window.Job();
  window.Settings().SetModel(was ? QString() : window.Job());
  window.ShowState();
  window.Say(
      was ? QStringLiteral("I nuovi lavori prendono dati e criteri dall'ultimo.")
          : QStringLiteral("I nuovi lavori prendono dati e criteri da \"%1\".").arg(window.Job()));
}

void ArchiveJob(DeskWindow& window) {
  const QString folder = window.Settings().Folder();
  const QString zip =
      AskFileName(&window, folder,
                  {QStringLiteral("Archivia in ZIP"), QStringLiteral("Archivio ZIP (*.zip)"),
                   QStringLiteral("zip"), window.Job() + ".zip"});
  if (zip.isEmpty()) return;
  window.Settings().SetFolder(QFileInfo(zip).absolutePath());
  if (Try(&window, QStringLiteral("L'archivio non è stato scritto."),
          [&] { ArchiviaLavoro(window.Folder(), FromQt(zip)); }))
    window.Say(QStringLiteral("Archivio scritto: %1").arg(zip));
}

void TakeArchive(DeskWindow& window) {
  const QStringList zip =
      AskFilesOf(&window, QStringLiteral("Riprendi da ZIP"), window.Settings().Folder(),
                 QStringLiteral("Archivio ZIP (*.zip)"), false);
  if (!zip.isEmpty()) TakeFiles(window, zip);
}

void TrashJob(DeskWindow& window) {
  const QString job = window.Job();
  const std::string folder = window.Folder();
  if (job.isEmpty()) return;
  if (Choose(&window, QStringLiteral("Spostare nel cestino il lavoro \"%1\"?").arg(job),
             QStringLiteral("Ci vanno tutte le sue parcelle, con le versioni di prima."),
             {QStringLiteral("&Sposta nel cestino"), QStringLiteral("&Annulla")}, 1,
             kDeskName) != 0)
    return;
  Try(&window, QStringLiteral("Il lavoro non è stato spostato nel cestino."), [&] {
    EsigiNonInUso(folder);
    // Where this folder is not there the trash would be the current folder.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QString where;
    const bool gone = QFile::moveToTrash(ToQt(folder), &where);
    const bool inTrash = gone && QDir::isAbsolutePath(where) && where.contains("Trash");
    if (gone && !inTrash) QDir().rename(where, ToQt(folder));
    if (!inTrash)
      throw RuntimeFailure("Su questo disco il cestino non si può usare. Il lavoro resta dov'è.");
  });
  window.Look();
}

void AskRoot(DeskWindow& window) {
  const QString folder =
      AskFolder(&window, QStringLiteral("Cartella dei lavori"), window.Settings().Root());
  if (!folder.isEmpty()) window.SetRoot(folder);
}

void ShowHelp(DeskWindow& window) {
  if (!window.Start(QStringLiteral("orm2002-guida"), {QStringLiteral("manuale/lavori.md")}, {}))
    window.Say(
        QStringLiteral("La guida non si può aprire: orm2002-guida non è accanto al programma."));
}

void AskFiles(DeskWindow& window) {
  const QStringList files = AskFilesOf(
      &window, QStringLiteral("Nuovo lavoro da file"), window.Settings().Folder(),
      QStringLiteral(
          "File di ORM2002 (*.DAP *.DAG *.PER *.CFG *.DOC *.RTF *.VER);;Tutti i file (*)"),
      true);
  if (!files.isEmpty()) TakeFiles(window, files);
}

void TakeFiles(DeskWindow& window, const QStringList& paths) {
  const QFileInfo first(paths.first());
  if (std::ranges::all_of(paths, [](const QString& path) {
        return path.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive);
      }))
    return TakeNotes(window, paths);
  const bool zip = paths.size() == 1 && first.suffix().compare("zip", Qt::CaseInsensitive) == 0;
  const QString failed = zip ? QStringLiteral("L'archivio non è stato ripreso.")
                             : QStringLiteral("Il lavoro non è stato fatto.");
  QString proposed = first.isDir() ? first.fileName() : first.dir().dirName();
  window.Settings().SetFolder(first.absolutePath());
  if (zip && !Try(&window, failed, [&] { proposed = ToQt(NomeNelloZip(FromQt(paths.first()))); }))
    return;
  const auto name = AskJobName(
      window, {zip ? QStringLiteral("Riprendi da ZIP") : QStringLiteral("Nuovo lavoro da file"),
               {},
               QStringLiteral("&Fai il lavoro"),
               FreeName(window, proposed),
               {},
               {}});
  if (!name) return;
  Make(window, failed, *name, [&] {
    if (zip) return RiprendiLavoro(FromQt(paths.first()), window.Jobs().Radice(), FromQt(*name));
    std::vector<std::string> files;
    for (const QString& path : paths) files.push_back(FromQt(path));
    LavoroDaFile(window.Jobs().Radice(), FromQt(*name), files);
  });
}

}  // namespace orm
