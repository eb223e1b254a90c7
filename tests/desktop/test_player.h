// The desktop's player with a test in the person's place, and a person for what comes up by itself.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <utility>

#include "desktop/player/desktop_player.h"
#include "desktop/player/form_dialog.h"
#include "tests/stage/form_lint.h"

namespace orm {

// Shows forms and message boxes, lets the test act on them, and closes what it left open.
class TestPlayer : public DesktopPlayer {
 public:
  TestPlayer() : DesktopPlayer(".") {}
  std::function<void(FormDialog&)> onForm;
  std::function<void(QMessageBox&)> onMessage;

 protected:
  void Run(FormDialog& dialog) override {
    dialog.open();
    QCoreApplication::processEvents();
    if (onForm) onForm(dialog);
    dialog.hide();
  }
  void Run(QMessageBox& shown, const MessageBox&) override {
    shown.open();
    QCoreApplication::processEvents();
    if (onMessage) onMessage(shown);
    shown.hide();
  }
};

// Acts on the menus, message boxes and file dialogs that come up while it lives.
class Person {
 public:
  // Presses the button with this caption.
  explicit Person(QString button) : button_(std::move(button)) { Wait(); }
  // Chooses the entry of a menu that many keys down, gives the path, and presses that button of a
  // box or the one that it proposes.
  Person(int downs, QString path, QString button = {})
      : button_(std::move(button)), downs_(downs), path_(std::move(path)) {
    Wait();
  }
  QString Said() const { return said_; }  // by the last message box

 private:
  // Anew each time: a timer does not fire in a dialog that its own event has opened.
  void Wait() {
    QTimer::singleShot(10, &here_, [this] { Act(); });
  }
  void Act() {
    Wait();
    QWidget* front = QApplication::activeModalWidget();
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      for (; downs_ > 0; --downs_) QTest::keyClick(menu, Qt::Key_Down);
      QTest::keyClick(menu, Qt::Key_Return);
    } else if (auto* box = qobject_cast<QMessageBox*>(front)) {
      said_ = box->text() + '\n' + box->informativeText();
      for (const std::string& fault : LintWindow(*box)) ADD_FAILURE() << fault;
      if (button_.isEmpty()) return QTest::keyClick(box, Qt::Key_Return);
      for (QAbstractButton* button : box->buttons())
        if (button->text().remove('&') == button_) return button->click();
      ADD_FAILURE() << "no button " << button_.toStdString();
      box->reject();
    } else if (auto* dialog = qobject_cast<QFileDialog*>(front)) {
      auto* name = dialog->findChild<QLineEdit*>();
      if (path_.isEmpty()) return QTest::keyClick(dialog, Qt::Key_Escape);
      name->setText(std::exchange(path_, {}));
      QTest::keyClick(name, Qt::Key_Return);
    }
  }
  QString button_;
  int downs_ = 0;
  QString path_, said_;
  QObject here_;
};

}  // namespace orm
