// Fields that a person types into: texts, numbers and reinforcement.
#pragma once

#include <string>
#include <string_view>

#include "dialogs/control.h"
#include "dialogs/number_entry.h"

namespace orm {

// TestoBox: text on one line or several. Takes only characters that the files can hold.
struct TextOptions {
  int longest = 250;  // characters
  int lines = 1;      // above 1 the text may hold line ends
  bool readOnly = false;
  int width = 30;  // usual width in characters
  // In letters of one width, so that columns stand below each other; what is typed so folds by
  // words at `width`, the columns that print.
  bool columns = false;
  std::string unit = {};
  std::string hint = {};
  bool figure = false;  // a result in figures, which stands at the right as numbers do
};

class TestoBox : public Control {
 public:
  TestoBox(Form& form, std::string name, std::string caption, TextOptions options = {});
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  const TextOptions& Options() const { return options_; }
  // Admits a whole new text: empty when it is taken, else the Italian reason.
  std::string Type(std::string_view text);
  // Why the text cannot be taken, without taking it.
  std::string Objection(std::string_view text) const;
  bool TakesFocus() const override { return !options_.readOnly; }
  std::string ShownText() const override { return text_; }
  // In a text that is only read, "#3" points at its fourth line.
  std::string Enter(std::string_view text) override;
  std::function<void(int)> onLine;  // a person pointed at this line of a text that is only read

 private:
  TextOptions options_;
  std::string text_;
};

// A number with decimals (FloatBox) or whole (InterBox). Shows Italian form with thousands points.
class NumberBox : public Control {
 public:
  double Value() const { return value_; }
  // The logic may set any value: a file can hold what the limits would not let a person type.
  void SetValue(double value);
  const NumberLimits& Limits() const { return limits_; }
  bool ReadOnly() const { return readOnly_; }
  void SetReadOnly(bool readOnly);
  // A result may come as text by a pattern of its own; it stands until the next value.
  void SetShown(std::string text);
  // A value that warns (a stress beyond its limit).
  bool Warns() const { return warns_ && !stale_; }
  void SetWarning(bool warns);
  // A result that is not, or no longer, the one of the data: it weighs less and warns of nothing.
  bool IsStale() const { return stale_; }
  void SetStale(bool stale);
  // A value that the program writes by itself when another one changes; told by its colour.
  bool IsAutomatic() const { return automatic_; }
  void SetAutomatic() { automatic_ = true; }
  // The limit that a caption tells without enforcing it; a value above it is marked.
  void SetAdvised(double most);
  bool IsBeyondAdvised() const { return value_ > limits_.advised; }
  // What a person has typed so far: taken when it is a number within the limits, and the draft
  // text is kept as it is until the focus goes. Empty when taken, else the Italian reason.
  std::string Type(std::string_view draft);
  bool TakesFocus() const override { return !readOnly_; }
  std::string ShownText() const override;
  std::string Enter(std::string_view text) override;

 protected:
  NumberBox(Form& form, std::string name, std::string caption, NumberLimits limits);

 private:
  NumberLimits limits_;
  double value_ = 0;
  std::string shown_;
  bool readOnly_ = false;
  bool warns_ = false;
  bool stale_ = false;
  bool automatic_ = false;
};

class FloatBox : public NumberBox {
 public:
  FloatBox(Form& form, std::string name, std::string caption, NumberLimits limits = {});
};

class InterBox : public NumberBox {
 public:
  InterBox(Form& form, std::string name, std::string caption, NumberLimits limits = {});
};

// FerriBox: bars as "2D16+2D12" with their area in cmq, shown beside.
class FerriBox : public Control {
 public:
  FerriBox(Form& form, std::string name, std::string caption);
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  double Area() const;  // cmq; 0 for a text that is not of the form
  std::string AreaText() const;
  // A draft is admitted as long as it has the characters of the form; while it is not of the form
  // its area is 0.
  std::string Type(std::string_view text);
  std::string Objection(std::string_view text) const;  // why a draft is not admitted
  static const char* Writing();                        // in Italian: how bars are written
  std::string ShownText() const override { return text_; }
  std::string Enter(std::string_view text) override;

 private:
  std::string text_;
};

}  // namespace orm
