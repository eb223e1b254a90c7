// Which view a control gets.
#include <stdexcept>

#include "desktop/controls/views.h"

namespace orm {

std::unique_ptr<ControlView> MakeView(Control& control, FormHost& host) {
  switch (control.GetKind()) {
    case Control::Kind::Label:
      return MakeLabelView(static_cast<Label&>(control), host);
    case Control::Kind::TextBox:
      return MakeTextView(static_cast<TestoBox&>(control), host);
    case Control::Kind::NumberBox:
      return MakeNumberView(static_cast<NumberBox&>(control), host);
    case Control::Kind::BarsBox:
      return MakeBarsView(static_cast<FerriBox&>(control), host);
    case Control::Kind::Option:
      return MakeOptionView(static_cast<OptionButton&>(control), host);
    case Control::Kind::Check:
      return MakeCheckView(static_cast<CheckBox&>(control), host);
    case Control::Kind::Combo:
      return MakeComboView(static_cast<ComboBox&>(control), host);
    case Control::Kind::List:
      return MakeListView(static_cast<ListBox&>(control), host);
    case Control::Kind::Date:
      return MakeDateView(static_cast<DatePicker&>(control), host);
    case Control::Kind::Slider:
      return MakeSliderView(static_cast<Slider&>(control), host);
    case Control::Kind::Frame:
      return MakeFrameView(static_cast<Frame&>(control), host);
    case Control::Kind::Button:
      return MakeButtonView(static_cast<Button&>(control), host);
    case Control::Kind::Image:
      return MakeImageView(static_cast<Image&>(control), host);
    case Control::Kind::Drawing:
      return MakeDrawingView(static_cast<Lavagna&>(control), host);
    case Control::Kind::RichText:
      return MakeRichTextView(static_cast<RichTextBox&>(control), host);
  }
  throw std::logic_error("a kind of control without a view: " + control.Name());
}

}  // namespace orm
