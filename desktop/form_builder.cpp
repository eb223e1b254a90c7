#include "desktop/form_builder.h"

#include <QGroupBox>
#include <QStyle>
#include <algorithm>
#include <map>

namespace orm {
namespace {

constexpr int kAsideAtMost = 150;  // pixels that a label column gives up for the common line

using Kind = Control::Kind;

bool IsField(Kind kind) {
  return kind == Kind::TextBox || kind == Kind::NumberBox || kind == Kind::BarsBox ||
         kind == Kind::Combo || kind == Kind::List || kind == Kind::Date || kind == Kind::Slider;
}

bool IsFieldItem(const Layout& part) {
  return part.kind == Layout::Kind::Item &&
         (IsField(part.control->GetKind()) ||
          (part.control->GetKind() == Kind::Label && !part.control->Caption().empty()));
}

const Layout& FirstOf(const Layout& line) {
  return line.kind == Layout::Kind::Row && !line.children.empty() ? line.children[0] : line;
}

Qt::Alignment LabelAlignment(const ControlView& view) {
  const auto sideways = static_cast<Qt::Alignment>(
      view.Whole()->style()->styleHint(QStyle::SH_FormLayoutLabelAlignment));
  return (sideways & Qt::AlignHorizontal_Mask) | (view.Grows() ? Qt::AlignTop : Qt::AlignVCenter);
}

}  // namespace

bool FormBuilder::Grows(const Layout& part) const {
  if (part.kind == Layout::Kind::Item) return viewOf_(*part.control).Grows();
  return std::any_of(part.children.begin(), part.children.end(),
                     [this](const Layout& child) { return Grows(child); });
}

void FormBuilder::AddColumn(const std::vector<Layout>& parts, QBoxLayout* into) {
  for (std::size_t i = 0; i < parts.size();) {
    std::vector<Layout> fields;
    while (i < parts.size() && IsFieldItem(parts[i])) fields.push_back(parts[i++]);
    if (!fields.empty())
      AddFields(fields, into);
    else
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
    case Layout::Kind::Column: {
      auto* column = new QVBoxLayout;
      into->addLayout(column, Grows(part) ? 1 : 0);
      return AddColumn(part.children, column);
    }
  }
}

void FormBuilder::AddItem(Control& control, QBoxLayout* into) {
  ControlView& view = viewOf_(control);
  const bool down = into->direction() == QBoxLayout::TopToBottom;
  if (view.Caption() != nullptr) into->addWidget(view.Caption());
  // Buttons and pictures keep their size; texts and fields take the line.
  const bool keeps = control.GetKind() == Kind::Button || control.GetKind() == Kind::Image;
  into->addWidget(view.Whole(), view.Grows() ? 1 : 0,
                  keeps && down ? Qt::AlignLeft : Qt::Alignment());
}

void FormBuilder::AddRow(const std::vector<Layout>& parts, QBoxLayout* into) {
  auto* row = new QHBoxLayout;
  const bool items = std::all_of(parts.begin(), parts.end(),
                                 [](const Layout& p) { return p.kind == Layout::Kind::Item; });
  bool grows = false;
  for (const Layout& part : parts) {
    const int outer = stack_;
    stack_ = ++stacks_;
    if (items || part.kind == Layout::Kind::Group) {
      AddPart(part, row);
    } else {
      auto* column = new QVBoxLayout;
      row->addLayout(column, Grows(part) ? 1 : 0);
      AddPart(part, column);
      if (!Grows(part)) column->addStretch();
    }
    stack_ = outer;
    grows = grows || Grows(part);
  }
  const bool framed = std::any_of(parts.begin(), parts.end(),
                                  [](const Layout& p) { return p.kind == Layout::Kind::Group; });
  if (!grows && !framed) row->addStretch();
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
  into->addWidget(frame, Grows(group) ? 1 : 0);
}

void FormBuilder::AddFields(const std::vector<Layout>& lines, QBoxLayout* into) {
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
  grid->setHorizontalSpacing(10);
  into->addLayout(grid, grows ? 1 : 0);
  grids_.push_back({grid, stack_, depth_});
}

void FormBuilder::AddLine(const Layout& line, QGridLayout* grid, int row, bool captions) {
  const Layout& first = FirstOf(line);
  auto* fields = new QHBoxLayout;
  std::size_t next = 1;  // of the parts of a Row: the first one that is still to place
  if (first.kind != Layout::Kind::Item) {
    grid->addLayout(fields, row, 0, 1, 2);
    return AddPart(line, fields);
  }
  ControlView& view = viewOf_(*first.control);
  const bool row2 = line.kind == Layout::Kind::Row && line.children.size() > 1;
  if (view.Caption() != nullptr && (IsFieldItem(first) || IsField(first.control->GetKind()))) {
    view.Caption()->setAlignment(LabelAlignment(view) & Qt::AlignHorizontal_Mask);
    grid->addWidget(view.Caption(), row, 0, LabelAlignment(view));
    fields->addWidget(view.Whole(), view.Grows() || line.kind == Layout::Kind::Item ? 1 : 0);
    grid->addLayout(fields, row, 1);
  } else if (row2) {
    grid->addWidget(view.Whole(), row, 0);
    grid->addLayout(fields, row, 1);
  } else {
    const bool inFieldColumn = captions && first.control->GetKind() != Kind::Label;
    fields->addWidget(view.Whole());
    grid->addLayout(fields, row, inFieldColumn ? 1 : 0, 1, inFieldColumn ? 1 : 2);
  }
  if (!row2) return;
  for (; next < line.children.size(); ++next) AddPart(line.children[next], fields);
  if (!Grows(line)) fields->addStretch();
}

void FormBuilder::AddButtons(const std::vector<Layout>& buttons, QBoxLayout* into) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  for (const Layout& button : buttons) AddPart(button, row);
  into->addLayout(row);
}

void FormBuilder::AlignLabels() {
  std::map<std::pair<int, int>, int> widest;
  const auto width = [](const QGridLayout* grid) {
    int most = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
      QLayoutItem* item = grid->itemAtPosition(row, 0);
      if (item == nullptr || item == grid->itemAtPosition(row, 1)) continue;
      if (item->widget() != nullptr && !item->widget()->isHidden())
        most = std::max(most, item->widget()->sizeHint().width());
    }
    return most;
  };
  for (const Grid& g : grids_) {
    int& most = widest[{g.stack, g.depth}];
    most = std::max(most, width(g.grid));
  }
  for (const Grid& g : grids_) {
    const int own = width(g.grid);
    const int common = widest[{g.stack, g.depth}];
    if (own > 0 && common - own <= kAsideAtMost) g.grid->setColumnMinimumWidth(0, common);
  }
}

}  // namespace orm
