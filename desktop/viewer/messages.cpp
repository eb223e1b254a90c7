// Message boxes of the viewer and the desk.
#include "desktop/viewer/messages.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

namespace orm {
namespace {

// A file may have a name that looks like a page of the web.
void ShowLetterForLetter(QMessageBox& box, const QString& detail) {
  box.setInformativeText(Foldable(detail));
  for (QLabel* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

}  // namespace

QString Foldable(QString text) {
  static const QRegularExpression tooLong(QStringLiteral("([^\\s/]{24})(?=[^\\s/\\p{M}])"));
  return text.replace(tooLong, QStringLiteral("\\1\u200B"));  // a blank of no width
}

void Tell(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& detail,
          const char* program) {
  QMessageBox box(icon, QString::fromLatin1(program), Foldable(text), QMessageBox::NoButton,
                  parent);
  ShowLetterForLetter(box, detail);
  box.setDefaultButton(box.addButton(QStringLiteral("&Chiudi"), QMessageBox::AcceptRole));
  box.exec();
}

int Choose(QWidget* parent, const QString& text, const QString& detail, const QStringList& buttons,
           int byDefault, const char* program) {
  QMessageBox box(QMessageBox::Question, QString::fromLatin1(program), Foldable(text),
                  QMessageBox::NoButton, parent);
  ShowLetterForLetter(box, detail);
  QList<QPushButton*> made;
  for (const QString& caption : buttons) {
    const bool first = made.isEmpty(), last = made.size() + 1 == buttons.size();
    made += box.addButton(caption, first  ? QMessageBox::AcceptRole
                                   : last ? QMessageBox::RejectRole
                                          : QMessageBox::DestructiveRole);
  }
  box.setDefaultButton(made[byDefault]);
  box.setEscapeButton(made.last());
  box.exec();
  const auto pressed = made.indexOf(qobject_cast<QPushButton*>(box.clickedButton()));
  return pressed < 0 ? static_cast<int>(made.size()) - 1 : static_cast<int>(pressed);
}

}  // namespace orm
