#include "tests/stage/key_hand.h"

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimerEvent>

#include "desktop/qt_text.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr int kMostSteps = 400;

// Without a screen nobody brings a window to the front, and keys go to what stands there.
QWidget* FocusIn(QWidget& window) {
  if (!window.isActiveWindow()) {
    window.activateWindow();
    QCoreApplication::processEvents();
  }
  QWidget* focus = QApplication::focusWidget();
  return focus != nullptr && focus->window() == &window ? focus : &window;
}

void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) focus = QApplication::activeModalWidget();
  QTest::keyClick(focus, static_cast<Qt::Key>(key), modifiers);
}

// Steps with `key` until the focus stands where it shall.
template <class There>
bool StepUntil(int key, There there) {
  for (int step = 0; step < kMostSteps && !there(); ++step) Key(key);
  return there();
}

[[noreturn]] void Unreachable(const QWidget& widget) {
  throw RuntimeFailure("Con i soli tasti non si arriva a " + FromQt(widget.objectName()) + ".");
}

Qt::Key ArrowTowards(const QWidget& goal, const QWidget& from) {
  const QPoint way =
      goal.mapToGlobal(goal.rect().center()) - from.mapToGlobal(from.rect().center());
  if (std::abs(way.y()) > from.height() / 2) return way.y() > 0 ? Qt::Key_Down : Qt::Key_Up;
  return way.x() > 0 ? Qt::Key_Right : Qt::Key_Left;
}

// A button pressed by its letter goes up again a tenth of a second later: for whoever would wait
// for that thousands of times it comes at once.
void LetTimePass(QPushButton& button) {
  for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&button)) {
    QTimerEvent passed(timer.timerId);
    QCoreApplication::sendEvent(&button, &passed);
    return;
  }
}

// The letter that stands behind '&'; 0 where there is none.
int MnemonicOf(const QString& caption) {
  const auto mark = caption.indexOf(QRegularExpression("&[^&]"));
  return mark < 0 ? 0 : caption[mark + 1].toUpper().unicode();
}

}  // namespace

void KeyHand::Reach(QWidget& widget) {
  FocusIn(dialog_)->setFocus();
  if (!StepUntil(Qt::Key_Tab, [&] { return widget.hasFocus(); })) Unreachable(widget);
}

// A group of options is one stop of Tab; the arrows go on within it and choose, or where none is
// chosen yet only go on.
void KeyHand::Turn(QAbstractButton& mark) {
  const QButtonGroup* group = mark.group();
  if (group == nullptr) {
    Reach(mark);
    return Key(Qt::Key_Space);
  }
  const auto inGroup = [&] {
    auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    return button != nullptr && button->group() == group;
  };
  FocusIn(dialog_)->setFocus();
  if (!StepUntil(Qt::Key_Tab, inGroup)) Unreachable(mark);
  // Once it is chosen the form may close, or choose another one by itself.
  bool chosen = false;
  const auto look = QObject::connect(&mark, &QAbstractButton::toggled, &dialog_,
                                     [&chosen](bool on) { chosen |= on; });
  for (int step = 0; step < kMostSteps && !chosen && dialog_.Model().IsOpen(); ++step) {
    QWidget* focus = FocusIn(dialog_);
    Key(focus == &mark ? Qt::Key_Space : ArrowTowards(mark, *focus));
  }
  QObject::disconnect(look);
  if (!chosen) Unreachable(mark);
}

// Not by F4, with which some forms explain their results.
void KeyHand::Open(QComboBox& combo) { QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier); }

void KeyHand::ChooseRow(QAbstractItemView& items, int row) {
  Reach(items);
  Key(Qt::Key_Home);
  for (int i = 0; i < row; ++i) Key(Qt::Key_Down);
}

// Enter presses the default button from a field of one line; else the mnemonic, or Tab and Space.
void KeyHand::Push(QPushButton& button) {
  QWidget* focus = FocusIn(dialog_);
  if (button.isDefault() && qobject_cast<QLineEdit*>(focus) != nullptr)
    QTest::keyClick(focus, Qt::Key_Return);
  else if (const int mnemonic = MnemonicOf(button.text())) {
    QTest::keyClick(focus, static_cast<Qt::Key>(mnemonic), Qt::AltModifier);
    if (button.isDown()) LetTimePass(button);
  } else {
    Reach(button);
    Key(Qt::Key_Space);
  }
}

// Out of an open panel the first Esc leads back into the form.
void KeyHand::CloseByWindow() {
  QPointer<QWidget> before = FocusIn(dialog_);
  QTest::keyClick(before, Qt::Key_Escape);
  QCoreApplication::processEvents();
  if (!dialog_.Model().IsOpen() || (before && before->isVisible())) return;
  QTest::keyClick(FocusIn(dialog_), Qt::Key_Escape);
  QCoreApplication::processEvents();
}

// ---------------------------------------------------------------- slips

// Enter in a field that holds no value leaves the form as it is, with the reason beside the field.
void HastyHand::MustStay(const Control& control, const QString& slip) {
  Key(Qt::Key_Return);
  QCoreApplication::processEvents();
  if (dialog_.Model().IsOpen() && !dialog_.ViewOf(control).Objection().empty()) return;
  throw RuntimeFailure(control.Name() + " : \"" + FromQt(slip) + "\" è stato preso.");
}

void HastyHand::SlipInNumber(NumberBox& box, QWidget& field, const QString& text) {
  Retype(&field, text + "k");  // a letter leaves the digits, and is told
  if (dialog_.ViewOf(box).TakeRefusal().empty()) throw RuntimeFailure(box.Name() + " : tace.");
  const double right = box.Value();
  // More decimals than the field has, and then taken back again.
  const QString decimals =
      QString(text.contains(',') ? "" : ",") + QString(box.Limits().decimals + 1, '7');
  TypeKeys(&field, decimals);
  MustStay(box, text + decimals);
  for (qsizetype i = 0; i < decimals.size(); ++i) Key(Qt::Key_Backspace);
  if (box.Value() != right) throw RuntimeFailure(box.Name() + " : non vale più quello scritto.");
  // At last it comes from the page of a document.
  QString line = QString("L. %1\u00A0\r\n").arg(text);
  if (box.Limits().decimals == 0 && text.size() > 3) line = QString("L. %1,00 \n").arg(text);
  QGuiApplication::clipboard()->setText(line);
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
}

void HastyHand::Write(Control& control, QWidget& field, const QString& text) {
  if (control.GetKind() == Control::Kind::NumberBox && !text.isEmpty())
    return SlipInNumber(static_cast<NumberBox&>(control), field, text);
  if (control.GetKind() == Control::Kind::Date) {
    Retype(&field, "31/02/2024");
    MustStay(control, "31/02/2024");
  }
  Retype(&field, text);
  if (control.GetKind() != Control::Kind::TextBox || text.isEmpty()) return;
  Key(Qt::Key_Backspace);
  TypeKeys(&field, text.right(1));
}

void HastyHand::Turn(QAbstractButton& mark) {
  KeyHand::Turn(mark);
  if (mark.group() != nullptr) return;
  for (int i = 0; i < 2; ++i) Key(Qt::Key_Space);
}

// Another item, and the list left again.
void HastyHand::Open(QComboBox& combo) {
  const QString before = combo.currentText();
  KeyHand::Open(combo);
  QTest::keyClick(combo.view(), Qt::Key_Down);
  QTest::keyClick(combo.view(), Qt::Key_Escape);
  if (!dialog_.Model().IsOpen() || combo.currentText() != before)
    throw RuntimeFailure(FromQt(combo.objectName()) + " : Esc non ha lasciato la lista com'era.");
  KeyHand::Open(combo);
}

// ---------------------------------------------------------------- around forms

bool ChooseWithKeys(QMenuBar& bar, const std::vector<QMenu*>& path, QAction& command) {
  QTest::keyClick(FocusIn(*bar.window()), static_cast<Qt::Key>(MnemonicOf(path[0]->title())),
                  Qt::AltModifier);
  QCoreApplication::processEvents();
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (!path[i]->isVisible()) return false;
    const bool last = i + 1 == path.size();
    const QAction* next = last ? &command : path[i + 1]->menuAction();
    for (int step = 0; step < kMostSteps && path[i]->activeAction() != next; ++step)
      QTest::keyClick(path[i], Qt::Key_Down);
    if (path[i]->activeAction() != next) return false;
    QTest::keyClick(path[i], last ? Qt::Key_Return : Qt::Key_Right);
  }
  QCoreApplication::processEvents();
  return true;
}

void PressWithKeys(QMessageBox& box, QAbstractButton& button) {
  FocusIn(box)->setFocus();
  if (!StepUntil(Qt::Key_Tab, [&] { return button.hasFocus(); })) Unreachable(button);
  Key(Qt::Key_Space);
}

}  // namespace orm
