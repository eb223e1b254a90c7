// A report laid out on paper: pages of fixed columns for the printer, the preview and the PDF.
#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <vector>

namespace orm {

inline constexpr int kReportColumns = 72;
inline constexpr int kMostColumns = 100;  // a longer line goes on in the next one

// DejaVu Sans Mono where it is installed, the system's fixed font otherwise.
QFont ReportFont(qreal pointSize);

// The lines of a text as they are seen: tabs filled up to every eighth column, both kinds of line
// end taken as one.
QStringList VisibleLines(const QString& text);

// Columns that a page must offer: those of a report, or the longest line up to the most.
int ColumnsOf(const QStringList& lines);

// Cuts the lines into pages of at most `linesPerPage`. A page does not end in the title of a
// section, and ends before one or at an empty line where that leaves little room unused.
std::vector<QStringList> BreakIntoPages(const QStringList& lines, int linesPerPage);

class ReportPages {
 public:
  // Sets A4 and the margins on `device`; the user may have chosen another paper since.
  static void PrepareA4(QPagedPaintDevice& device);

  // Lays the text out for the paper that `device` has now.
  ReportPages(const QString& text, QPagedPaintDevice& device);

  int Count() const { return static_cast<int>(pages_.size()); }
  void Paint(QPainter& painter, int page) const;

 private:
  QFont font_;
  QSizeF area_;
  qreal lineHeight_ = 0, left_ = 0;
  std::vector<QStringList> pages_;
};

// Paints the pages `first` to `last` (from 0) on the device, with its page breaks between them.
// False when the device cannot be written.
bool PaintPages(const ReportPages& pages, QPagedPaintDevice& device, int first, int last);

}  // namespace orm
