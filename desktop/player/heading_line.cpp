#include "desktop/player/heading_line.h"

#include <QEvent>
#include <QPainter>

#include "desktop/controls/control_view.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kSubjectAtLeast = 24;  // characters of the subject that a window makes room for
constexpr int kBelow = 5;            // pixels between the text and the rule below it

}  // namespace

HeadingLine::HeadingLine(const Heading& heading, QWidget* parent)
    : QWidget(parent),
      note_(ToQt(heading.note)),
      subject_(ToQt(heading.subject)),
      way_(ToQt(heading.way)) {
  setObjectName("percorso");
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setAccessibleName(Whole());
}

QString HeadingLine::Before(const QString& subject) const {
  const QString mark = kHeadingMark;
  return note_ + (subject.isEmpty() ? "" : mark + subject) + (way_.isEmpty() ? "" : mark);
}

QFont HeadingLine::WayFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

int HeadingLine::Width(const QString& subject) const {
  return fontMetrics().horizontalAdvance(Before(subject)) +
         QFontMetrics(WayFont()).horizontalAdvance(way_) + 2;
}

QString HeadingLine::SubjectWithin(int room) const {
  if (subject_.isEmpty() || Width(subject_) <= room) return subject_;
  const int rest = Width("x") - fontMetrics().horizontalAdvance("x");
  return fontMetrics().elidedText(subject_, Qt::ElideMiddle, std::max(room - rest, 0));
}

QString HeadingLine::Shown() const { return Line(SubjectWithin(width())); }

QSize HeadingLine::sizeHint() const {
  const int rest =
      subject_.isEmpty() ? Width({}) : Width("x") + CharactersWide(*this, kSubjectAtLeast);
  return {std::min(Width(subject_), rest), fontMetrics().height() + kBelow + 1};
}

void HeadingLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString before = Before(SubjectWithin(width()));
  const int ascent = fontMetrics().ascent();
  painter.setPen(NoteText(palette()));
  painter.drawText(0, ascent, before);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(WayFont());
  painter.drawText(fontMetrics().horizontalAdvance(before), ascent, way_);
  painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Mid));
}

bool HeadingLine::event(QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
    setToolTip(Shown() == Whole() ? QString() : Wrapped(Whole(), 80));
  return QWidget::event(event);
}

}  // namespace orm
