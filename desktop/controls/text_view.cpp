// TestoBox: text on one line or several.
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

#include "desktop/controls/balloon.h"
#include "desktop/controls/entry_view.h"
#include "desktop/controls/views.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kStretchingWidth = 36;  // characters; a wider field takes the room that there is

// Pasted text as a field can hold it: composed letters, blanks for tabs, lines only where admitted.
QString Tidied(QString text, bool lines) {
  text = text.normalized(QString::NormalizationForm_C);
  text.replace("\r\n", "\n").replace('\r', '\n').replace('\t', ' ');
  text.replace(QChar::LineSeparator, '\n').replace(QChar::ParagraphSeparator, '\n');
  if (lines) return text;
  while (text.endsWith('\n')) text.chop(1);
  return text.replace('\n', ' ');
}

class TextView : public EntryView {
 public:
  TextView(TestoBox& box, FormHost& host) : EntryView(box, host), box_(box) {
    const int width = std::min(box.Options().width, box.Options().longest + 1);
    SetCharacters(std::min(width, 70), width >= kStretchingWidth);
    if (box.Options().figure) Line().setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    UseField(&Line());
  }

 protected:
  std::string Admit(QString& text, int&, const QString& inserted) override {
    if (inserted.size() > 1) text = Tidied(text, false);
    return box_.Objection(FromQt(text));
  }
  Verdict Take(const std::string& text) override { return {box_.Type(text)}; }
  bool Means(const std::string& text) const override { return text == box_.Text(); }
  std::string RestingText() const override { return box_.Text(); }
  bool IsReadOnly() const override { return box_.Options().readOnly; }

 private:
  TestoBox& box_;
};

// ---------------------------------------------------------------- several lines

class TextArea : public QPlainTextEdit {
 public:
  TextArea(QWidget* parent, std::function<std::string(const std::string&)> objection)
      : QPlainTextEdit(parent), objection_(std::move(objection)) {
    setTabChangesFocus(true);
  }
  QSize sizeHint() const override { return minimumSize(); }
  // The lines fold by words at so many columns, however wide the field is; a rule marks the place.
  void FoldAt(int columns) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    folded_ = qCeil(QFontMetricsF(font()).horizontalAdvance(QString(columns, '0')) +
                    2 * document()->documentMargin()) +
              cursorWidth();
    const int bar = verticalScrollBar()->sizeHint().width();
    setMinimumWidth(folded_ + bar + 2 * frameWidth());
  }
  std::string refusal;
  std::function<void(int)> onLine;  // a click on a line, without choosing a part of the text

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QPlainTextEdit::resizeEvent(event);
    if (folded_ == 0) return;
    const int bar = verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0;
    const int beyond = std::max(contentsRect().width() - bar - folded_, 0);
    if (viewportMargins().right() == beyond) return;
    setViewportMargins(0, 0, beyond, 0);
    QResizeEvent narrower(viewport()->size(), {});  // for the lines, laid out before the margin
    QPlainTextEdit::resizeEvent(&narrower);
  }
  void paintEvent(QPaintEvent* event) override {
    QPlainTextEdit::paintEvent(event);
    if (folded_ == 0) return;
    QPainter(viewport())
        .fillRect(folded_ - 1, 0, 1, viewport()->height(), palette().color(QPalette::Mid));
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    QPlainTextEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && onLine && !textCursor().hasSelection())
      onLine(cursorForPosition(event->pos()).blockNumber());
  }
  void keyPressEvent(QKeyEvent* event) override {
    const QString typed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
                              ? QStringLiteral("\n")
                              : event->text();
    const bool writes = !isReadOnly() && !typed.isEmpty() &&
                        (typed[0].isPrint() || typed == "\n") &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (writes && !Admits(typed)) return event->accept();
    QPlainTextEdit::keyPressEvent(event);
  }
  void inputMethodEvent(QInputMethodEvent* event) override {
    if (event->commitString().isEmpty() || Admits(event->commitString()))
      QPlainTextEdit::inputMethodEvent(event);
  }
  void insertFromMimeData(const QMimeData* source) override {
    const QString text = Tidied(source->text(), true);
    if (!text.isEmpty() && Admits(text)) textCursor().insertText(text);
  }

 private:
  bool Admits(const QString& insertion) {
    if (isReadOnly()) return false;
    const QTextCursor cursor = textCursor();
    QString whole = toPlainText();
    whole.replace(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(),
                  insertion);
    refusal = objection_(FromQt(whole));
    if (refusal.empty())
      HideBalloon(*this);
    else
      ShowBalloon(*this, refusal);
    return refusal.empty();
  }
  std::function<std::string(const std::string&)> objection_;
  int folded_ = 0;  // pixels of the columns at which the lines fold; 0: they fold at the edge
};

class TextAreaView : public ControlView {
 public:
  TextAreaView(TestoBox& box, FormHost& host)
      : ControlView(box, host),
        box_(box),
        area_(new TextArea(host.Window(),
                           [&box](const std::string& t) { return box.Objection(t); })) {
    const bool page = box.Options().columns && !box.Options().readOnly;
    if (box.Options().columns) area_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const QMargins margins = area_->contentsMargins();
    const int frame = margins.top() + margins.bottom() +
                      2 * static_cast<int>(area_->document()->documentMargin());
    area_->setMinimumHeight(area_->fontMetrics().lineSpacing() * box.Options().lines + frame + 4);
    area_->setMinimumWidth(CharactersWide(*area_, std::min(box.Options().width, 70)) + frame);
    if (page) area_->FoldAt(box.Options().width);
    area_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    UseField(area_);
    if (box.onLine) area_->onLine = [this](int line) { host_.Act([&] { box_.onLine(line); }); };
    connect(area_, &QPlainTextEdit::textChanged, this, [this] { Edited(); });
  }
  bool Grows() const override { return true; }
  std::string Shown() const override { return FromQt(area_->toPlainText()); }
  std::string TakeRefusal() override { return std::exchange(area_->refusal, {}); }

  void Refresh() override {
    ControlView::Refresh();
    area_->setReadOnly(box_.Options().readOnly);
    if (box_.Options().readOnly)  // arrows and pages go through it too
      area_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    area_->setFocusPolicy(box_.Options().readOnly ? Qt::ClickFocus : Qt::StrongFocus);
    if (taking_ || ToQt(box_.Text()) == area_->toPlainText()) return;
    taking_ = true;
    area_->setPlainText(ToQt(box_.Text()));
    taking_ = false;
  }

 private:
  void Edited() {
    if (std::exchange(taking_, true)) return;
    host_.Act([this] { box_.Type(Shown()); });
    taking_ = false;
    if (box_.Text() != Shown()) Refresh();
  }

  TestoBox& box_;
  TextArea* area_;
  bool taking_ = false;
};

}  // namespace

std::unique_ptr<ControlView> MakeTextView(TestoBox& box, FormHost& host) {
  if (box.Options().lines > 1) return std::make_unique<TextAreaView>(box, host);
  return std::make_unique<TextView>(box, host);
}

}  // namespace orm
