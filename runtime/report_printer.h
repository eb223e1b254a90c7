// Prints a report line by line in fixed columns, as a typewriter with tab stops would.
#pragma once

#include <string>
#include <string_view>

#include "runtime/folder.h"

namespace orm {

class ReportPrinter {
 public:
  // Columns are counted from 1, in characters.
  ReportPrinter& Text(std::string_view utf8);
  // The number as it stands, with its sign place and its trailing blank.
  ReportPrinter& Bare(double number);
  // Fills with blanks up to `column`; when the cursor stands beyond it already, goes on in the next
  // line at that column. A column below 1 counts as 1.
  ReportPrinter& Tab(int column);
  ReportPrinter& EndLine();
  // A line feed alone, without the carriage return that ends a printed line.
  ReportPrinter& LineFeed();

  ReportPrinter& Line(std::string_view utf8 = {}) { return Text(utf8).EndLine(); }

  int Column() const { return column_; }
  const std::string& Contents() const { return contents_; }

  // Writes the report under `name`, in Windows-1252 with CRLF. A failure leaves an older report.
  void Save(const WorkFolder& folder, std::string_view name) const;

 private:
  std::string contents_;
  int column_ = 1;
};

}  // namespace orm
