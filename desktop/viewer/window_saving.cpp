// What the window writes, and what it asks before edits could be lost.
#include <QCloseEvent>
#include <QStatusBar>

#include "desktop/export/subject.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/messages.h"
#include "desktop/viewer/parts/notice.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/window.h"
#include "runtime/failure.h"

namespace orm {

bool ViewerWindow::RefusedForEncoding() {
  const auto lacking = FirstLackingCharacter(page_->Text(), format_);
  if (!lacking) return false;
  const QString text =
      QStringLiteral(
          "Il carattere «%1» della riga %2 non esiste nella codifica Windows-1252 del file.")
          .arg(QString::fromStdString(lacking->character))
          .arg(lacking->line);
  const QString detail = QStringLiteral(
      "Il file non è stato salvato e le modifiche restano nella finestra. Si può togliere il "
      "carattere, oppure salvare una copia in UTF-8.");
  if (Choose(this, text, detail,
             {QStringLiteral("Salva copia &UTF-8..."), QStringLiteral("&Annulla")}) == 0)
    AskCopy(CopyKind::Utf8);
  return true;
}

bool ViewerWindow::WriteTo(const FilePlace& place) {
  if (RefusedForEncoding()) return false;
  try {
    const std::string bytes = EncodeText(page_->Text(), format_);
    CheckOpensAgain(bytes, format_);
    place.Replace(bytes);
    onDisk_ = bytes;
  } catch (const RuntimeFailure& failure) {
    Tell(this, QMessageBox::Warning, QStringLiteral("Il file non è stato salvato."),
         QString::fromStdString(failure.Text()) +
             QStringLiteral("\n\nLe modifiche restano nella finestra."));
    return false;
  }
  asked_.clear();
  notice_->hide();
  page_->document()->setModified(false);
  statusBar()->showMessage(QStringLiteral("Salvato."), kStatusMilliseconds);
  if (const std::string why = place.folder.TakeWarning(); !why.empty())
    Tell(this, QMessageBox::Information,
         QStringLiteral("Il file è salvato, ma quello di prima non è nella cartella storico."),
         QString::fromStdString(why));
  return true;
}

bool ViewerWindow::Save() {
  std::string now;
  try {
    now = place_.Read();
  } catch (const RuntimeFailure&) {
    now = onDisk_;  // gone or unreadable: writing it anew tells what there is to tell
  }
  if (now != onDisk_ &&
      Choose(this, QStringLiteral("Il file è stato cambiato da un altro programma."),
             QStringLiteral("Salvando, quello che è stato scritto nel frattempo andrebbe perduto."),
             {QStringLiteral("&Sovrascrivi"), QStringLiteral("&Annulla")}, 1) != 0)
    return false;
  return WriteTo(place_);
}

bool ViewerWindow::SaveAs(const std::string& path) {
  const FilePlace place = FilePlace::Of(path);
  if (!WriteTo(place)) return false;
  unsaved_.Forget();
  place_ = place;
  unsaved_.Follow(place_);
  FollowFile();
  ShowState();
  return true;
}

bool ViewerWindow::SaveCopy(CopyKind kind, const std::string& path, bool explained) {
  try {
    const FilePlace copy = FilePlace::Of(path);
    RefuseSameFile(place_, copy);
    if (IsOfTheNote(kind)) {
      copy.Replace(CopyOfNote(kind, place_.folder, NotaDelReport(place_.name).value(),
                              FromQt(page_->Visible())));
    } else {
      const PrintedReport report = Printed(explained);
      copy.Replace(CopyOf(kind, report.text, report.title, report.notes));
    }
  } catch (const RuntimeFailure& failure) {
    Tell(this, QMessageBox::Warning, QStringLiteral("La copia non è stata salvata."),
         QString::fromStdString(failure.Text()));
    return false;
  }
  statusBar()->showMessage(QStringLiteral("Copia salvata: ") + QString::fromStdString(path),
                           kStatusMilliseconds);
  if (IsOfTheNote(kind)) TellHowCopyDiffers();
  return true;
}

// A copy of the note comes from its data, not from the page.
void ViewerWindow::TellHowCopyDiffers() {
  Explain();  // as the data are at this moment
  const bool changed = explained_.esito == ReportSpiegato::Esito::DatiCambiati;
  if (changed || explained_.esito == ReportSpiegato::Esito::InParte)
    Tell(this, QMessageBox::Information, QStringLiteral("La copia non è uguale alla pagina."),
         changed ? QStringLiteral("Viene dai dati della parcella, che sono cambiati dopo questo "
                                  "calcolo.")
                 : QStringLiteral("Viene dai dati della parcella: le correzioni fatte a mano nella "
                                  "pagina non vi sono."));
}

bool ViewerWindow::AskSaveAs() {
  const QString path =
      AskName({QStringLiteral("Salva con nome"), QStringLiteral("Tutti i file (*)"), {}, Title()});
  return !path.isEmpty() && SaveAs(path.toStdString());
}

bool ViewerWindow::AskCopy(CopyKind kind) {
  const QString path = AskName(NameOfCopy(kind, NameBySubject(page_->Visible(), Title())));
  return !path.isEmpty() && SaveCopy(kind, path.toStdString());
}

QString ViewerWindow::AskName(const NameQuestion& question) {
  return AskFileName(this, QString::fromStdString(place_.folder.Path()), question);
}

bool ViewerWindow::MayLeave() {
  if (!page_->document()->isModified()) return true;
  const int choice = Choose(
      this, QStringLiteral("Salvare le modifiche a %1?").arg(Title()),
      QStringLiteral("Senza salvarle andrebbero perdute."),
      {QStringLiteral("&Salva"), QStringLiteral("&Non salvare"), QStringLiteral("&Annulla")});
  const bool leave = choice == 1 || (choice == 0 && Save());
  if (leave) unsaved_.Forget();
  return leave;
}

void ViewerWindow::closeEvent(QCloseEvent* event) { event->setAccepted(MayLeave()); }

}  // namespace orm
