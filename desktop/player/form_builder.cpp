#include "desktop/player/form_builder.h"

#include <QGroupBox>
#include <algorithm>
#include <utility>

#include "desktop/player/layout_shapes.h"

namespace orm {
namespace {

constexpr int kAboveTitle = 4;  // pixels between a group and the title below it

// Room above a group, as long as the group is to be seen.
class RoomAbove : public QSpacerItem {
 public:
  explicit RoomAbove(const QWidget& group) : QSpacerItem(0, kAboveTitle), group_(group) {}
  QSize sizeHint() const override {
    return group_.isHidden() ? QSize(0, 0) : QSpacerItem::sizeHint();
  }
  QSize minimumSize() const override { return sizeHint(); }
  QSize maximumSize() const override { return {QWIDGETSIZE_MAX, sizeHint().height()}; }

 private:
  const QWidget& group_;
};

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
    if (i > 0 && HasTitle(parts[i]))
      into->addSpacerItem(new RoomAbove(*viewOf_(*TitledGroup(parts[i]).control).Whole()));
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
  const bool button = control.GetKind() == Control::Kind::Button;
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
  ++rows_;
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
  --rows_;
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

}  // namespace orm
