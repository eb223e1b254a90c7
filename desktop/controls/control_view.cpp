#include "desktop/controls/control_view.h"

#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <utility>

#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "dialogs/data_forms/explanations.h"

namespace orm {
namespace {

constexpr int kWidestCaption = 42;  // characters; a longer caption wraps

// Above others of its kind, a caption that ends in its unit has it at its right end.
class AlignedCaption : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override {
    static const QRegularExpression parts("^(.*\\S)\\s+(\\[[^\\]]*\\])$");
    const QRegularExpressionMatch match = parts.match(text());
    if (wordWrap() || !match.hasMatch()) return QLabel::paintEvent(event);
    QPainter painter(this);
    for (const auto& [part, side] : {std::pair{1, Qt::AlignLeft}, std::pair{2, Qt::AlignRight}})
      style()->drawItemText(&painter, contentsRect(),
                            static_cast<int>(side | Qt::AlignVCenter) | Qt::TextShowMnemonic,
                            palette(), isEnabled(), match.captured(part), foregroundRole());
  }
};

void SetCaptionText(QLabel& label, const QString& text) {
  label.setText(QString(text).replace('&', "&&"));
  const int limit = CharactersWide(label, kWidestCaption);
  const bool wraps = label.fontMetrics().horizontalAdvance(text) > limit;
  label.setWordWrap(wraps);
  label.setMinimumWidth(wraps ? limit : 0);
}

// As the buttons name it.
std::string KeyOf(const QKeyEvent& event) {
  return event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier ? kTastoF4
                                                                          : FromQt(event.text());
}

// The nearest text around a control that has no caption of its own.
std::string InheritedCaption(const Control& control) {
  for (const Frame* frame = control.Parent(); frame != nullptr; frame = frame->Parent())
    if (!frame->Caption().empty()) return frame->Caption();
  return control.Hint().empty() ? control.Owner().Title() : control.Hint();
}

}  // namespace

void ControlView::UseBare(QWidget* widget) {
  field_ = whole_ = widget;
  widget->setObjectName(ToQt(control_.Name()));
  widget->installEventFilter(this);
}

void ControlView::UseWithin(QWidget* field, QWidget* whole) {
  UseBare(field);
  whole_ = whole;
}

void ControlView::UseField(QWidget* field) {
  UseBare(field);
  whole_ = new QWidget(host_.Window());
  line_ = new QHBoxLayout(whole_);
  line_->setContentsMargins(0, 0, 0, 0);
  line_->addWidget(field);
  unit_ = new QLabel(whole_);
  unit_->setTextFormat(Qt::PlainText);
  line_->addWidget(unit_);
  caption_ = new AlignedCaption(host_.Window());
  caption_->setTextFormat(Qt::PlainText);
  caption_->setBuddy(field);
}

void ControlView::AddBehind(QWidget* widget) { line_->insertWidget(line_->indexOf(unit_), widget); }

bool ControlView::KeepsWidth() const {
  return field_->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
}

void ControlView::NameForAccess() {
  std::string name = control_.Caption();
  if (name.empty()) name = InheritedCaption(control_);
  QString text = ToQt(name).simplified();
  if (!control_.Unit().empty()) text += " " + ToQt(control_.Unit()).simplified();
  field_->setAccessibleName(text);
}

void ControlView::LeaveCaptionOut() {
  captionLeftOut_ = true;
  if (caption_ != nullptr) caption_->hide();
}

void ControlView::Refresh() {
  whole_->setVisible(control_.OwnVisible());
  whole_->setEnabled(control_.OwnEnabled());
  field_->setToolTip(ToQt(control_.Hint()));
  if (control_.TakesFocus()) NameForAccess();
  if (caption_ == nullptr) return;
  const QString text = ToQt(control_.Caption()).trimmed();
  SetCaptionText(*caption_, text);
  caption_->setVisible(control_.OwnVisible() && !text.isEmpty() && !captionLeftOut_);
  caption_->setEnabled(control_.OwnEnabled());
  ShowUnit();
}

// It keeps the greatest width that it had, so that what stands behind it does not move.
void ControlView::ShowUnit() {
  unit_->setText(ToQt(control_.Unit()));
  unit_->setVisible(!control_.Unit().empty());
  unit_->setMinimumWidth(std::max(unit_->minimumWidth(), unit_->sizeHint().width()));
  QPalette palette;
  if (control_.UnitAside()) palette.setColor(QPalette::WindowText, NoteText(palette));
  unit_->setPalette(palette);
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == field_ && event->type() == QEvent::KeyPress)
    if (Button* button = host_.ButtonOfKey(KeyOf(*static_cast<QKeyEvent*>(event)))) {
      host_.Press(*button);
      return true;
    }
  if (watched == field_ &&
      (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
    // A menu over the field or another program in front is not a leaving.
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
      if (event->type() == QEvent::FocusIn)
        FocusEntered();
      else
        FocusLeft();
    }
  }
  return QObject::eventFilter(watched, event);
}

void ControlView::FocusLeft() {
  if (!control_.Owner().IsOpen()) return;
  Settle();
  if (control_.onLeave) host_.Act([this] { control_.onLeave(); });
}

QString Wrapped(const QString& text, int longest) {
  if (text.size() <= longest) return text;
  QString out;
  qsizetype lineLength = 0;
  for (const QString& word : text.split(' ')) {
    if (lineLength > 0 && lineLength + 1 + word.size() > longest) {
      out += '\n';
      lineLength = 0;
    } else if (!out.isEmpty()) {
      out += ' ';
      ++lineLength;
    }
    out += word;
    lineLength += word.size();
  }
  return out;
}

}  // namespace orm
