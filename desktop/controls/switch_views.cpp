// Option buttons and check boxes.
#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>

#include "desktop/controls/views.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kLongestLine = 84;  // characters of a caption before it wraps

// Buttons of one group exclude each other, wherever in the form they stand.
QButtonGroup* GroupOf(const OptionGroup& group, QWidget* window) {
  const QString name = "gruppo" + QString::number(reinterpret_cast<quintptr>(&group), 16);
  auto* found = window->findChild<QButtonGroup*>(name, Qt::FindDirectChildrenOnly);
  if (found == nullptr) {
    found = new QButtonGroup(window);
    found->setObjectName(name);
  }
  return found;
}

template <class Switch, class Widget>
class SwitchView : public ControlView {
 public:
  SwitchView(Switch& model, FormHost& host)
      : ControlView(model, host), model_(model), widget_(new Widget(host.Window())) {
    UseBare(widget_);
    connect(widget_, &QAbstractButton::toggled, this, [this](bool on) {
      if (!refreshing_ && on != model_.Value()) host_.Act([this, on] { model_.SetValue(on); });
    });
  }
  void Refresh() override {
    ControlView::Refresh();
    widget_->setText(Wrapped(ToQt(model_.Caption()).trimmed().replace('&', "&&"), kLongestLine));
    if (widget_->isChecked() == model_.Value()) return;
    refreshing_ = true;
    // An exclusive group keeps one chosen; the form may want none.
    QButtonGroup* group = widget_->group();
    if (group != nullptr) group->setExclusive(false);
    widget_->setChecked(model_.Value());
    if (group != nullptr) group->setExclusive(true);
    refreshing_ = false;
  }
  std::string Shown() const override { return widget_->isChecked() ? "on" : "off"; }

 protected:
  Switch& model_;
  Widget* widget_;

 private:
  bool refreshing_ = false;
};

class OptionView : public SwitchView<OptionButton, QRadioButton> {
 public:
  OptionView(OptionButton& option, FormHost& host) : SwitchView(option, host) {
    widget_->setAutoExclusive(false);
    GroupOf(option.Group(), host.Window())->addButton(widget_);
  }
};

}  // namespace

std::unique_ptr<ControlView> MakeOptionView(OptionButton& option, FormHost& host) {
  return std::make_unique<OptionView>(option, host);
}

std::unique_ptr<ControlView> MakeCheckView(CheckBox& check, FormHost& host) {
  return std::make_unique<SwitchView<CheckBox, QCheckBox>>(check, host);
}

}  // namespace orm
