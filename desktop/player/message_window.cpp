#include "desktop/player/message_window.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <vector>

#include "desktop/pictures.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

struct Choice {
  Answer answer;
  const char* name;
  const char* caption;
};

constexpr Choice kOk{Answer::Ok, "ok", "OK"};
constexpr Choice kCancel{Answer::Cancel, "cancel", "&Annulla"};
constexpr Choice kYes{Answer::Yes, "yes", "&Sì"};
constexpr Choice kNo{Answer::No, "no", "&No"};

// The first is the default, the last is what leaving the box means.
std::vector<Choice> ChoicesOf(MessageBox::Buttons buttons) {
  switch (buttons) {
    case MessageBox::Buttons::Ok:
      return {kOk};
    case MessageBox::Buttons::OkCancel:
      return {kOk, kCancel};
    case MessageBox::Buttons::YesNo:
      return {kYes, kNo};
    case MessageBox::Buttons::YesNoCancel:
      return {kYes, kNo, kCancel};
  }
  return {kOk};
}

// The icon gives the box its sound and its role for screen readers, the mark its look.
void SetIcon(QMessageBox& shown, MessageBox::Icon icon) {
  const auto set = [&](QMessageBox::Icon meaning, Mark mark) {
    shown.setIcon(meaning);
    const int side = shown.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &shown);
    shown.setIconPixmap(MessageMark(mark, side, shown.devicePixelRatioF()));
  };
  switch (icon) {
    case MessageBox::Icon::None:
      return;
    case MessageBox::Icon::Information:
      return set(QMessageBox::Information, Mark::Information);
    case MessageBox::Icon::Exclamation:
      return set(QMessageBox::Warning, Mark::Warning);
    case MessageBox::Icon::Critical:
      return set(QMessageBox::Critical, Mark::Critical);
    case MessageBox::Icon::Question:
      return set(QMessageBox::Question, Mark::Question);
  }
}

// As wide as the longest line, where the screen lets it.
void WidenToLines(QMessageBox& shown) {
  auto* text = shown.findChild<QLabel*>("qt_msgbox_label");
  if (text == nullptr) return;
  constexpr int kAround = 160;  // icon, margins and the window's frame
  int longest = 0;
  for (const QString& line : shown.text().split('\n'))
    longest = std::max(longest, text->fontMetrics().horizontalAdvance(line) + 2);
  text->setMinimumWidth(std::min(longest, shown.screen()->availableSize().width() - kAround));
}

}  // namespace

std::unique_ptr<QMessageBox> BuildMessageWindow(const MessageBox& box, QWidget* parent) {
  auto shown = std::make_unique<QMessageBox>(parent);
  shown->setWindowTitle(ToQt(box.title).trimmed());
  shown->setTextFormat(Qt::PlainText);
  shown->setText(ToQt(box.text));
  SetIcon(*shown, box.icon);
  const std::vector<Choice> choices = ChoicesOf(box.buttons);
  for (const Choice& choice : choices) {
    // One role for all, so that no platform puts them into another order.
    QPushButton* button =
        shown->addButton(QString::fromUtf8(choice.caption), QMessageBox::ActionRole);
    button->setObjectName(choice.name);
    if (&choice == &choices.front()) shown->setDefaultButton(button);
    if (&choice == &choices.back()) shown->setEscapeButton(button);
  }
  shown->ensurePolished();
  WidenToLines(*shown);
  return shown;
}

QAbstractButton* ButtonOf(const QMessageBox& shown, Answer answer) {
  for (const Choice& choice : {kOk, kCancel, kYes, kNo})
    if (choice.answer == answer) return shown.findChild<QAbstractButton*>(choice.name);
  return nullptr;
}

Answer AnswerGiven(const QMessageBox& shown, const MessageBox& box) {
  const std::vector<Choice> choices = ChoicesOf(box.buttons);
  for (const Choice& choice : choices)
    if (shown.clickedButton() != nullptr && shown.clickedButton() == ButtonOf(shown, choice.answer))
      return choice.answer;
  return choices.back().answer;
}

}  // namespace orm
