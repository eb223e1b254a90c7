// Fields below each other: a grid of labels and fields, whose lines agree with those of other
// grids.
#include <QAbstractButton>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextDocument>
#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "desktop/player/form_builder.h"
#include "desktop/player/layout_shapes.h"

namespace orm {
namespace {

constexpr int kBeside = 10;        // pixels between what stands on one line
constexpr int kAsideAtMost = 190;  // pixels that a label column gives up for the common line
constexpr int kAsideOfBoxes = 300;

using Kind = Control::Kind;

Qt::Alignment LabelAlignment(const ControlView& view) {
  const auto sideways = static_cast<Qt::Alignment>(
      view.Whole()->style()->styleHint(QStyle::SH_FormLayoutLabelAlignment));
  return (sideways & Qt::AlignHorizontal_Mask) | (view.Grows() ? Qt::AlignTop : Qt::AlignVCenter);
}

// How far below its upper edge a field of several lines has its first one.
int AboveFirstLine(const ControlView& view) {
  const auto* text = qobject_cast<const QPlainTextEdit*>(view.Field());
  if (text == nullptr) return 0;
  return text->frameWidth() + static_cast<int>(text->document()->documentMargin());
}

// The width of what stands in the first column of a grid: labels before fields, or boxes.
template <class Widget>
int FirstColumn(const QGridLayout& grid) {
  int widest = 0;
  for (int row = 0; row < grid.rowCount(); ++row) {
    const QLayoutItem* item = grid.itemAtPosition(row, 0);
    const auto* widget = item == nullptr ? nullptr : dynamic_cast<Widget*>(item->widget());
    if (widget != nullptr && !widget->isHidden())
      widest = std::max(widest, widget->sizeHint().width());
  }
  return widest;
}

using ByWidth = std::multimap<int, QGridLayout*, std::greater<>>;

// All as wide as the widest; those that would give up too much for it stand back.
void MakeEven(const ByWidth& grids, int aside) {
  int common = 0;
  for (const auto& [width, grid] : grids) {
    if (common == 0 || common - width > aside) common = width;
    grid->setColumnMinimumWidth(0, common);
  }
}

}  // namespace

// Below headings, a line's label or the caption of its first field, and then its fields, each in
// its column.
void FormBuilder::AddTable(const std::vector<Layout>& lines, QBoxLayout* into) {
  auto* grid = new QGridLayout;
  for (int row = 0; row < static_cast<int>(lines.size()); ++row) {
    const std::vector<Layout>& cells = lines[static_cast<std::size_t>(row)].children;
    const bool labelled = cells[0].control->GetKind() == Kind::Label;
    int column = labelled ? 0 : 1;
    for (const Layout& cell : cells) {
      ControlView& view = viewOf_(*cell.control);
      if (column == 1 && !labelled)
        grid->addWidget(view.Caption(), row, 0);
      else if (row > 0)
        view.LeaveCaptionOut();
      const Qt::Alignment field =
          view.KeepsWidth() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
      // The unit of a line that ends early stands in the room of the columns that it lacks.
      const int last = static_cast<int>(lines[0].children.size()) - 1;
      const bool ends = view.KeepsWidth() && &cell == &cells.back() && column < last;
      grid->addWidget(view.Whole(), row, column, 1, ends ? last - column + 1 : 1,
                      row == 0 ? Qt::AlignBottom : field);
      ++column;
    }
  }
  grid->setColumnStretch(grid->columnCount() - 1, 1);
  grid->setHorizontalSpacing(10);
  into->addLayout(grid);
}

void FormBuilder::AddFields(const std::vector<Layout>& lines, QBoxLayout* into) {
  if (IsTable(lines)) return AddTable(lines, into);
  auto* grid = new QGridLayout;
  const bool captions = std::any_of(lines.begin(), lines.end(), [](const Layout& line) {
    return IsFieldItem(FirstOf(line)) && !FirstOf(line).control->Caption().empty();
  });
  int row = 0;
  bool grows = false;
  for (const Layout& line : lines) {
    grid->setRowStretch(row, Grows(line) ? 1 : 0);
    grows = grows || Grows(line);
    AddLine(line, grid, row++, captions);
  }
  grid->setColumnStretch(1, 1);
  grid->setHorizontalSpacing(kBeside);
  into->addLayout(grid, grows ? 1 : 0);
  grids_.push_back({grid, stack_, depth_, rows_ > 0});
}

void FormBuilder::AddLine(const Layout& line, QGridLayout* grid, int row, bool captions) {
  const Layout& first = FirstOf(line);
  auto* fields = new QHBoxLayout;
  fields->setSpacing(kBeside);
  if (first.kind != Layout::Kind::Item) {
    grid->addLayout(fields, row, 0, 1, 2);
    return AddPart(line, fields);
  }
  ControlView& view = viewOf_(*first.control);
  const bool severals = line.kind == Layout::Kind::Row && line.children.size() > 1;
  if (view.Caption() != nullptr && (IsFieldItem(first) || IsField(first.control->GetKind()))) {
    view.Caption()->setAlignment(LabelAlignment(view) & Qt::AlignHorizontal_Mask);
    view.Caption()->setContentsMargins(0, AboveFirstLine(view), 0, 0);
    grid->addWidget(view.Caption(), row, 0, LabelAlignment(view));
    fields->addWidget(view.Whole());
    grid->addLayout(fields, row, 1);
  } else if (severals) {
    if (first.control->GetKind() == Kind::Button)
      view.Whole()->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    grid->addWidget(view.Whole(), row, 0);
    grid->addLayout(fields, row, 1);
  } else {
    const auto* label = dynamic_cast<const Label*>(first.control);
    const bool inFieldColumn =
        captions && (label == nullptr || label->GetStyle() == Label::Style::Note);
    fields->addWidget(view.Whole());
    grid->addLayout(fields, row, inFieldColumn ? 1 : 0, 1, inFieldColumn ? 1 : 2);
  }
  for (std::size_t i = 1; severals && i < line.children.size(); ++i)
    AddPart(line.children[i], fields);
  if (view.KeepsWidth() && !Grows(line)) fields->addStretch(1);
}

void FormBuilder::AlignLabels() {
  std::map<std::pair<int, int>, ByWidth> labels, boxes;
  for (const Grid& g : grids_) {
    const int label = FirstColumn<QLabel>(*g.grid), box = FirstColumn<QAbstractButton>(*g.grid);
    if (label > 0)
      labels[{g.stack, g.depth}].emplace(label, g.grid);
    else if (box > 0 && !g.beside)
      boxes[{g.stack, g.depth}].emplace(box, g.grid);
  }
  for (const auto& [place, grids] : labels) MakeEven(grids, kAsideAtMost);
  for (const auto& [place, grids] : boxes) MakeEven(grids, kAsideOfBoxes);
}

}  // namespace orm
