#include "desktop/desk/note_work.h"

#include <QFileInfo>

#include "desktop/desk/contents_model.h"
#include "desktop/desk/questions.h"
#include "desktop/desk/versions_window.h"
#include "desktop/desk/window.h"
#include "desktop/export/export.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/file.h"
#include "desktop/viewer/file_names.h"
#include "desktop/viewer/messages.h"
#include "jobs/job_commands.h"
#include "jobs/job_list.h"

namespace orm {
namespace {

// The name tells the job, so that the notes of many lie in one folder.
QString CopyName(DeskWindow& window, int row) {
  return QStringLiteral("%1 - %2").arg(window.Job(), ToQt(window.Contents().NameOf(row)));
}

std::string CopyOfRow(DeskWindow& window, int row, CopyKind kind) {
  const WorkFolder folder(window.Folder());
  const std::string file = window.Contents().FileAt(row);
  const ParcellaDelLavoro* note = window.Contents().NoteAt(row);
  const std::string report = file.empty() ? std::string() : folder.Read(file);
  if (IsOfTheNote(kind)) return CopyOfNote(kind, folder, {note->codice, note->lire}, report);
  const std::string title = note == nullptr || note->oggetto.empty() ? file : note->oggetto;
  return CopyOf(kind, ToQt(DecodeText(report).text), ToQt(title));
}

void WriteCopy(DeskWindow& window, int row, CopyKind kind, const QString& path) {
  const std::string file = window.Contents().FileAt(row);
  const FilePlace copy = FilePlace::Of(FromQt(path));
  RefuseSameFile(FilePlace::Of(WorkFolder(window.Folder()).PathOf(file)), copy);
  copy.Replace(CopyOfRow(window, row, kind));
}

// What the person should know who gives these PDFs away; empty where they are up to date.
QString OldOnes(DeskWindow& window, const std::vector<int>& rows) {
  QStringList old;
  for (const int row : rows) {
    const ParcellaDelLavoro* note = window.Contents().NoteAt(row);
    if (note != nullptr && note->vecchia) old += ToQt(window.Contents().NameOf(row));
  }
  return old.isEmpty() ? QString()
                       : QStringLiteral(". Prima dell'ultima modifica dei dati: ") + old.join(", ");
}

}  // namespace

void ShowReport(DeskWindow& window) {
  const int row = window.Row();
  if (row < 0) return;
  const std::string file = window.Contents().FileAt(row);
  if (file.empty())
    return window.Say(QStringLiteral(
        "Di questa parcella non c'è ancora la relazione: la scrive \"Calcolo\" in ORM2002."));
  const QString folder = ToQt(window.Folder());
  if (!window.Start(QStringLiteral("orm2002-visore"), {folder + '/' + ToQt(file)}, folder))
    Tell(&window, QMessageBox::Warning, QStringLiteral("Il visore non si può far partire."),
         QStringLiteral("Il programma orm2002-visore non è accanto a orm2002-lavori."), kDeskName);
}

void SaveCopy(DeskWindow& window, CopyKind kind) {
  const int row = window.Row();
  const QString path =
      AskFileName(&window, window.Settings().Folder(), NameOfCopy(kind, CopyName(window, row)));
  if (path.isEmpty()) return;
  window.Settings().SetFolder(QFileInfo(path).absolutePath());
  if (Try(&window, QStringLiteral("Il file non è stato scritto."),
          [&] { WriteCopy(window, row, kind, path); }))
    window.Say(QStringLiteral("Scritto: %1").arg(path) +
               (kind == CopyKind::Pdf ? OldOnes(window, {row}) : QString()));
}

void PdfOfAll(DeskWindow& window) {
  const QString folder =
      AskFolder(&window, QStringLiteral("Cartella dei PDF"), window.Settings().Folder());
  if (folder.isEmpty()) return;
  window.Settings().SetFolder(folder);
  std::vector<int> rows;
  QStringList there;
  for (int row = 0; row < window.Contents().rowCount(); ++row) {
    if (window.Contents().NoteAt(row) == nullptr || window.Contents().FileAt(row).empty()) continue;
    rows.push_back(row);
    const QString name = CopyName(window, row) + ".pdf";
    if (QFileInfo::exists(folder + '/' + name)) there += name;
  }
  if (!there.isEmpty() &&
      Choose(&window, QStringLiteral("Nella cartella ci sono già dei PDF con questi nomi."),
             there.join('\n'), {QStringLiteral("&Sostituisci"), QStringLiteral("&Annulla")}, 1,
             kDeskName) != 0)
    return;
  const bool written = Try(&window, QStringLiteral("I PDF non sono stati scritti."), [&] {
    for (const int row : rows)
      WriteCopy(window, row, CopyKind::Pdf, folder + '/' + CopyName(window, row) + ".pdf");
  });
  if (written)
    window.Say((rows.size() == 1 ? QStringLiteral("Scritto %1 PDF in %2")
                                 : QStringLiteral("Scritti %1 PDF in %2"))
                   .arg(rows.size())
                   .arg(folder) +
               OldOnes(window, rows));
}

void CopyNote(DeskWindow& window) {
  const ParcellaDelLavoro* chosen = window.Contents().NoteAt(window.Row());
  if (chosen == nullptr) return;
  const ParcellaDelLavoro note = *chosen;
  QStringList others;
  for (const VoceLavoro& job : window.Jobs().Voci())
    if (ToQt(job.nome) != window.Job()) others += ToQt(job.nome);
  if (others.isEmpty())
    return window.Say(
        QStringLiteral("Non ci sono altri lavori: prima se ne fa uno con \"Nuovo lavoro\"."));
  const auto to = AskOneOf(&window, QStringLiteral("Copia la parcella in un altro lavoro"),
                           QStringLiteral("&Copia"), others);
  if (!to) return;
  const std::string from = window.Folder();
  const std::string target = window.Jobs().CartellaDi(FromQt(others[*to]));
  const bool there = HaLaParcella(target, note);
  if (there &&
      Choose(&window,
             QStringLiteral("Il lavoro \"%1\" ha già una parcella %2.")
                 .arg(others[*to], ToQt(note.codice)),
             QStringLiteral("Sostituendola, quella che c'è resta tra le sue versioni."),
             {QStringLiteral("&Sostituisci"), QStringLiteral("&Annulla")}, 1, kDeskName) != 0)
    return;
  if (!Try(&window, QStringLiteral("La parcella non è stata copiata."),
           [&] { CopiaParcella(from, note, target, there); }))
    return;
  window.Look();
  window.Say(QStringLiteral("Parcella copiata in \"%1\".").arg(others[*to]));
}

void ShowVersions(DeskWindow& window) {
  window.Look();
  const ParcellaDelLavoro* note = window.Contents().NoteAt(window.Row());
  if (note == nullptr) return;
  VersionsWindow versions(&window, window.Folder(), *note);
  versions.exec();
  window.Look();
}

}  // namespace orm
