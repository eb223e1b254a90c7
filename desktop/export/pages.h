// A report laid out on paper: pages of fixed columns for the printer, the preview and the PDF.
#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <vector>

#include "desktop/export/report_notes.h"

namespace orm {

inline constexpr int kReportColumns = 72;
inline constexpr int kMostColumns = 100;      // of the sheet on the screen
inline constexpr int kMostPaperColumns = 80;  // of the tables of a check

// DejaVu Sans Mono where it is installed, the system's fixed font otherwise.
QFont ReportFont(qreal pointSize);

// The lines of a text as they are seen: tabs filled up to every eighth column, both kinds of line
// end taken as one.
QStringList VisibleLines(const QString& text);

// Columns that the sheet on the screen offers: those of a report, or the longest line up to the
// most.
int ColumnsOf(const QStringList& lines);

// Columns of a page on paper, on which longer lines are folded. A fee note has those of a report
// whatever its texts, so that every note is printed in one size; other texts, which have wider
// tables, those of their widest line that is no paragraph.
int PaperColumns(const QStringList& lines);

// The rows on paper of a line: broken between words, with the indent of the line, a fee at its end
// in its own column.
QStringList FoldedByWords(const QString& line, int columns);

// Lines of a page, from `first` up to the one before `end`.
struct PageRange {
  int first = 0, end = 0;
};

// Cuts the lines into pages of at most `linesPerPage`. A page does not end in the title of a
// section, and ends before one or at an empty line where that leaves little room unused.
std::vector<PageRange> BreakIntoPages(const QStringList& lines, int linesPerPage);

class ReportPages {
 public:
  // Sets A4 and the margins on `device`; the user may have chosen another paper since.
  static void PrepareA4(QPagedPaintDevice& device);

  // Lays the text out for the paper that `device` has now.
  ReportPages(const QString& text, QPagedPaintDevice& device, const ReportNotes& notes = {});

  int Count() const { return static_cast<int>(pages_.size()); }
  void Paint(QPainter& painter, int page) const;

 private:
  void Add(const QStringList& lines, const std::map<int, int>& numbers);

  QFont font_;
  QSizeF area_;
  qreal lineHeight_ = 0, left_ = 0, right_ = 0;
  QStringList rows_;
  std::map<int, int> notes_;  // the numbers beside the rows
  std::vector<PageRange> pages_;
  int columns_ = kReportColumns, linesPerPage_ = 1;
};

// Paints the pages `first` to `last` (from 0) on the device, with its page breaks between them.
// False when the device cannot be written.
bool PaintPages(const ReportPages& pages, QPagedPaintDevice& device, int first, int last);

}  // namespace orm
