#include "desktop/controls/entry_view.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QValidator>
#include <algorithm>

#include "desktop/controls/balloon.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {

class EntryValidator : public QValidator {
 public:
  explicit EntryValidator(EntryView& view, QObject* parent) : QValidator(parent), view_(view) {}
  State validate(QString& text, int& position) const override {
    // A text that was tidied comes by once more.
    if (view_.writing_ || text == view_.tidied_) return Acceptable;
    const int length = std::max(0, position - view_.from_);
    std::string why = view_.Admit(text, position, text.mid(view_.from_, length));
    if (!why.empty()) {
      view_.Refuse(std::move(why));
      return Invalid;
    }
    position = std::min(position, static_cast<int>(text.size()));
    view_.tidied_ = text;
    return Acceptable;
  }

 private:
  EntryView& view_;
};

EntryLine::EntryLine(EntryView& view, QWidget* parent) : QLineEdit(parent), view_(view) {}

void EntryLine::SetPrefix(const QString& prefix) {
  prefix_ = prefix;
  setTextMargins(fontMetrics().horizontalAdvance(prefix + ' '), 0, 0, 0);
}

void EntryLine::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (prefix_.isEmpty()) return;
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  const int mark = view_.MarkWidth();
  QPainter painter(this);
  painter.setPen(isEnabled() ? NoteText(palette())
                             : palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawText(inside.adjusted(2 + mark, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, prefix_);
}

void EntryLine::keyPressEvent(QKeyEvent* event) {
  if (view_.ActsOn(*event)) return event->accept();
  const QString other = view_.Substitute(*event);
  if (other.isNull()) return QLineEdit::keyPressEvent(event);
  if (other.isEmpty()) return event->accept();
  QKeyEvent substitute(QEvent::KeyPress, other[0].unicode(), Qt::NoModifier, other);
  QLineEdit::keyPressEvent(&substitute);
}

void EntryLine::focusInEvent(QFocusEvent* event) {
  view_.BeginEditing();
  QLineEdit::focusInEvent(event);
}

void EntryLine::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) view_.ShowMark();
}

EntryView::EntryView(Control& control, FormHost& host)
    : ControlView(control, host), line_(new EntryLine(*this, host.Window())) {
  line_->setValidator(new EntryValidator(*this, line_));
  const auto keepPlace = [this] {
    from_ = line_->hasSelectedText() ? line_->selectionStart() : line_->cursorPosition();
  };
  connect(line_, &QLineEdit::selectionChanged, this, keepPlace);
  connect(line_, &QLineEdit::cursorPositionChanged, this, keepPlace);
  connect(line_, &QLineEdit::textEdited, this, [this] { Edited(); });
  connect(line_, &QLineEdit::inputRejected, this, [this] { ShowBalloon(*line_, refusal_); });
}

void EntryView::SetCharacters(int characters, bool stretches) {
  QStyleOptionFrame option;
  option.initFrom(line_);
  option.lineWidth = line_->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, line_);
  // Room for the cursor and for the mark of a warning beside the text.
  const QSize text(CharactersWide(*line_, characters) + 12, line_->fontMetrics().height());
  const int prefix = line_->textMargins().left();
  const int width =
      prefix + line_->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, line_).width();
  if (stretches) {
    line_->setMinimumWidth(width);
  } else {
    line_->setFixedWidth(width);
    line_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
}

void EntryView::Refuse(std::string why) { refusal_ = std::move(why); }

void EntryView::BeginEditing() {
  if (editing_ || line_->isReadOnly()) return;
  editing_ = true;
  if (verdict_.objection.empty()) {
    Keep();
    WriteText();
  }
}

void EntryView::WriteText() {
  const QString text = ToQt(editing_ ? DraftText() : RestingText());
  writing_ = true;
  if (line_->text() != text) line_->setText(text);
  writing_ = false;
  tidied_ = line_->text();
  Written();
}

void EntryView::Edited() {
  const std::string text = FromQt(line_->text());
  taking_ = true;
  host_.Act([&] {
    verdict_ = Take(text);
    if (!verdict_.objection.empty()) TakeBack();
  });
  taking_ = false;
  lastResting_ = RestingText();
  if (verdict_.objection.empty() && !Means(text)) WriteText();  // the form made it another value
  ShowMark();
}

bool EntryView::Settle() {
  if (!editing_ && verdict_.objection.empty()) return true;
  editing_ = line_->hasFocus();
  if (!verdict_.objection.empty()) {
    verdict_.beyondRepair = true;
    ShowMark();
    return false;
  }
  Keep();
  if (!editing_) WriteText();
  return true;
}

void EntryView::ShowMark() {
  const bool wrong = verdict_.beyondRepair && !verdict_.objection.empty();
  const std::string advice = wrong ? std::string() : Advice();
  const bool marked = wrong || Warns() || !advice.empty();
  QPalette palette = QPalette();
  if (line_->isReadOnly()) palette.setBrush(QPalette::Base, palette.brush(QPalette::Window));
  if (wrong) palette.setColor(QPalette::Base, WarningBase(palette));
  if (IsStale()) palette.setColor(QPalette::Text, StaleText(palette));
  if (IsAutomatic()) palette.setColor(QPalette::Text, AutomaticText(palette));
  if (!advice.empty()) palette.setColor(QPalette::Base, AdviceBase(palette));
  const QColor colour = advice.empty() ? WarningText(palette) : AdviceText(palette);
  if (marked) palette.setColor(QPalette::Text, colour);
  line_->setPalette(palette);
  if (marked && mark_ == nullptr) mark_ = line_->addAction(QIcon(), QLineEdit::LeadingPosition);
  if (marked) mark_->setIcon(WarningMark(palette, colour));
  if (mark_ != nullptr) mark_->setVisible(marked);
  SetNote(*line_, wrong ? verdict_.objection : std::string());
  line_->setToolTip(ToQt(wrong ? verdict_.objection : advice.empty() ? Model().Hint() : advice));
  line_->setAccessibleDescription(wrong || !advice.empty() ? line_->toolTip()
                                  : Warns()   ? QStringLiteral("Valore oltre il limite")
                                  : IsStale() ? QStringLiteral("Valore da calcolare")
                                              : QString());
}

int EntryView::MarkWidth() const { return mark_ != nullptr && mark_->isVisible() ? 22 : 0; }

void EntryView::Refresh() {
  ControlView::Refresh();
  line_->setReadOnly(IsReadOnly());
  line_->setFocusPolicy(IsReadOnly() ? Qt::ClickFocus : Qt::StrongFocus);
  if (!taking_ && (lastResting_ != RestingText() || tidied_.isNull())) {
    lastResting_ = RestingText();
    verdict_ = {};
    Keep();
    WriteText();
  }
  ShowMark();
}

std::string EntryView::Shown() const {
  const bool draft = editing_ && verdict_.objection.empty();
  return draft ? RestingText() : FromQt(line_->text());
}

}  // namespace orm
