// The question for the name of a file.
#include "desktop/viewer/file_names.h"

#include <QFileDialog>

namespace orm {

namespace {

// The path that the person gives in the dialog, whose captions become Italian.
QString PathFrom(QFileDialog& dialog, const QString& accept) {
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("&Nome del file:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo di file:"));
  dialog.setLabelText(QFileDialog::Accept, accept);
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("&Annulla"));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

}  // namespace

QString AskFileName(QWidget* parent, const QString& folder, const NameQuestion& question) {
  QFileDialog dialog(parent, question.title, folder, question.filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(question.suffix);
  dialog.selectFile(question.name);
  return PathFrom(dialog, QStringLiteral("&Salva"));
}

QString AskFileToOpen(QWidget* parent, const QString& folder) {
  QFileDialog dialog(parent, QStringLiteral("Apri"), folder,
                     QStringLiteral("Parcelle e testi (*.DOC *.doc *.TXT *.txt *.RTF *.rtf);;"
                                    "Tutti i file (*)"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return PathFrom(dialog, QStringLiteral("&Apri"));
}

NameQuestion NameOfCopy(CopyKind kind, const QString& name) {
  NameQuestion question;
  switch (kind) {
    case CopyKind::Pdf:
      question = {QStringLiteral("Esporta PDF"),
                  QStringLiteral("Documento PDF (*.pdf)"),
                  QStringLiteral("pdf"),
                  {}};
      break;
    case CopyKind::Odt:
      question = {QStringLiteral("Salva copia ODT"),
                  QStringLiteral("Documento di testo ODT (*.odt)"),
                  QStringLiteral("odt"),
                  {}};
      break;
    case CopyKind::Utf8:
      question = {QStringLiteral("Salva copia UTF-8"),
                  QStringLiteral("Testo (*.txt)"),
                  QStringLiteral("txt"),
                  {}};
      break;
  }
  question.name = name + '.' + question.suffix;
  return question;
}

}  // namespace orm
