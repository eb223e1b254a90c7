// Slider: its ends and its value are written beside it.
#include <QSlider>

#include "desktop/controls/views.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

class SliderView : public ControlView {
 public:
  SliderView(Slider& slider, FormHost& host)
      : ControlView(slider, host),
        slider_(slider),
        bar_(new QSlider(Qt::Horizontal, host.Window())),
        value_(new QLabel(host.Window())) {
    bar_->setRange(0, slider.Steps());
    bar_->setPageStep(std::max(1, slider.Steps() / 10));
    bar_->setTickInterval(std::max(1, slider.Steps() / 10));
    bar_->setTickPosition(QSlider::TicksBelow);
    bar_->setMinimumWidth(CharactersWide(*bar_, 24));
    UseField(bar_);
    AddBehind(value_);
    value_->setMinimumWidth(CharactersWide(*value_, 7));
    bar_->setToolTip(ToQt("Da " + FormatPattern(slider.Least(), "0.##") + " a " +
                          FormatPattern(slider.Most(), "0.##")));
    connect(bar_, &QSlider::valueChanged, this, [this](int position) {
      host_.Act([this, position] { slider_.SetPosition(position); });
    });
  }
  void Refresh() override {
    const QString tip = bar_->toolTip();
    ControlView::Refresh();
    if (slider_.Hint().empty()) bar_->setToolTip(tip);
    bar_->setValue(slider_.Position());
    value_->setText(ToQt(slider_.ShownText()));
    bar_->setAccessibleDescription(value_->text());
  }
  std::string Shown() const override { return FromQt(value_->text()); }

 private:
  Slider& slider_;
  QSlider* bar_;
  QLabel* value_;
};

}  // namespace

std::unique_ptr<ControlView> MakeSliderView(Slider& slider, FormHost& host) {
  return std::make_unique<SliderView>(slider, host);
}

}  // namespace orm
