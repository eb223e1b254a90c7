#include "desktop/desk/note_arrival_work.h"

#include <QFileInfo>

#include "desktop/desk/job_work.h"
#include "desktop/desk/questions.h"
#include "desktop/desk/window.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/messages.h"
#include "jobs/job_list.h"
#include "jobs/note_arrival.h"

namespace orm {
namespace {

const QString kNotTaken = QStringLiteral("La parcella non è stata presa.");

QString NoteName(const NotaDiCaso& note) {
  return ToQt(note.codice) + (note.lire ? QStringLiteral(" in Lire") : QStringLiteral(" in Euro"));
}

enum class Where { ThisJob, NewJob, Nowhere };

Where AskWhere(DeskWindow& window, const NotaDiCaso& note) {
  if (window.Job().isEmpty()) return Where::NewJob;
  const bool there = HaLaParcella(window.Folder(), note);
  const int answer = Choose(
      &window,
      QStringLiteral("Mettere la parcella %1 nel lavoro \"%2\"?").arg(NoteName(note), window.Job()),
      there ? QStringLiteral("Il lavoro ne ha già una: sostituendola, quella che c'è resta tra le "
                             "sue versioni.")
            : QString(),
      {there ? QStringLiteral("&Sostituisci") : QStringLiteral("&Metti qui"),
       QStringLiteral("&Nuovo lavoro..."), QStringLiteral("&Annulla")},
      there ? 2 : 0, kDeskName);
  return answer == 0 ? Where::ThisJob : answer == 1 ? Where::NewJob : Where::Nowhere;
}

bool AskSettings(DeskWindow& window) {
  return Choose(
             &window,
             QStringLiteral("Con la parcella vengono altri dati del professionista o altri criteri "
                            "di calcolo."),
             QStringLiteral("Valgono per tutte le parcelle di \"%1\". Quelli sostituiti restano "
                            "nella sua cartella storico.")
                 .arg(window.Job()),
             {QStringLiteral("&Prendi anche quelli"), QStringLiteral("&Tieni quelli del lavoro")},
             1, kDeskName) == 0;
}

void TakeNote(DeskWindow& window, const QString& path) {
  NotaDaJson note;
  if (!Try(&window, kNotTaken, [&] { note = LeggiNotaArrivata(FromQt(path)); })) return;
  const Where where = AskWhere(window, note.nota);
  if (where == Where::Nowhere) return;
  if (where == Where::NewJob && !MakeNewJob(window, QFileInfo(path).completeBaseName())) return;
  const std::string folder = window.Folder();
  const bool settings = HaAltreImpostazioni(folder, note) && AskSettings(window);
  const bool taken = Try(&window, kNotTaken, [&] { PrendiNota(folder, note, settings); });
  window.Look();
  if (taken)
    window.Say(QStringLiteral("Parcella %1 messa in \"%2\". La relazione la scrive \"Calcolo\".")
                   .arg(NoteName(note.nota), window.Job()));
}

}  // namespace

void AskNote(DeskWindow& window) {
  const QStringList path =
      AskFilesOf(&window, QStringLiteral("Prendi una parcella da JSON"), window.Settings().Folder(),
                 QStringLiteral("Parcella in JSON (*.json)"), false);
  if (path.isEmpty()) return;
  window.Settings().SetFolder(QFileInfo(path.first()).absolutePath());
  TakeNotes(window, path);
}

void TakeNotes(DeskWindow& window, const QStringList& paths) {
  for (const QString& path : paths) TakeNote(window, path);
}

}  // namespace orm
