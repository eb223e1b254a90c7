// Labels, frames and buttons: what carries its own text.
#include <QGroupBox>
#include <QPushButton>

#include "desktop/controls/views.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kWidestLine = 64;  // characters of a label before it wraps

class LabelView : public ControlView {
 public:
  LabelView(Label& label, FormHost& host)
      : ControlView(label, host), label_(label), text_(new QLabel(host.Window())) {
    text_->setTextFormat(Qt::PlainText);
    UseField(text_);
    Caption()->setBuddy(nullptr);
  }
  void Refresh() override {
    ControlView::Refresh();
    const QString text = Written();
    text_->setText(text);
    text_->setAccessibleName(text.isEmpty() ? ToQt(label_.Caption()) : text);
    ShowStyle();
    const int limit = CharactersWide(*text_, kWidestLine);
    int widest = 0;
    for (const QString& line : text.split('\n'))
      widest = std::max(widest, text_->fontMetrics().horizontalAdvance(line));
    const bool wraps = widest > limit;
    const int frame = 2;  // what a label adds to its letters
    text_->setWordWrap(wraps);
    // A text that changes keeps the greatest width that it had, so that the form does not jump.
    text_->setMinimumWidth(std::max(text_->minimumWidth(), std::min(widest + frame, limit)));
    if (wraps)
      text_->setMinimumHeight(std::max(text_->minimumHeight(), text_->heightForWidth(limit)));
  }
  std::string Shown() const override {
    return text_->text() == Written() ? label_.Text() : FromQt(text_->text());
  }

 private:
  // The outer blanks of a line set it off on a screen of fixed places; here they would only shift
  // it.
  QString Written() const {
    const QString text = ToQt(label_.Text());
    return text.contains('\n') ? text : text.trimmed();
  }
  void ShowStyle() {
    QFont font;
    QPalette palette;
    switch (label_.GetStyle()) {
      case Label::Style::Plain:
        break;
      case Label::Style::Note:
        palette.setColor(QPalette::WindowText, NoteText(palette));
        break;
      case Label::Style::Strong:
        font.setBold(true);
        break;
      case Label::Style::Warning:
        palette.setColor(QPalette::WindowText, WarningText(palette));
        font.setBold(true);
        break;
      case Label::Style::Title:
        font.setPointSizeF(font.pointSizeF() * 1.25);
        font.setBold(true);
        break;
    }
    text_->setFont(font);
    text_->setPalette(palette);
  }
  Label& label_;
  QLabel* text_;
};

class FrameView : public ControlView {
 public:
  FrameView(Frame& frame, FormHost& host) : ControlView(frame, host), frame_(frame) {
    if (frame.Caption().empty()) {
      UseBare(new QWidget(host.Window()));
    } else {
      group_ = new QGroupBox(host.Window());
      UseBare(group_);
    }
  }
  void Refresh() override {
    ControlView::Refresh();
    if (group_ != nullptr) group_->setTitle(Literal(frame_.Caption()).trimmed());
  }
  std::string Shown() const override { return frame_.Caption(); }

 private:
  Frame& frame_;
  QGroupBox* group_ = nullptr;
};

class ButtonView : public ControlView {
 public:
  ButtonView(Button& button, FormHost& host)
      : ControlView(button, host), button_(button), push_(new QPushButton(host.Window())) {
    push_->setAutoDefault(true);
    push_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    UseBare(push_);
    connect(push_, &QPushButton::clicked, this, [this] { host_.Press(button_); });
  }
  void Refresh() override {
    ControlView::Refresh();
    push_->setText(ToQt(button_.Caption()));
    push_->setAccessibleName(ToQt(button_.ShownText()));
    push_->setMinimumWidth(CharactersWide(*push_, 11));
  }
  std::string Shown() const override { return FromQt(push_->text().remove('&')); }

 private:
  Button& button_;
  QPushButton* push_;
};

}  // namespace

std::unique_ptr<ControlView> MakeLabelView(Label& label, FormHost& host) {
  return std::make_unique<LabelView>(label, host);
}

std::unique_ptr<ControlView> MakeFrameView(Frame& frame, FormHost& host) {
  return std::make_unique<FrameView>(frame, host);
}

std::unique_ptr<ControlView> MakeButtonView(Button& button, FormHost& host) {
  return std::make_unique<ButtonView>(button, host);
}

}  // namespace orm
