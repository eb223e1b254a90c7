// The sheet on the screen: its place on the table, its letters and its zoom.
#include "desktop/viewer/parts/page.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desktop/export/pages.h"
#include "desktop/pasted_text.h"

namespace orm {
namespace {

constexpr qreal kLetters = 11;    // points at 100 %
constexpr int kSheetMargin = 44;  // pixels, at each edge of the sheet
constexpr int kLeastZoom = 50, kMostZoom = 400, kZoomStep = 10;
constexpr int kShadow = 5;

bool IsDark(const QColor& colour) { return colour.lightness() < 128; }

}  // namespace

ViewerPage::ViewerPage(QWidget* parent) : QPlainTextEdit(parent), columns_(kReportColumns) {
  setObjectName(QStringLiteral("page"));
  setAccessibleName(QStringLiteral("Testo del documento"));
  setFrameShape(QFrame::NoFrame);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  // Set once and not by the zoom: to the document it is an edit, with its place in the history.
  document()->setDocumentMargin(kSheetMargin);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  UpdateColours();
  SetZoom(100);
  // The text's own widget paints no more than the cursor anew.
  connect(this, &QPlainTextEdit::cursorPositionChanged, viewport(), [this] {
    if (showMarked_) viewport()->update();
  });
}

void ViewerPage::SetText(const std::string& text) {
  const QTextCursor before = textCursor();
  const int line = before.blockNumber(), column = before.positionInBlock();
  const int top = verticalScrollBar()->value();
  const QString shown = QString::fromStdString(text);
  columns_ = ColumnsOf(VisibleLines(shown));
  setPlainText(shown);
  if (fits_) FitToWidth();
  PlaceSheet();

  const QTextBlock block = document()->findBlockByNumber(std::min(line, blockCount() - 1));
  QTextCursor cursor(block);
  cursor.setPosition(block.position() + std::min(column, block.length() - 1));
  setTextCursor(cursor);
  verticalScrollBar()->setValue(top);
}

std::string ViewerPage::Text() const {
  // The raw text keeps hard blanks and line feeds alone, which the plain text would lose.
  return document()->toRawText().replace(QChar::ParagraphSeparator, '\n').toStdString();
}

void ViewerPage::SetZoom(int percent) {
  fits_ = false;
  Enlarge(percent);
}

void ViewerPage::SetFit(bool on) {
  fits_ = on;
  if (on) FitToWidth();
  if (zoomChanged) zoomChanged();
}

void ViewerPage::FitToWidth() {
  int percent = kMostZoom;
  while (percent > kLeastZoom && SheetWidthAt(percent) > Room()) --percent;
  if (percent != zoom_) Enlarge(percent);
}

void ViewerPage::Enlarge(int percent) {
  zoom_ = std::clamp(percent, kLeastZoom, kMostZoom);
  const QFont font = ReportFont(kLetters * zoom_ / 100);
  setFont(font);
  document()->setDefaultFont(font);
  setTabStopDistance(8 * QFontMetricsF(font).horizontalAdvance('0'));
  PlaceSheet();
  if (zoomChanged) zoomChanged();
}

void ViewerPage::ZoomBy(int steps) { SetZoom((zoom_ / kZoomStep + steps) * kZoomStep); }

int ViewerPage::SheetWidth() const { return SheetWidthAt(zoom_); }

int ViewerPage::SheetWidthAt(int percent) const {
  const qreal letter = QFontMetricsF(ReportFont(kLetters * percent / 100)).horizontalAdvance('0');
  return static_cast<int>(std::ceil(columns_ * letter)) + 2 * kSheetMargin + 2;
}

int ViewerPage::Room() const { return width() - verticalScrollBar()->sizeHint().width(); }

void ViewerPage::PlaceSheet() {
  const int side = std::max(0, (Room() - SheetWidth()) / 2);
  const QMargins margins(side, 0, side, 0);
  if (viewportMargins() != margins) setViewportMargins(margins);
  update();
}

void ViewerPage::UpdateColours() {
  // The selection stays as strong while the find bar has the keyboard.
  QPalette colours = palette();
  colours.setBrush(QPalette::Inactive, QPalette::Highlight,
                   colours.brush(QPalette::Active, QPalette::Highlight));
  colours.setBrush(QPalette::Inactive, QPalette::HighlightedText,
                   colours.brush(QPalette::Active, QPalette::HighlightedText));
  if (colours != palette()) setPalette(colours);
}

bool ViewerPage::event(QEvent* event) {
  const bool done = QPlainTextEdit::event(event);
  if (event->type() == QEvent::Paint) {
    QPainter painter(this);
    const QColor window = palette().color(QPalette::Window);
    painter.fillRect(rect(), IsDark(window) ? window.darker(140) : window.darker(112));
    const QRect sheet = viewport()->geometry();
    const int strength = IsDark(window) ? 110 : 60;
    const auto shade = [&](int edge, int direction) {
      QLinearGradient gradient(edge, 0, edge + direction * kShadow, 0);
      gradient.setColorAt(0, QColor(0, 0, 0, strength));
      gradient.setColorAt(1, QColor(0, 0, 0, 0));
      painter.fillRect(direction > 0 ? edge : edge - kShadow, 0, kShadow, height(), gradient);
    };
    shade(sheet.left(), -1);
    shade(sheet.right() + 1, 1);
  }
  return done;
}

void ViewerPage::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  if (fits_) FitToWidth();
  PlaceSheet();
}

void ViewerPage::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) UpdateColours();
}

// Files are for the window to open.
bool ViewerPage::canInsertFromMimeData(const QMimeData* source) const {
  return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

void ViewerPage::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly()) return;
  const QString text = FitForPasting(source->text(), *document(), kTextRoom, this);
  if (!text.isEmpty()) textCursor().insertText(text);
  ensureCursorVisible();
}

void ViewerPage::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(event);
  const int turn = event->angleDelta().y();
  if (turn != 0) ZoomBy(turn > 0 ? 1 : -1);
  event->accept();
}

void ViewerPage::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && escaped) return escaped();
  if (!isReadOnly() && !event->text().isEmpty() && event->text()[0] >= QChar(' ') &&
      event->key() != Qt::Key_Delete && !HasRoom(*document(), 1, kTextRoom, this))
    return;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || isReadOnly()) return QPlainTextEdit::keyPressEvent(event);
  // With any modifier the same line end: a line feed alone would come of Shift.
  textCursor().insertBlock();
  ensureCursorVisible();
}

}  // namespace orm
