#include "desktop/controls/entry_view.h"

#include <QAction>
#include <QKeyEvent>
#include <QStyleOptionFrame>
#include <QValidator>
#include <algorithm>

#include "desktop/controls/balloon.h"
#include "desktop/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

// How many characters the change from one text to the other has put in.
qsizetype InsertedLength(const QString& before, const QString& after) {
  const qsizetype shorter = std::min(before.size(), after.size());
  qsizetype head = 0;
  while (head < shorter && before[head] == after[head]) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  return after.size() - head - tail;
}

}  // namespace

class EntryValidator : public QValidator {
 public:
  explicit EntryValidator(EntryView& view, QObject* parent) : QValidator(parent), view_(view) {}
  State validate(QString& text, int& position) const override {
    if (view_.writing_) return Acceptable;
    const bool inserted = InsertedLength(view_.lastText_, text) > 1;
    const qsizetype length = text.size();
    std::string why = view_.Admit(text, inserted);
    if (!why.empty()) {
      view_.Refuse(std::move(why));
      return Invalid;
    }
    if (text.size() != length) position = static_cast<int>(text.size());
    return Acceptable;
  }

 private:
  EntryView& view_;
};

EntryLine::EntryLine(EntryView& view, QWidget* parent) : QLineEdit(parent), view_(view) {}

void EntryLine::keyPressEvent(QKeyEvent* event) {
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
  connect(line_, &QLineEdit::textEdited, this, [this] { Edited(); });
  connect(line_, &QLineEdit::inputRejected, this, [this] { ShowBalloon(*line_, refusal_); });
}

void EntryView::SetCharacters(int characters, bool stretches) {
  QStyleOptionFrame option;
  option.initFrom(line_);
  option.lineWidth = line_->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, line_);
  // Room for the cursor and for the mark of a warning beside the text.
  const QSize text(CharactersWide(*line_, characters) + 12, line_->fontMetrics().height());
  const int width =
      line_->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, line_).width();
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
  writing_ = true;
  line_->setText(ToQt(editing_ ? DraftText() : RestingText()));
  writing_ = false;
  lastText_ = line_->text();
}

void EntryView::Edited() {
  lastText_ = line_->text();
  HideBalloon(*line_);
  const std::string text = FromQt(lastText_);
  taking_ = true;
  host_.Act([&] {
    verdict_ = Take(text);
    if (!verdict_.objection.empty()) TakeBack();
  });
  taking_ = false;
  lastResting_ = RestingText();
  if (verdict_.objection.empty() && !Means(text)) WriteText();  // the form made it another value
  ShowMark();
  if (verdict_.beyondRepair) ShowBalloon(*line_, verdict_.objection);
}

bool EntryView::Settle() {
  if (!editing_ && verdict_.objection.empty()) return true;
  editing_ = line_->hasFocus();
  if (!verdict_.objection.empty()) {
    verdict_.beyondRepair = true;
    ShowMark();
    ShowBalloon(*line_, verdict_.objection);
    return false;
  }
  Keep();
  if (!editing_) WriteText();
  return true;
}

void EntryView::ShowMark() {
  const bool wrong = verdict_.beyondRepair && !verdict_.objection.empty();
  const bool marked = wrong || Warns();
  QPalette palette = QPalette();
  if (line_->isReadOnly()) palette.setBrush(QPalette::Base, palette.brush(QPalette::Window));
  if (wrong) palette.setColor(QPalette::Base, WarningBase(palette));
  if (IsAutomatic()) palette.setColor(QPalette::Text, AutomaticText(palette));
  if (marked) palette.setColor(QPalette::Text, WarningText(palette));
  line_->setPalette(palette);
  if (marked && mark_ == nullptr)
    mark_ = line_->addAction(WarningMark(palette), QLineEdit::LeadingPosition);
  if (mark_ != nullptr) mark_->setVisible(marked);
  line_->setToolTip(ToQt(wrong ? verdict_.objection : Model().Hint()));
  line_->setAccessibleDescription(wrong     ? ToQt(verdict_.objection)
                                  : Warns() ? QStringLiteral("Valore oltre il limite")
                                            : QString());
}

void EntryView::Refresh() {
  ControlView::Refresh();
  line_->setReadOnly(IsReadOnly());
  line_->setFocusPolicy(IsReadOnly() ? Qt::ClickFocus : Qt::StrongFocus);
  if (!taking_ && (lastResting_ != RestingText() || lastText_.isNull())) {
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
