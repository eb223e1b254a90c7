// The question for the name of a file.
#include "desktop/viewer/file_names.h"

#include <QFileDialog>
#include <QFileInfo>

namespace orm {

QString AskFileName(QWidget* parent, const QString& folder, const NameQuestion& question) {
  QFileDialog dialog(parent, question.title, folder, question.filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(question.suffix);
  dialog.selectFile(question.name);
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("&Nome del file:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo di file:"));
  dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Salva"));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("&Annulla"));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

NameQuestion NameOfCopy(CopyKind kind, const QString& report) {
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
  question.name = QFileInfo(report).completeBaseName() + '.' + question.suffix;
  return question;
}

}  // namespace orm
