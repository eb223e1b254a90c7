#include "desktop/drawing/form_text.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "desktop/qt_text.h"
#include "dialogs/form.h"

namespace orm {
namespace {

using Kind = Control::Kind;

constexpr int kBeforeValue = 12, kBeforeUnit = 8;  // pixels
constexpr int kBetween = 24;                       // of what stands side by side
constexpr int kAboveGroup = 6;

QString Html(const QString& text, bool bold = false) {
  // A cell without anything would take the room from above what follows its table.
  const QString html = text.isEmpty() ? "&nbsp;" : text.toHtmlEscaped().replace('\n', "<br>");
  return bold ? "<b>" + html + "</b>" : html;
}

// Without the blanks and empty lines that set a text off on the screen.
QString Written(const std::string& text) {
  QStringList lines;
  for (const QString& line : ToQt(text).split('\n', Qt::SkipEmptyParts))
    if (!line.trimmed().isEmpty()) lines += line.simplified();
  return lines.join('\n');
}

bool IsField(const Layout& part) {
  if (part.kind != Layout::Kind::Item) return false;
  const Kind kind = part.control->GetKind();
  return kind == Kind::TextBox || kind == Kind::NumberBox || kind == Kind::BarsBox ||
         kind == Kind::Combo || kind == Kind::List || kind == Kind::Date;
}

// A line of a table: what names it, and its values, each with its unit.
struct Cell {
  QString value, unit;
  bool bold = false;
};
struct Line {
  QString name;
  std::vector<Cell> cells;
};
// Of the columns, in pixels: units are 0 where there are none.
struct Widths {
  struct Pair {
    int value = 0, unit = 0;
  };
  int name = 0;
  std::vector<Pair> cells;
};

// A limit, as "< 2.600", that does not hold.
QString Beyond(const QString& limit) {
  return limit.isEmpty() ? "oltre il limite" : "oltre " + limit.mid(limit.indexOf(' ') + 1);
}

// What stands in a control, nothing for one that is no datum or a result of other data. A value
// beyond its limit has its mark here too, and stands out.
Cell CellOf(const Control& control) {
  if (!control.OwnVisible() || !control.OnPaper()) return {};
  Cell cell{Written(control.ShownText()), Written(control.Unit())};
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    const Label::Style style = label->GetStyle();
    cell.bold = style != Label::Style::Plain && style != Label::Style::Note;
  } else if (const auto* number = dynamic_cast<const NumberBox*>(&control)) {
    if (number->IsStale()) return {};
    cell.bold = number->Warns();
    if (cell.bold) cell = {"! " + cell.value, Beyond(cell.unit), true};
  } else if (const auto* bars = dynamic_cast<const FerriBox*>(&control)) {
    if (bars->Area() == 0) return {};
    cell.unit = ToQt(bars->AreaText());
  }
  return cell;
}

bool IsHeading(const std::vector<Layout>& cells) {
  return std::all_of(cells.begin(), cells.end(), [](const Layout& cell) {
    return cell.kind == Layout::Kind::Item && cell.control->GetKind() == Kind::Label;
  });
}

std::vector<Layout> CellsOf(const Layout& line) {
  return line.kind == Layout::Kind::Row ? line.children : std::vector{line};
}

// The labels over a table, whose first column has the names of the lines.
Line HeadingOf(const std::vector<Layout>& cells) {
  Line line{CellOf(*cells[0].control).value, {}};
  for (std::size_t i = 1; i < cells.size(); ++i) line.cells.push_back(CellOf(*cells[i].control));
  return line;
}

// A line of fields, none where the first is empty, as of a layer without bars.
std::vector<Line> LineOf(const std::vector<Layout>& cells) {
  if (CellOf(*cells[0].control).value.isEmpty()) return {};
  Line line{Written(cells[0].control->Caption()), {}};
  for (const Layout& cell : cells)
    if (IsField(cell) || IsHeading({cell})) line.cells.push_back(CellOf(*cell.control));
  return {line};
}

class FormText {
 public:
  FormText(const std::vector<const Frame*>& views, const QFont& font, double width)
      : views_(views), font_(font), width_(width) {}

  // What stands below each other has its values below each other too.
  QString ColumnHtml(const Layout& part) {
    const Widths outer = std::exchange(widths_, {});
    ForEachLine(part, [this](const Line& line) { Widen(line); });
    QString html = PartHtml(part);
    widths_ = outer;
    return html;
  }

 private:
  QString PartHtml(const Layout& part) {
    switch (part.kind) {
      case Layout::Kind::Item:
        return IsField(part) ? TableHtml({part}) : TextHtml(*part.control);
      case Layout::Kind::Column:
        return PartsHtml(part.children);
      case Layout::Kind::Views:
        return BesideHtml(part.children, width_);
      case Layout::Kind::Row:
        return IsField(part.children[0]) ? TableHtml({part}) : BesideHtml(part.children, 1e9);
      case Layout::Kind::Group: {
        if (!Printed(*part.control)) return {};
        QString inside = PartsHtml(part.children);
        if (inside.isEmpty() || !part.control->OnPaper()) return inside;
        // A line of its own: a margin is lost at the top of a cell.
        return QString("<p style='margin:0px; font-size:%1px'>&nbsp;</p>").arg(kAboveGroup) +
               "<p style='margin:0px'>" + Html(Written(part.control->Caption()), true) + "</p>" +
               inside;
      }
      case Layout::Kind::Fields:
        return TableHtml(part.children);
      case Layout::Kind::Buttons:
        return {};
    }
    return {};
  }

  QString PartsHtml(const std::vector<Layout>& parts) {
    QString out;
    for (const Layout& part : parts) out += PartHtml(part);
    return out;
  }

  // Side by side as far as they have room, then below.
  QString BesideHtml(const std::vector<Layout>& parts, double room) {
    QString out, line;
    double used = 0;
    const auto end = [&] {
      if (!line.isEmpty()) out += "<table cellspacing=0><tr>" + line + "</tr></table>";
      line.clear();
      used = 0;
    };
    for (const Layout& part : parts) {
      const QString inside = ColumnHtml(part);
      if (inside.isEmpty()) continue;
      const double width = WidthOfHtml(inside) + kBetween;
      if (used + width > room + kBetween) end();
      used += width;
      line += QString("<td style='padding-right:%1px'>").arg(kBetween) + inside + "</td>";
    }
    end();
    return out;
  }

  static QString TextHtml(const Control& control) {
    const Kind kind = control.GetKind();
    const bool choice = kind == Kind::Option || kind == Kind::Check;
    if (!choice && kind != Kind::Label) return {};
    Cell cell = CellOf(control);
    if (choice) cell.value = cell.value == "on" ? Written(control.Caption()) : QString();
    if (cell.value.isEmpty()) return {};
    return "<p style='margin-top:2px; margin-bottom:0px'>" + Html(cell.value, cell.bold) + "</p>";
  }

  // The headings come with the first line below them.
  QString TableHtml(const std::vector<Layout>& lines) {
    QString out, rows, heading;
    const auto end = [&] {
      if (!rows.isEmpty()) out += "<table cellspacing=0 cellpadding=0>" + rows + "</table>";
      rows.clear();
    };
    for (const Layout& line : lines) {
      const std::vector<Layout> cells = CellsOf(line);
      if (IsHeading(cells) && cells.size() > 1) {
        heading = RowHtml(HeadingOf(cells));
      } else if (IsField(cells[0])) {
        for (const Line& values : LineOf(cells))
          rows += std::exchange(heading, {}) + RowHtml(values);
      } else {
        end();
        for (const Layout& cell : cells) out += PartHtml(cell);
      }
    }
    end();
    return out;
  }

  QString RowHtml(const Line& line) const {
    QString out = QString("<td width=%1>").arg(widths_.name) + Html(line.name) + "</td>";
    for (std::size_t i = 0; i < line.cells.size(); ++i) {
      const auto& [value, unit, bold] = line.cells[i];
      const Widths::Pair& wide = widths_.cells[i];
      out += QString("<td align=right width=%1 style='padding-left:%2px'>")
                 .arg(wide.value + kBeforeValue)
                 .arg(kBeforeValue) +
             Html(value, bold) + "</td>";
      if (wide.unit > 0)
        out += QString("<td width=%1 style='padding-left:%2px'>")
                   .arg(wide.unit + kBeforeUnit)
                   .arg(kBeforeUnit) +
               Html(unit, bold) + "</td>";
    }
    return "<tr>" + out + "</tr>";
  }

  // The lines of the tables that stand below each other in a part.
  void ForEachLine(const Layout& part, const std::function<void(const Line&)>& act) const {
    if (part.kind == Layout::Kind::Views) return;
    const bool shown = part.kind != Layout::Kind::Group || Printed(*part.control);
    const std::vector<Layout> cells = CellsOf(part);
    if (part.kind == Layout::Kind::Item || part.kind == Layout::Kind::Row) {
      if (IsField(cells[0]))
        for (const Line& line : LineOf(cells)) act(line);
      else if (IsHeading(cells) && cells.size() > 1)
        act(HeadingOf(cells));
    } else if (shown) {
      for (const Layout& inner : part.children) ForEachLine(inner, act);
    }
  }

  void Widen(const Line& line) {
    widths_.name = std::max(widths_.name, WidthOf(line.name));
    if (widths_.cells.size() < line.cells.size()) widths_.cells.resize(line.cells.size());
    for (std::size_t i = 0; i < line.cells.size(); ++i) {
      const auto& [value, unit, bold] = line.cells[i];
      Widths::Pair& wide = widths_.cells[i];
      wide.value = std::max(wide.value, WidthOf(value, bold));
      wide.unit = std::max(wide.unit, WidthOf(unit, bold));
    }
  }

  int WidthOf(const QString& text, bool bold = false) const {
    return text.isEmpty() ? 0 : WidthOfHtml(Html(text, bold));
  }

  int WidthOfHtml(const QString& html) const {
    QTextDocument document;
    SetUpSheetText(document, font_);
    document.setHtml(html);
    return static_cast<int>(std::ceil(document.idealWidth()));
  }

  bool Printed(const Control& frame) const {
    return frame.OwnVisible() || std::find(views_.begin(), views_.end(), &frame) != views_.end();
  }

  const std::vector<const Frame*>& views_;
  const QFont& font_;
  double width_;
  Widths widths_;  // of the column at work
};

}  // namespace

void SetUpSheetText(QTextDocument& document, const QFont& font) {
  document.documentLayout()->setPaintDevice(nullptr);
  document.setDefaultFont(font);
  document.setDocumentMargin(0);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  document.setDefaultTextOption(option);
}

QString FormAsHtml(const Form& form, const std::vector<const Frame*>& views, const QFont& font,
                   double width) {
  return FormText(views, font, width).ColumnHtml(form.Content());
}

}  // namespace orm
