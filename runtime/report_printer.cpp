#include "runtime/report_printer.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {

ReportPrinter& ReportPrinter::Text(std::string_view utf8) {
  // A text that holds line ends (a heading typed on several lines) starts again from column 1.
  for (std::size_t i = 0; i <= utf8.size();) {
    const auto end = std::min(utf8.find('\n', i), utf8.size());
    const auto part = utf8.substr(i, end - i);
    contents_ += part;
    column_ += static_cast<int>(Characters(part));
    if (end < utf8.size()) EndLine();
    i = end + 1;
  }
  return *this;
}

ReportPrinter& ReportPrinter::Bare(double number) { return Text(BareNumber(number)); }

ReportPrinter& ReportPrinter::Tab(int column) {
  column = std::max(column, 1);
  if (column_ > column) EndLine();
  contents_.append(static_cast<std::size_t>(column - column_), ' ');
  column_ = column;
  return *this;
}

ReportPrinter& ReportPrinter::EndLine() {
  contents_ += "\r\n";
  column_ = 1;
  return *this;
}

ReportPrinter& ReportPrinter::LineFeed() {
  contents_ += '\n';
  column_ = 1;
  return *this;
}

void ReportPrinter::Save(const WorkFolder& folder, std::string_view name) const {
  try {
    const std::string bytes = ToWindows1252(contents_);
    FromWindows1252(bytes);  // what could not be read again takes no report's place
    folder.Replace(name, bytes, Durability::Remakeable);
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(std::string(name));
  }
}

}  // namespace orm
