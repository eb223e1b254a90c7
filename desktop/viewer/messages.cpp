// Message boxes of the viewer.
#include "desktop/viewer/messages.h"

#include <QAbstractButton>
#include <QPushButton>

namespace orm {

void Tell(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& detail) {
  QMessageBox box(icon, QString::fromLatin1(kViewerName), text, QMessageBox::NoButton, parent);
  box.setInformativeText(detail);
  box.setDefaultButton(box.addButton(QStringLiteral("&Chiudi"), QMessageBox::AcceptRole));
  box.exec();
}

int Choose(QWidget* parent, const QString& text, const QString& detail,
           const QStringList& buttons) {
  QMessageBox box(QMessageBox::Question, QString::fromLatin1(kViewerName), text,
                  QMessageBox::NoButton, parent);
  box.setInformativeText(detail);
  QList<QPushButton*> made;
  for (const QString& caption : buttons) {
    const bool first = made.isEmpty(), last = made.size() + 1 == buttons.size();
    made += box.addButton(caption, first  ? QMessageBox::AcceptRole
                                   : last ? QMessageBox::RejectRole
                                          : QMessageBox::DestructiveRole);
  }
  box.setDefaultButton(made.first());
  box.setEscapeButton(made.last());
  box.exec();
  const auto pressed = made.indexOf(qobject_cast<QPushButton*>(box.clickedButton()));
  return pressed < 0 ? static_cast<int>(made.size()) - 1 : static_cast<int>(pressed);
}

}  // namespace orm
