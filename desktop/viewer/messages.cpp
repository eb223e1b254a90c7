// Message boxes of the viewer and the desk.
#include "desktop/viewer/messages.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

namespace orm {
namespace {

constexpr int kLongestWord = 24;  // characters that stay together

// A file may have a name that looks like a page of the web.
void ShowLetterForLetter(QMessageBox& box, const QString& detail) {
  box.setInformativeText(Foldable(detail));
  for (QLabel* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

}  // namespace

QString Foldable(const QString& text) {
  QString folds;
  int letters = 0;
  for (const QChar letter : text) {
    const bool goesOn = letter.isLowSurrogate() || letter.isMark();
    letters = letter.isSpace() ? 0 : letters + 1;
    if (letters > kLongestWord && !goesOn) {
      folds += QChar(0x200B);  // a blank of no width
      letters = 1;
    }
    folds += letter;
  }
  return folds;
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
