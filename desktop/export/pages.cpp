// Pages of fixed columns: the size of the letters, the rows, the breaks and the painting.
#include "desktop/export/pages.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QRegularExpression>
#include <algorithm>

namespace orm {
namespace {

constexpr qreal kLargestLetters = 11;
constexpr qreal kSideMargin = 20, kTopMargin = 18, kBottomMargin = 14;  // millimetres
constexpr int kFooterLines = 2;  // the page number and the room above it
constexpr int kTab = 8;
constexpr int kFeeColumn = 55;  // before it: a fee stands from column 56

bool IsSectionTitle(const QString& line) { return line.startsWith(QLatin1String("=====")); }
bool IsEmpty(const QString& line) { return line.trimmed().isEmpty(); }

QString WithoutTabs(const QString& line) {
  if (!line.contains('\t')) return line;
  QString out;
  for (const QChar c : line) {
    if (c == '\t') {
      out += QString(kTab - out.size() % kTab, ' ');
    } else {
      out += c;
    }
  }
  return out;
}

// The line behind the last one of the page that begins at `first`.
int EndOfPage(const QStringList& lines, int first, int linesPerPage) {
  const int full = first + linesPerPage;
  if (full >= lines.size()) return static_cast<int>(lines.size());
  // A good place to break lies in the last quarter of the page, the nearest to its foot.
  for (int end = full; end > full - linesPerPage / 4; --end)
    if (IsSectionTitle(lines[end]) || IsEmpty(lines[end]) || IsEmpty(lines[end - 1])) {
      if (!IsSectionTitle(lines[end - 1])) return end;
    }
  int end = full;
  while (end > first + 1 && IsSectionTitle(lines[end - 1])) --end;
  return end > first + 1 ? end : full;
}

}  // namespace

QFont ReportFont(qreal pointSize) {
  static const QString dejaVu = QStringLiteral("DejaVu Sans Mono");
  static const bool installed = QFontDatabase::hasFamily(dejaVu);
  QFont font = installed ? QFont(dejaVu) : QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setFixedPitch(true);
  font.setStyleHint(QFont::Monospace);
  font.setKerning(false);
  font.setPointSizeF(pointSize);
  return font;
}

QStringList VisibleLines(const QString& text) {
  QString plain = text;
  plain.replace(QChar::LineSeparator, '\n');
  QStringList lines = plain.split('\n');
  while (lines.size() > 1 && IsEmpty(lines.last())) lines.removeLast();
  for (QString& line : lines) line = WithoutTabs(line);
  return lines;
}

int ColumnsOf(const QStringList& lines) {
  qsizetype columns = kReportColumns;
  for (const QString& line : lines) columns = std::max(columns, line.size());
  return static_cast<int>(std::min<qsizetype>(columns, kMostColumns));
}

int PaperColumns(const QStringList& lines) {
  qsizetype columns = kReportColumns;
  for (const QString& line : lines) {
    if (IsSectionTitle(line)) return kReportColumns;
    if (line.size() <= kMostPaperColumns) columns = std::max(columns, line.size());
  }
  return static_cast<int>(columns);
}

QStringList FoldedByWords(const QString& line, int columns) {
  if (line.size() <= columns) return {line};
  static const QRegularExpression fee(
      QStringLiteral("^(.*\\S) +((?:L\\. |€) *-?[\\d.]+(?:,\\d+)?) *$"));
  const auto found = fee.match(line);
  QString rest = found.hasMatch() ? found.captured(1) : line;
  while (rest.endsWith(' ')) rest.chop(1);
  const auto first = rest.indexOf(QRegularExpression(QStringLiteral("[^ ]")));
  const QString indent(std::clamp<qsizetype>(first, 0, columns / 2), ' ');

  QStringList rows;
  while (rest.size() > columns) {
    auto blank = rest.lastIndexOf(' ', columns);
    if (blank <= indent.size()) blank = columns;  // one endless word
    QString row = rest.left(blank);
    while (row.endsWith(' ')) row.chop(1);
    rows += row;
    rest = indent + rest.mid(blank).trimmed();
  }
  if (!found.hasMatch()) return rows + QStringList(rest);
  // The fee keeps its column, on a row of its own where the words come too near.
  if (rest.size() < kFeeColumn)
    return rows + QStringList(rest.leftJustified(kFeeColumn) + found.captured(2));
  return rows + QStringList{rest, QString(kFeeColumn, ' ') + found.captured(2)};
}

std::vector<PageRange> BreakIntoPages(const QStringList& lines, int linesPerPage) {
  std::vector<PageRange> pages;
  for (int first = 0; first < lines.size();) {
    const int end = EndOfPage(lines, first, std::max(linesPerPage, 1));
    pages.push_back({first, end});
    first = end;
    while (first < lines.size() && IsEmpty(lines[first])) ++first;  // no page begins empty
  }
  return pages;
}

void ReportPages::PrepareA4(QPagedPaintDevice& device) {
  device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                   QMarginsF(kSideMargin, kTopMargin, kSideMargin, kBottomMargin),
                                   QPageLayout::Millimeter));
}

ReportPages::ReportPages(const QString& text, QPagedPaintDevice& device, const ReportNotes& notes) {
  const int dpi = device.logicalDpiX();
  area_ = device.pageLayout().paintRectPixels(dpi).size();
  const QStringList lines = VisibleLines(text);
  columns_ = PaperColumns(lines);

  const qreal widthAtLargest =
      QFontMetricsF(ReportFont(kLargestLetters), &device).horizontalAdvance('0') * columns_;
  font_ = ReportFont(kLargestLetters * std::min<qreal>(1, area_.width() / widthAtLargest));
  const QFontMetricsF metrics(font_, &device);
  lineHeight_ = metrics.lineSpacing();
  const qreal width = metrics.horizontalAdvance('0') * columns_;
  left_ = std::max<qreal>(0, (area_.width() - width) / 2);
  right_ = left_ + width;
  linesPerPage_ = static_cast<int>(area_.height() / lineHeight_) - kFooterLines;
  Add(lines, notes.numbers);
  if (!notes.text.isEmpty()) Add(VisibleLines(notes.text), {});
  if (pages_.empty()) pages_.push_back({});
}

// The lines on pages of their own, behind those that are there.
void ReportPages::Add(const QStringList& lines, const std::map<int, int>& numbers) {
  const auto before = static_cast<int>(rows_.size());
  QStringList rows;
  for (int i = 0; i < lines.size(); ++i) {
    rows += FoldedByWords(lines[i], columns_);
    // Beside the last row, in which the figure stands.
    if (const auto note = numbers.find(i); note != numbers.end())
      notes_[before + static_cast<int>(rows.size()) - 1] = note->second;
  }
  for (const PageRange page : BreakIntoPages(rows, linesPerPage_))
    pages_.push_back({before + page.first, before + page.end});
  rows_ += rows;
}

void ReportPages::Paint(QPainter& painter, int page) const {
  painter.setPen(Qt::black);
  const qreal ascent = QFontMetricsF(font_, painter.device()).ascent();
  QFont small = font_;
  small.setPointSizeF(font_.pointSizeF() * 0.85);
  QFont raised = font_;
  raised.setPointSizeF(font_.pointSizeF() * 0.6);
  qreal y = ascent;
  const PageRange range = pages_[static_cast<std::size_t>(page)];
  for (int row = range.first; row < range.end; ++row, y += lineHeight_) {
    painter.setFont(font_);
    if (!IsEmpty(rows_[row])) painter.drawText(QPointF(left_, y), rows_[row]);
    const auto note = notes_.find(row);
    if (note == notes_.end()) continue;
    painter.setFont(raised);  // in the margin, where it moves no column
    painter.drawText(QPointF(right_ + ascent / 4, y - ascent / 3), QString::number(note->second));
  }
  painter.setFont(small);
  const QRectF footer(0, area_.height() - lineHeight_, area_.width(), lineHeight_);
  painter.drawText(footer, Qt::AlignHCenter | Qt::AlignBottom,
                   QStringLiteral("Pagina %1 di %2").arg(page + 1).arg(Count()));
}

bool PaintPages(const ReportPages& pages, QPagedPaintDevice& device, int first, int last) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  for (int page = first; page <= last; ++page) {
    if (page > first && !device.newPage()) return false;
    pages.Paint(painter, page);
  }
  return painter.end();
}

}  // namespace orm
