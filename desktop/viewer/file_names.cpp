// The question for the name of a file.
#include "desktop/viewer/file_names.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QTreeView>
#include <map>

namespace orm {

QStringList ChosenIn(QFileDialog& dialog, const QString& accept) {
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
  if (dialog.fileMode() != QFileDialog::Directory)
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("&Nome del file:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo di file:"));
  dialog.setLabelText(QFileDialog::Accept, accept);
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("&Annulla"));
  if (const auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView")))
    for (const int column : {1, 2, 3})
      files->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  dialog.resize(dialog.size().boundedTo(dialog.screen()->availableSize() * 0.9));
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QString AskFileName(QWidget* parent, const QString& folder, const NameQuestion& question) {
  QFileDialog dialog(parent, question.title, folder, question.filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(question.suffix);
  dialog.selectFile(question.name);
  return ChosenIn(dialog, QStringLiteral("&Salva")).value(0);
}

QString AskFileToOpen(QWidget* parent, const QString& folder) {
  QFileDialog dialog(parent, QStringLiteral("Apri"), folder,
                     QStringLiteral("Parcelle e testi (*.DOC *.doc *.TXT *.txt *.RTF *.rtf);;"
                                    "Tutti i file (*)"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return ChosenIn(dialog, QStringLiteral("&Apri")).value(0);
}

NameQuestion NameOfCopy(CopyKind kind, const QString& name) {
  static const std::map<CopyKind, NameQuestion> questions = {
      {CopyKind::Pdf, {"Esporta PDF", "Documento PDF (*.pdf)", "pdf", {}}},
      {CopyKind::Odt, {"Salva copia ODT", "Documento di testo ODT (*.odt)", "odt", {}}},
      {CopyKind::Utf8, {"Salva copia UTF-8", "Testo (*.txt)", "txt", {}}},
      {CopyKind::Json, {"Salva la parcella in JSON", "Parcella in JSON (*.json)", "json", {}}},
      {CopyKind::Csv, {"Salva gli importi in CSV", "Tabella CSV (*.csv)", "csv", {}}},
      {CopyKind::PlainCsv,
       {"Salva gli importi in CSV semplice", "Tabella CSV (*.csv)", "csv", {}}}};
  NameQuestion question = questions.at(kind);
  question.name = name + '.' + question.suffix;
  return question;
}

}  // namespace orm
