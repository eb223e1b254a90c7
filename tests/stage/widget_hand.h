// The hand of a script on a form that is on the screen: real keys and clicks on the widgets.
#pragma once

#include <string>

#include "desktop/player/form_dialog.h"
#include "script/hand.h"
#include "tests/stage/desktop_stage.h"

namespace orm {

class WidgetHand : public FormHand {
 public:
  WidgetHand(FormDialog& dialog, DesktopStageOptions options);

  void Look();  // at the form as a whole, for faults

  std::string Set(Control& control, std::string_view text) override;
  std::string Press(Button& button) override;
  void CloseByWindow() override;
  std::string Shown(Control& control) override;
  bool IsVisible(Control& control) override;
  bool IsEnabled(Control& control) override;
  std::string Title() override;
  void Picture(const std::string& name) override;

 private:
  QWidget* WidgetOf(const Control& control) const;
  std::string Type(Control& control, std::string_view text);
  std::string Switch(Control& control, std::string_view text);
  std::string Pick(ListControl& control, std::string_view text);
  std::string Slide(Slider& slider, std::string_view text);
  void GoOn();
  void Settle();  // what the last event left to do is done

  FormDialog& dialog_;
  DesktopStageOptions options_;
  Control* typed_ = nullptr;  // the field that the person has typed into and not left
};

}  // namespace orm
