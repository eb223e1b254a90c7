#include "desktop/desk/questions.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/desk/desk_view.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/file_names.h"
#include "desktop/viewer/messages.h"
#include "jobs/job_search.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr int kNameWidth = 46;  // characters

// The buttons at the foot of a question, which they answer.
QPushButton* AddButtons(QDialog& dialog, const QString& accept) {
  auto* buttons = new QDialogButtonBox;
  QPushButton* button = buttons->addButton(accept, QDialogButtonBox::AcceptRole);
  buttons->addButton(QStringLiteral("&Annulla"), QDialogButtonBox::RejectRole);
  button->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  dialog.layout()->addWidget(buttons);
  return button;
}

}  // namespace

std::optional<QString> AskName(QWidget* parent, const NameOfJob& question) {
  QDialog dialog(parent);
  dialog.setWindowTitle(question.title);
  auto* column = new QVBoxLayout(&dialog);
  auto* label = new QLabel(question.label);
  auto* field = new QLineEdit(question.name);
  field->setObjectName(QStringLiteral("name"));
  field->setMinimumWidth(CharactersWide(*field, kNameWidth));
  label->setBuddy(field);
  QLabel* refusal = DeskLabel("refusal");
  QPalette colours = refusal->palette();
  colours.setColor(QPalette::WindowText, WarningText(colours));
  refusal->setPalette(colours);
  refusal->setMinimumHeight(2 * refusal->fontMetrics().lineSpacing());
  column->addWidget(label);
  column->addWidget(field);
  column->addWidget(refusal);
  QLabel* note = DeskLabel("note");
  note->setText(Foldable(question.note));
  note->setVisible(!question.note.isEmpty());
  column->addWidget(note);
  QPushButton* button = AddButtons(dialog, question.button);
  // A line is pasted with its end.
  const auto typed = [field] { return field->text().simplified(); };
  const auto look = [&] {
    const QString name = typed();
    const QString why = name.isEmpty() ? QString() : question.refusal(name);
    refusal->setText(Foldable(why));
    button->setEnabled(!name.isEmpty() && why.isEmpty());
  };
  QObject::connect(field, &QLineEdit::textChanged, &dialog, look);
  look();
  field->selectAll();
  if (dialog.exec() != QDialog::Accepted) return {};
  return typed();
}

std::optional<int> AskOneOf(QWidget* parent, const QString& title, const QString& button,
                            const QStringList& names) {
  QDialog dialog(parent);
  dialog.setWindowTitle(title);
  auto* column = new QVBoxLayout(&dialog);
  auto* sought = new QLineEdit;
  sought->setObjectName(QStringLiteral("sought"));
  sought->setPlaceholderText(QStringLiteral("Parte del nome"));
  sought->setAccessibleName(sought->placeholderText());
  sought->setMinimumWidth(CharactersWide(*sought, kNameWidth));
  auto* list = new QListWidget;
  list->setObjectName(QStringLiteral("names"));
  list->setAccessibleName(title);
  list->setUniformItemSizes(true);
  list->addItems(names);
  column->addWidget(sought);
  column->addWidget(list, 1);
  QPushButton* accept = AddButtons(dialog, button);
  const auto narrow = [&] {
    const std::string part = SenzaAccenti(FromQt(sought->text()));
    QListWidgetItem* first = nullptr;
    for (int i = 0; i < list->count(); ++i) {
      QListWidgetItem* item = list->item(i);
      const bool found = SenzaAccenti(FromQt(item->text())).find(part) != std::string::npos;
      item->setHidden(!found);
      if (found && first == nullptr) first = item;
    }
    list->setCurrentItem(first);
    accept->setEnabled(first != nullptr);
  };
  QObject::connect(sought, &QLineEdit::textChanged, &dialog, narrow);
  QObject::connect(list, &QListWidget::itemActivated, &dialog, &QDialog::accept);
  narrow();
  if (dialog.exec() != QDialog::Accepted || list->currentItem() == nullptr) return {};
  return list->currentRow();
}

QString AskFolder(QWidget* parent, const QString& title, const QString& start) {
  QFileDialog dialog(parent, title, start);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return ChosenIn(dialog, QStringLiteral("&Scegli")).value(0);
}

QStringList AskFilesOf(QWidget* parent, const QString& title, const QString& start,
                       const QString& filter, bool several) {
  QFileDialog dialog(parent, title, start, filter);
  dialog.setFileMode(several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
  return ChosenIn(dialog, QStringLiteral("&Scegli"));
}

bool Try(QWidget* parent, const QString& failed, const std::function<void()>& work) {
  QString why;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  try {
    work();
  } catch (const RuntimeFailure& failure) {
    why = ToQt(failure.Text());
  }
  QApplication::restoreOverrideCursor();
  if (!why.isEmpty()) Tell(parent, QMessageBox::Warning, failed, why, kDeskName);
  return why.isEmpty();
}

}  // namespace orm
