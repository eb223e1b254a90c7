// Finding in the report.
#include "desktop/find_bar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextBlock>
#include <QToolButton>

#include "desktop/icons.h"

namespace orm {
namespace {

constexpr int kMostMatches = 5000;  // more are not marked: nobody counts them

QToolButton* SmallButton(LineIcon icon, const QString& tip, const char* name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(IconOf(icon));
  button->setAutoRaise(true);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  return button;
}

}  // namespace

FindBar::FindBar(std::unique_ptr<SoughtText> text, QWidget* parent)
    : QWidget(parent),
      text_(std::move(text)),
      field_(new QLineEdit(this)),
      case_(new QCheckBox(QStringLiteral("&Maiuscole/minuscole"), this)),
      count_(new QLabel(this)) {
  setObjectName(QStringLiteral("findBar"));
  field_->setObjectName(QStringLiteral("findField"));
  field_->setPlaceholderText(QStringLiteral("Cerca nel testo"));
  field_->setMaximumWidth(320);
  case_->setObjectName(QStringLiteral("findCase"));
  count_->setObjectName(QStringLiteral("findCount"));
  count_->setMinimumWidth(count_->fontMetrics().horizontalAdvance(QStringLiteral("5000 di 5000 ")));
  auto* previous =
      SmallButton(LineIcon::Up, QStringLiteral("Precedente (Maiusc+F3)"), "findPrevious", this);
  auto* next = SmallButton(LineIcon::Down, QStringLiteral("Successivo (F3)"), "findNext", this);
  auto* close = SmallButton(LineIcon::Close, QStringLiteral("Chiudi (Esc)"), "findClose", this);

  auto* label = new QLabel(QStringLiteral("T&rova:"), this);
  label->setBuddy(field_);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(10, 6, 10, 6);
  row->addWidget(label);
  row->addWidget(field_, 1);
  row->addWidget(previous);
  row->addWidget(next);
  row->addWidget(count_);
  row->addWidget(case_);
  row->addStretch(1);
  row->addWidget(close);

  connect(field_, &QLineEdit::textChanged, this, [this] { Typed(); });
  connect(case_, &QCheckBox::toggled, this, [this] { Typed(); });
  connect(previous, &QToolButton::clicked, this, [this] { Previous(); });
  connect(next, &QToolButton::clicked, this, [this] { Next(); });
  connect(close, &QToolButton::clicked, this, [this] { Close(); });
  escape_ = new QShortcut(Qt::Key_Escape, &text_->Widget(), nullptr, nullptr, Qt::WidgetShortcut);
  escape_->setEnabled(false);
  connect(escape_, &QShortcut::activated, this, [this] { Close(); });
  connect(&text_->Document(), &QTextDocument::contentsChanged, this, [this] {
    if (isVisible()) MarkMatches(), ShowCount();
  });
  hide();
}

void FindBar::Open() {
  const QString selected = text_->Cursor().selectedText();
  show();
  escape_->setEnabled(true);
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
    field_->setText(selected);
  atBeyond_ = -1;
  MarkMatches();
  ShowCount();
  field_->setFocus();
  field_->selectAll();
}

void FindBar::Close() {
  hide();
  escape_->setEnabled(false);
  text_->Mark({});
  text_->Widget().setFocus();
}

void FindBar::SeekAnew() {
  if (!isVisible()) return;
  atBeyond_ = -1;
  MarkMatches();
  ShowCount();
}

void FindBar::Typed() {
  // A line is pasted with its end, which is no part of any line.
  static const QRegularExpression ends(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]"));
  const QString typed = field_->text();
  if (typed.contains(ends)) return field_->setText(typed.split(ends, Qt::SkipEmptyParts).value(0));
  QTextCursor cursor = text_->Cursor();
  cursor.setPosition(cursor.selectionStart());
  text_->SetCursor(cursor);
  atBeyond_ = -1;
  MarkMatches();
  Step(false);
}

void FindBar::Step(bool backward) {
  if (!isVisible()) return Open();
  if (field_->text().isEmpty() || (matches_.isEmpty() && beyond_ == 0)) return ShowCount();
  const bool wasBeyond = atBeyond_ >= 0;
  if (wasBeyond && StepBeyond(backward)) return;
  QTextCursor edge(&text_->Document());
  if (backward) edge.movePosition(QTextCursor::End);
  QTextDocument::FindFlags flags;
  if (backward) flags |= QTextDocument::FindBackward;
  if (case_->isChecked()) flags |= QTextDocument::FindCaseSensitively;
  const auto find = [&](const QTextCursor& from) {
    return text_->Document().find(field_->text(), from, flags);
  };
  QTextCursor found = find(wasBeyond ? edge : text_->Cursor());
  QString remark;
  if (found.isNull() && StepBeyond(backward)) return;
  if (found.isNull() || (wasBeyond && !backward)) {
    found = find(edge);
    remark =
        backward ? QStringLiteral("ripreso dalla fine") : QStringLiteral("ripreso dall'inizio");
  }
  if (found.isNull()) return ShowCount();
  text_->SetCursor(found);
  ShowCount(remark);
}

// Shows the next match beyond the page; false when there is none, or the next is in the page again.
bool FindBar::StepBeyond(bool backward) {
  if (beyond_ == 0) return false;
  const int edge = backward ? beyond_ - 1 : 0;
  const int next = atBeyond_ < 0 ? edge : atBeyond_ + (backward ? -1 : 1);
  const bool there = next >= 0 && next < beyond_;
  atBeyond_ = there ? next : matches_.isEmpty() ? edge : -1;
  if (atBeyond_ < 0) return false;
  further_.show(atBeyond_);
  ShowCount(further_.remark);
  return true;
}

void FindBar::MarkMatches() {
  matches_.clear();
  QList<QTextEdit::ExtraSelection> marks;
  QTextCharFormat mark;
  mark.setBackground(QColor(255, 214, 74));
  mark.setForeground(Qt::black);
  QTextDocument::FindFlags flags;
  if (case_->isChecked()) flags |= QTextDocument::FindCaseSensitively;
  QTextCursor found(&text_->Document());
  while (!field_->text().isEmpty() && matches_.size() < kMostMatches) {
    found = text_->Document().find(field_->text(), found, flags);
    if (found.isNull()) break;
    matches_ += found.selectionStart();
    marks += {found, mark};
  }
  text_->Mark(marks);
  const auto letters = case_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
  beyond_ = further_.count ? further_.count(field_->text(), letters) : 0;
}

void FindBar::ShowCount(const QString& remark) {
  const auto all = matches_.size() + beyond_;
  const bool none = all == 0 && !field_->text().isEmpty();
  QPalette colours;
  if (none) {
    const bool dark = colours.color(QPalette::Base).lightness() < 128;
    colours.setColor(QPalette::Base, dark ? QColor(92, 34, 34) : QColor(255, 221, 221));
  }
  field_->setPalette(colours);
  const auto at = atBeyond_ >= 0 ? matches_.size() + atBeyond_
                                 : matches_.indexOf(text_->Cursor().selectionStart());
  QString text;
  if (none) {
    text = QStringLiteral("Nessun risultato");
  } else if (all > 0) {
    text = atBeyond_ >= 0 || (at >= 0 && text_->Cursor().hasSelection())
               ? QStringLiteral("%1 di %2").arg(at + 1).arg(all)
               : QStringLiteral("%1 trovati").arg(all);
  }
  count_->setText(remark.isEmpty() ? text : text + QStringLiteral(", ") + remark);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return Close();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    return Step(event->modifiers() & Qt::ShiftModifier);
  QWidget::keyPressEvent(event);
}

}  // namespace orm
