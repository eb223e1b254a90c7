#include "desktop/player/form_builder.h"

#include <QGroupBox>
#include <QStyle>
#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace orm {
namespace {

constexpr int kAboveTitle = 4;     // pixels between a group and the title below it
constexpr int kBeside = 10;        // pixels between what stands on one line
constexpr int kAsideAtMost = 150;  // pixels that a label column gives up for the common line

using Kind = Control::Kind;

bool IsField(Kind kind) {
  return kind == Kind::TextBox || kind == Kind::NumberBox || kind == Kind::BarsBox ||
         kind == Kind::Combo || kind == Kind::List || kind == Kind::Date || kind == Kind::Slider;
}

bool HasTitle(const Layout& part) {
  if (part.kind == Layout::Kind::Group) return !part.control->Caption().empty();
  const bool holds = part.kind == Layout::Kind::Row || part.kind == Layout::Kind::Column;
  return holds && !part.children.empty() && HasTitle(part.children[0]);
}

bool HoldsDrawing(const Layout& part) {
  return (part.control != nullptr && part.control->GetKind() == Kind::Drawing) ||
         std::any_of(part.children.begin(), part.children.end(), HoldsDrawing);
}

bool IsFieldItem(const Layout& part) {
  return part.kind == Layout::Kind::Item &&
         (IsField(part.control->GetKind()) ||
          (part.control->GetKind() == Kind::Label && !part.control->Caption().empty()));
}

// A Row that stands with others of its kind like the lines of a table: a box or a field, and what
// belongs to it.
bool IsLine(const Layout& part) {
  if (part.kind != Layout::Kind::Row || part.children.size() < 2) return false;
  const bool items = std::all_of(part.children.begin(), part.children.end(),
                                 [](const Layout& p) { return p.kind == Layout::Kind::Item; });
  if (!items) return false;
  const Kind first = part.children[0].control->GetKind();
  const Kind second = part.children[1].control->GetKind();
  const bool box = first == Kind::Check || first == Kind::Option;
  return box ? second != first : IsField(first);
}

const Layout& FirstOf(const Layout& line) {
  return line.kind == Layout::Kind::Row && !line.children.empty() ? line.children[0] : line;
}

// Lines of several fields below a line of labels alone.
bool IsTable(const std::vector<Layout>& lines) {
  return lines.size() > 1 && lines[0].kind == Layout::Kind::Row &&
         std::all_of(lines[0].children.begin(), lines[0].children.end(), [](const Layout& part) {
           return part.kind == Layout::Kind::Item && part.control->GetKind() == Kind::Label;
         });
}

Qt::Alignment LabelAlignment(const ControlView& view) {
  const auto sideways = static_cast<Qt::Alignment>(
      view.Whole()->style()->styleHint(QStyle::SH_FormLayoutLabelAlignment));
  return (sideways & Qt::AlignHorizontal_Mask) | (view.Grows() ? Qt::AlignTop : Qt::AlignVCenter);
}

// The width of the labels before the fields of a grid; boxes in their column are no labels.
int LabelWidth(const QGridLayout& grid) {
  int widest = 0;
  for (int row = 0; row < grid.rowCount(); ++row) {
    const QLayoutItem* item = grid.itemAtPosition(row, 0);
    const auto* label = item == nullptr ? nullptr : dynamic_cast<QLabel*>(item->widget());
    if (label != nullptr && !label->isHidden())
      widest = std::max(widest, label->sizeHint().width());
  }
  return widest;
}

}  // namespace

bool FormBuilder::Grows(const Layout& part) const {
  if (part.kind == Layout::Kind::Item) return viewOf_(*part.control).Grows();
  return std::any_of(part.children.begin(), part.children.end(),
                     [this](const Layout& child) { return Grows(child); });
}

void FormBuilder::AddColumn(const std::vector<Layout>& parts, QBoxLayout* into) {
  const auto joins = [](const Layout& part) { return IsFieldItem(part) || IsLine(part); };
  for (std::size_t i = 0; i < parts.size();) {
    std::vector<Layout> lines;
    while (i < parts.size() && joins(parts[i])) lines.push_back(parts[i++]);
    if (!lines.empty()) {
      AddFields(lines, into);
      continue;
    }
    if (i > 0 && HasTitle(parts[i])) into->addSpacing(kAboveTitle);
    AddPart(parts[i++], into);
  }
}

void FormBuilder::AddPart(const Layout& part, QBoxLayout* into) {
  switch (part.kind) {
    case Layout::Kind::Item:
      return AddItem(*part.control, into);
    case Layout::Kind::Row:
      return AddRow(part.children, into);
    case Layout::Kind::Group:
      return AddGroup(part, into);
    case Layout::Kind::Fields:
      return AddFields(part.children, into);
    case Layout::Kind::Buttons:
      return AddButtons(part.children, into);
    case Layout::Kind::Views:
      return AddViews(part.children, into);
    case Layout::Kind::Column: {
      auto* column = new QVBoxLayout;
      into->addLayout(column, Grows(part) ? 1 : 0);
      return AddColumn(part.children, column);
    }
  }
}

void FormBuilder::AddItem(Control& control, QBoxLayout* into) {
  ControlView& view = viewOf_(control);
  if (view.Caption() != nullptr) into->addWidget(view.Caption());
  // Buttons, pictures and numbers keep their size; texts take the line.
  const bool keeps = view.KeepsWidth();
  const bool down = into->direction() == QBoxLayout::TopToBottom;
  Qt::Alignment alignment;
  // Buttons below each other are as wide as the widest.
  const bool button = control.GetKind() == Kind::Button;
  if (button && down)
    view.Whole()->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  else if (keeps && down)
    alignment = Qt::AlignLeft;
  if (!down && !view.Grows()) alignment = Qt::AlignVCenter;
  into->addWidget(view.Whole(), view.Grows() ? 1 : 0, alignment);
}

void FormBuilder::AddRow(const std::vector<Layout>& parts, QBoxLayout* into) {
  auto* row = new QHBoxLayout;
  const auto count = [&](Layout::Kind kind) {
    return std::count_if(parts.begin(), parts.end(),
                         [kind](const Layout& p) { return p.kind == kind; });
  };
  // Blocks beside each other begin on one line; a block beside a button stands in its middle.
  const bool onTop = count(Layout::Kind::Group) > 0 || count(Layout::Kind::Column) > 0 ||
                     count(Layout::Kind::Fields) > 1;
  // Room beyond what all need goes to a drawing; without one, blocks share it.
  const bool drawing = std::any_of(parts.begin(), parts.end(), HoldsDrawing);
  bool grows = false;
  for (const Layout& part : parts) {
    const bool takes = drawing ? HoldsDrawing(part) : Grows(part) || onTop;
    // The first part stands on the left edge of what is above and below the row.
    const int outer = std::exchange(stack_, &part == &parts.front() ? stack_ : ++stacks_);
    if (part.kind == Layout::Kind::Item || part.kind == Layout::Kind::Group) {
      AddPart(part, row);
      if (part.kind == Layout::Kind::Group && !Grows(part)) row->setStretch(row->count() - 1, 1);
    } else {
      auto* column = new QVBoxLayout;
      row->addLayout(column, takes ? 1 : 0);
      if (!Grows(part) && !onTop) column->addStretch();
      AddPart(part, column);
      if (!Grows(part)) column->addStretch();
    }
    stack_ = outer;
    grows = grows || Grows(part);
  }
  if (!grows && !onTop) row->addStretch();
  into->addLayout(row, grows ? 1 : 0);
}

void FormBuilder::AddGroup(const Layout& group, QBoxLayout* into) {
  QWidget* frame = viewOf_(*group.control).Whole();
  auto* column = new QVBoxLayout(frame);
  const bool bare = dynamic_cast<QGroupBox*>(frame) == nullptr;
  if (bare) column->setContentsMargins(0, 0, 0, 0);
  depth_ += bare ? 0 : 1;
  AddColumn(group.children, column);
  depth_ -= bare ? 0 : 1;
  if (!Grows(group)) column->addStretch();
  // Below others a group is as high as its content; beside others all are as high as the highest.
  if (!Grows(group) && into->direction() == QBoxLayout::TopToBottom)
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  into->addWidget(frame, Grows(group) ? 1 : 0);
}

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
      grid->addWidget(view.Whole(), row, column++, row == 0 ? Qt::AlignBottom : field);
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
  grids_.push_back({grid, stack_, depth_});
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

// One over the other; those that do not show keep their room, so that the window stays as it is.
void FormBuilder::AddViews(const std::vector<Layout>& parts, QBoxLayout* into) {
  auto* room = new QGridLayout;
  bool grows = false;
  for (const Layout& part : parts) {
    auto* column = new QVBoxLayout;
    room->addLayout(column, 0, 0);
    AddPart(part, column);
    if (!Grows(part)) column->addStretch();
    grows = grows || Grows(part);
    if (part.control == nullptr) continue;
    QWidget* whole = viewOf_(*part.control).Whole();
    QSizePolicy policy = whole->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    whole->setSizePolicy(policy);
  }
  into->addLayout(room, grows ? 1 : 0);
}

void FormBuilder::AddButtons(const std::vector<Layout>& buttons, QBoxLayout* into) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  for (const Layout& button : buttons) AddPart(button, row);
  into->addLayout(row);
}

void FormBuilder::AlignLabels() {
  std::map<std::pair<int, int>, std::multimap<int, QGridLayout*, std::greater<>>> stacks;
  for (const Grid& g : grids_)
    if (const int width = LabelWidth(*g.grid); width > 0)
      stacks[{g.stack, g.depth}].emplace(width, g.grid);
  for (auto& [place, grids] : stacks) {
    int common = 0;
    for (const auto& [width, grid] : grids) {
      if (common == 0 || common - width > kAsideAtMost) common = width;
      grid->setColumnMinimumWidth(0, common);
    }
  }
}

}  // namespace orm
