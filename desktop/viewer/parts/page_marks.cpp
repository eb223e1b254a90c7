// The marks in the margin of the sheet, at the lines that can be explained.
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "desktop/dress/look.h"
#include "desktop/viewer/parts/page.h"

namespace orm {
namespace {

constexpr qreal kMarkAside = 16;     // pixels from the mark's middle to the text
constexpr qreal kMarkRadius = 0.14;  // in heights of a line

}  // namespace

void ViewerPage::SetMarks(const std::vector<int>& lines) {
  starts_ = {0};
  const QString text = document()->toRawText();
  for (qsizetype i = 0; i < text.size(); ++i)
    if (text[i] == QChar::ParagraphSeparator || text[i] == QChar::LineSeparator)
      starts_.push_back(static_cast<int>(i) + 1);
  marked_ = lines;
  markedRevision_ = document()->revision();
  viewport()->setMouseTracking(!lines.empty());
  viewport()->update();
}

int ViewerPage::LineOfCursor() const {
  const auto behind = std::upper_bound(starts_.begin(), starts_.end(), textCursor().position());
  return static_cast<int>(behind - starts_.begin());
}

void ViewerPage::GoToLine(int line) {
  if (line < 1 || line > static_cast<int>(starts_.size())) return;
  QTextCursor cursor(document());
  cursor.setPosition(std::min(starts_[static_cast<std::size_t>(line) - 1],
                              std::max(0, document()->characterCount() - 1)));
  setTextCursor(cursor);
}

void ViewerPage::ShowMarkedLine(bool on) {
  showMarked_ = on;
  viewport()->update();
}

// On the viewport; empty where the line is above or below what is seen.
QRectF ViewerPage::PlaceOfLine(int line) const {
  const int start = starts_[static_cast<std::size_t>(line) - 1];
  const QTextBlock block = document()->findBlock(start);
  if (block.blockNumber() < firstVisibleBlock().blockNumber()) return {};
  const QRectF whole = blockBoundingGeometry(block).translated(contentOffset());
  if (whole.top() > viewport()->height()) return {};
  const QTextLine row = block.layout()->lineForTextPosition(start - block.position());
  if (!row.isValid()) return {};
  return row.rect().translated(whole.topLeft());
}

int ViewerPage::MarkAt(QPoint point) const {
  if (markedRevision_ != document()->revision()) return 0;
  for (const int line : marked_) {
    const QRectF place = PlaceOfLine(line);
    if (!place.isNull() && point.y() >= place.top() && point.y() < place.bottom())
      return point.x() < place.left() ? line : 0;
  }
  return 0;
}

void ViewerPage::paintEvent(QPaintEvent* event) {
  QPlainTextEdit::paintEvent(event);
  if (markedRevision_ != document()->revision()) return;
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const int here = showMarked_ ? LineOfCursor() : 0;
  for (const int line : marked_) {
    const QRectF place = PlaceOfLine(line);
    if (place.isNull()) continue;
    QColor colour = line == here ? palette().color(QPalette::Highlight) : NoteText(palette());
    colour.setAlpha(line == here ? 255 : 150);  // quiet
    painter.setBrush(colour);
    const qreal radius = place.height() * kMarkRadius * (line == here ? 1.5 : 1);
    painter.drawEllipse(QPointF(place.left() - kMarkAside, place.center().y()), radius, radius);
    if (line != here) continue;
    colour.setAlpha(40);
    painter.fillRect(QRectF(0, place.top(), viewport()->width(), place.height()), colour);
  }
}

void ViewerPage::mouseMoveEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseMoveEvent(event);
  viewport()->setCursor(MarkAt(event->pos()) > 0 ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void ViewerPage::mouseReleaseEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseReleaseEvent(event);
  const int line = MarkAt(event->pos());
  if (line > 0 && event->button() == Qt::LeftButton && markClicked) markClicked(line);
}

}  // namespace orm
