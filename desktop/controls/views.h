// The views of each kind of control.
#pragma once

#include <memory>

#include "desktop/controls/control_view.h"
#include "dialogs/lavagna.h"
#include "dialogs/rich_text/rich_text.h"

namespace orm {

using ViewPointer = std::unique_ptr<ControlView>;

ViewPointer MakeTextView(TestoBox& box, FormHost& host);
ViewPointer MakeNumberView(NumberBox& box, FormHost& host);
ViewPointer MakeBarsView(FerriBox& box, FormHost& host);
ViewPointer MakeDateView(DatePicker& picker, FormHost& host);
ViewPointer MakeOptionView(OptionButton& option, FormHost& host);
ViewPointer MakeCheckView(CheckBox& check, FormHost& host);
ViewPointer MakeComboView(ComboBox& combo, FormHost& host);
ViewPointer MakeListView(ListBox& list, FormHost& host);
ViewPointer MakeSliderView(Slider& slider, FormHost& host);
ViewPointer MakeLabelView(Label& label, FormHost& host);
ViewPointer MakeFrameView(Frame& frame, FormHost& host);
ViewPointer MakeButtonView(Button& button, FormHost& host);
ViewPointer MakeImageView(Image& image, FormHost& host);
ViewPointer MakeDrawingView(Lavagna& lavagna, FormHost& host);
ViewPointer MakeRichTextView(RichTextBox& box, FormHost& host);

}  // namespace orm
