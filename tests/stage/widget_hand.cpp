#include "tests/stage/widget_hand.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QPainter>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QTest>
#include <QTextBlock>
#include <algorithm>

#include "desktop/drawing/drawing_files.h"
#include "desktop/player/heading_line.h"
#include "desktop/qt_text.h"
#include "runtime/folder.h"
#include "tests/stage/form_lint.h"

namespace orm {
namespace {

const char* const kNotTaken = "non prende questo valore";

}  // namespace

void TypeKeys(QWidget* widget, const QString& text) {
  for (const QChar c : text) {
    const bool line = c == '\n';
    const auto key = line                 ? Qt::Key_Return
                     : c.unicode() < 0x80 ? static_cast<Qt::Key>(c.toUpper().unicode())
                                          : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, widget, key, line ? QString("\r") : QString(c),
                        Qt::NoModifier);
  }
}

void Retype(QWidget* widget, const QString& text) {
  QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty())
    QTest::keyClick(widget, Qt::Key_Delete);
  else
    TypeKeys(widget, text);
}

namespace {

// The place of an item by its text or "#index"; -1 where the list has none.
int PlaceOf(const ListControl& list, std::string_view text) {
  const QString wanted = ToQt(text);
  if (wanted.size() > 1 && wanted[0] == '#') {
    bool number = false;
    const int index = wanted.mid(1).toInt(&number);
    return number && index < static_cast<int>(list.Items().size()) ? index : -1;
  }
  const auto found = std::find(list.Items().begin(), list.Items().end(), text);
  return found == list.Items().end() ? -1 : static_cast<int>(found - list.Items().begin());
}

void Save(const std::string& path, const std::string& bytes) {
  const auto slash = path.rfind('/');
  WorkFolder(path.substr(0, slash)).Replace(path.substr(slash + 1), bytes);
}

void SaveDrawing(const Lavagna& drawing, const std::string& path) {
  Save(path + ".svg", FileOf(drawing, DrawingKind::Svg));
  Save(path + ".disegno.png", FileOf(drawing, DrawingKind::Png));
  Save(path + ".pdf", FileOf(drawing, DrawingKind::Pdf));
  Save(path + ".dxf", FileOf(drawing, DrawingKind::Dxf));
  QPdfWriter sheet(ToQt(path + ".foglio.pdf"));
  sheet.setResolution(96);
  sheet.setPageOrientation(SheetOf(drawing));
  QPainter painter(&sheet);
  PaintFormPage(painter, sheet.pageLayout().paintRectPixels(96).size(), drawing);
}

}  // namespace

WidgetHand::WidgetHand(FormDialog& dialog, DesktopStageOptions options)
    : dialog_(dialog), options_(std::move(options)) {}

// By the name alone, as a person's eye finds it on the screen.
QWidget* WidgetHand::WidgetOf(const Control& control) const {
  return dialog_.findChild<QWidget*>(ToQt(control.Name()));
}

void WidgetHand::Settle() {
  QCoreApplication::processEvents();
  // Without a screen nobody gives the focus back when a message box has gone.
  if (dialog_.isVisible() && !dialog_.isActiveWindow()) {
    dialog_.activateWindow();
    QCoreApplication::processEvents();
  }
  dialog_.RethrowFailure();
  if (dialog_.Model().IsOpen()) Look();
}

void WidgetHand::Look() {
  if (options_.faults == nullptr) return;
  for (const std::string& fault : LintForm(dialog_))
    options_.faults->insert(dialog_.Model().Name() + ": " + fault);
}

std::string WidgetHand::Set(Control& control, std::string_view text) {
  if (typed_ != &control) GoOn();
  std::string objection;
  switch (control.GetKind()) {
    case Control::Kind::TextBox:
    case Control::Kind::NumberBox:
    case Control::Kind::BarsBox:
    case Control::Kind::RichText:
    case Control::Kind::Date:
      objection = Type(control, text);
      break;
    case Control::Kind::Option:
    case Control::Kind::Check:
      objection = Switch(control, text);
      break;
    case Control::Kind::Combo:
    case Control::Kind::List:
      objection = Pick(static_cast<ListControl&>(control), text);
      break;
    case Control::Kind::Slider:
      objection = Slide(static_cast<Slider&>(control), text);
      break;
    default:
      return kNotTaken;
  }
  typed_ = objection.empty() ? &control : nullptr;
  Settle();
  return objection;
}

// A person goes on from the field behind what is typed: on the way to another one, or to read the
// number as it stands then.
void WidgetHand::GoOn() {
  if (typed_ == nullptr) return;
  const Control& left = *std::exchange(typed_, nullptr);
  QWidget* field = WidgetOf(left);
  if (field->hasFocus() && left.GetKind() != Control::Kind::RichText)
    QTest::keyClick(field, Qt::Key_Tab);
  if (field->hasFocus()) dialog_.setFocus();
}

std::string WidgetHand::Type(Control& control, std::string_view text) {
  if (!control.TakesFocus()) return PointAt(control, text);
  QWidget* field = WidgetOf(control);
  ControlView& view = dialog_.ViewOf(control);
  const std::string before = view.Shown();
  Reach(*field);
  view.TakeRefusal();
  Write(control, *field, ToQt(text));
  std::string objection = view.TakeRefusal();
  if (objection.empty()) objection = view.Objection();
  // Who sees that it is not taken writes again what was there.
  if (!objection.empty()) Retype(field, ToQt(before));
  return objection;
}

// A line of a text that is only read, told by its number.
std::string WidgetHand::PointAt(Control& control, std::string_view line) {
  auto* area = dynamic_cast<QPlainTextEdit*>(WidgetOf(control));
  if (area == nullptr || !line.starts_with('#')) return kNotTaken;
  const QTextBlock block = area->document()->findBlockByNumber(ToQt(line.substr(1)).toInt());
  area->setTextCursor(QTextCursor(block));
  QTest::mouseClick(area->viewport(), Qt::LeftButton, {}, area->cursorRect().center());
  return {};
}

void WidgetHand::Reach(QWidget& widget) { widget.setFocus(Qt::TabFocusReason); }
void WidgetHand::Turn(QAbstractButton& mark) {
  QTest::mouseClick(&mark, Qt::LeftButton, {}, QPoint(8, mark.height() / 2));
}
void WidgetHand::Open(QComboBox& combo) { combo.showPopup(); }
void WidgetHand::ChooseRow(QAbstractItemView& items, int row) {
  const QModelIndex place = items.model()->index(row, 0);
  items.scrollTo(place);
  QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(place).center());
}
void WidgetHand::Push(QPushButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
void WidgetHand::Write(Control&, QWidget& field, const QString& text) { Retype(&field, text); }

std::string WidgetHand::Switch(Control& control, std::string_view text) {
  auto* button = dynamic_cast<QAbstractButton*>(WidgetOf(control));
  const bool on = text == "on";
  if (!on && (text != "off" || control.GetKind() == Control::Kind::Option)) return kNotTaken;
  if (button->isChecked() != on) Turn(*button);
  return {};
}

std::string WidgetHand::Pick(ListControl& control, std::string_view text) {
  const int index = PlaceOf(control, text);
  if (index < 0) return kNotTaken;
  QAbstractItemView* items = nullptr;
  auto* combo = dynamic_cast<QComboBox*>(WidgetOf(control));
  if (combo != nullptr) {
    Reach(*combo);
    Open(*combo);
    items = combo->view();
    QTest::keyClick(items, Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(items, Qt::Key_Down);
    QTest::keyClick(items, Qt::Key_Return);
  } else {
    items = dynamic_cast<QAbstractItemView*>(WidgetOf(control));
    ChooseRow(*items, index);
  }
  return {};
}

std::string WidgetHand::Slide(Slider& slider, std::string_view text) {
  const NumberReading reading =
      ReadNumber(text, {.least = slider.Least(), .most = slider.Most(), .decimals = 9});
  if (!reading.value) return reading.objection;
  const double step = (slider.Most() - slider.Least()) / slider.Steps();
  QWidget* bar = WidgetOf(slider);
  Reach(*bar);
  QTest::keyClick(bar, Qt::Key_Home);
  for (int i = qRound((*reading.value - slider.Least()) / step); i > 0; --i)
    QTest::keyClick(bar, Qt::Key_Right);
  return {};
}

std::string WidgetHand::Press(Button& button) {
  GoOn();
  Push(*dynamic_cast<QPushButton*>(WidgetOf(button)));
  Settle();
  return {};
}

void WidgetHand::CloseByWindow() {
  dialog_.close();
  Settle();
}

std::string WidgetHand::Shown(Control& control) {
  if (typed_ == &control) {
    GoOn();
    Settle();
  }
  return dialog_.ViewOf(control).Shown();
}
bool WidgetHand::IsVisible(Control& control) { return WidgetOf(control)->isVisible(); }
bool WidgetHand::IsEnabled(Control& control) { return WidgetOf(control)->isEnabled(); }
std::string WidgetHand::Title() { return dialog_.Model().Title(); }

std::string WidgetHand::Heading() {
  return dialog_.TopLine() == nullptr ? "" : FromQt(dialog_.TopLine()->Whole());
}

void WidgetHand::Picture(const std::string& name) {
  if (options_.pictures.empty()) return;
  QCoreApplication::processEvents();
  const std::string path = options_.pictures + "/" + name;
  dialog_.grab().save(ToQt(path + ".png"));
  if (!options_.drawings) return;
  for (const Control* control : dialog_.Model().Controls())
    if (const auto* drawing = dynamic_cast<const Lavagna*>(control); drawing && drawing->IsShown())
      SaveDrawing(*drawing, path);
}

}  // namespace orm
