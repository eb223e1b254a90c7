// Puts the widgets of a form where its layout tells, in meaning: columns, rows, groups, fields.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <functional>
#include <vector>

#include "desktop/controls/control_view.h"
#include "dialogs/form.h"

namespace orm {

class FormBuilder {
 public:
  using ViewOf = std::function<ControlView&(const Control&)>;
  explicit FormBuilder(ViewOf viewOf) : viewOf_(std::move(viewOf)) {}

  // The parts below each other in `into`.
  void AddColumn(const std::vector<Layout>& parts, QBoxLayout* into);
  void AddPart(const Layout& part, QBoxLayout* into);
  // Labels of groups that stand below each other begin and end on the same lines, and so does what
  // stands beside their boxes. To be called when everything is in its place.
  void AlignLabels();
  // Something in it uses more room, so that a person may want the window greater.
  bool Grows(const Layout& part) const;

 private:
  void AddItem(Control& control, QBoxLayout* into);
  void AddRow(const std::vector<Layout>& parts, QBoxLayout* into);
  void AddGroup(const Layout& group, QBoxLayout* into);
  void AddFields(const std::vector<Layout>& lines, QBoxLayout* into);
  void AddTable(const std::vector<Layout>& lines, QBoxLayout* into);
  void AddLine(const Layout& line, QGridLayout* grid, int row, bool captions);
  void AddViews(const std::vector<Layout>& parts, QBoxLayout* into);
  void AddButtons(const std::vector<Layout>& buttons, QBoxLayout* into);

  struct Grid {
    QGridLayout* grid;
    int stack;    // grids of one stack stand below each other
    int depth;    // frames around it
    bool beside;  // in a row with others
  };
  ViewOf viewOf_;
  std::vector<Grid> grids_;
  int stack_ = 0, stacks_ = 0, depth_ = 0, rows_ = 0;
};

}  // namespace orm
