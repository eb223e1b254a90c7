// Option buttons and check boxes.
#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <algorithm>

#include "desktop/controls/views.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kLongestLine = 84;  // characters of a caption before it wraps
constexpr int kSparesALine = 96;  // where that spares a line

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

// A caption whose figure is set off by blanks: options below each other have theirs in one column.
constexpr QChar kHair = QChar(0x200A);  // the narrowest blank
constexpr int kBetween = 24;            // pixels between the columns
QString FirstColumn(const std::string& caption) { return ToQt(caption).section("    ", 0, 0); }
QString SecondColumn(const std::string& caption) {
  return ToQt(caption).section("    ", 1).trimmed();
}

// No line that holds a word or two: the lines that it takes are as even as its words let them be.
QString Folded(const QString& caption) {
  if (caption.size() <= kSparesALine) return caption;
  QString even = Wrapped(caption, kLongestLine);
  const auto lines = even.count('\n');
  for (int longest = kLongestLine - 1;; --longest) {
    const QString narrower = Wrapped(caption, longest);
    if (narrower.count('\n') > lines) return even;
    even = narrower;
  }
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
    widget_->setText(Folded(ToQt(model_.Caption()).trimmed().replace('&', "&&")));
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
  void Refresh() override {
    SwitchView::Refresh();
    if (SecondColumn(model_.Caption()).isEmpty()) return;
    const QFontMetricsF metrics(widget_->font());
    double widest = 0;
    for (const OptionButton* option : model_.Group().Options())
      widest = std::max(widest, metrics.horizontalAdvance(FirstColumn(option->Caption())));
    QString text = FirstColumn(model_.Caption());
    const double hair = std::max(metrics.horizontalAdvance(QString(20, kHair)) / 20, 1.0);
    text += QString(qRound((widest + kBetween - metrics.horizontalAdvance(text)) / hair), kHair);
    widget_->setText(text + SecondColumn(model_.Caption()));
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
