#include "desktop/player/form_dialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cmath>

#include "desktop/controls/balloon.h"
#include "desktop/player/form_builder.h"
#include "desktop/player/heading_line.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kTitleButtons = 120;  // room in the title bar beside the title

// As great as its content wherever the screen lets it; bars appear only beyond that.
class ContentArea : public QScrollArea {
 public:
  explicit ContentArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
  }
  QSize sizeHint() const override { return widget()->layout()->totalSizeHint(); }
  QSize minimumSizeHint() const override { return sizeHint().boundedTo({120, 80}); }
};

}  // namespace

FormDialog::FormDialog(Form& form, QWidget* parent) : QDialog(parent), form_(form) {
  setObjectName(ToQt(form.Name()));
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  setModal(true);
  TitleChanged();
  MakeViews();
  Arrange();
  SettleDefault();
  setWindowFlag(Qt::WindowMaximizeButtonHint, grows_);
  ChainFocus();
  form_.Attach(this);
}

FormDialog::~FormDialog() { form_.Attach(nullptr); }

void FormDialog::MakeViews() {
  for (Control* control : form_.Controls()) {
    auto view = MakeView(*control, *this);
    view->Refresh();
    views_.emplace(control, std::move(view));
  }
}

void FormDialog::Arrange() {
  FormBuilder builder([this](const Control& control) -> ControlView& { return ViewOf(control); });
  Layout layout = form_.Content();
  if (layout.children.empty())
    for (Control* control : form_.Controls()) layout.children.emplace_back(*control);
  reading_ = ControlsOf(layout);
  // The foot of the form stays in sight when the rest has to be scrolled.
  std::vector<Layout> foot;
  const bool hasFoot = layout.kind == Layout::Kind::Column && !layout.children.empty() &&
                       layout.children.back().kind == Layout::Kind::Buttons;
  if (hasFoot) {
    foot.push_back(layout.children.back());
    layout.children.pop_back();
  }
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  if (layout.kind == Layout::Kind::Column)
    builder.AddColumn(layout.children, column);
  else
    builder.AddPart(layout, column);
  grows_ = builder.Grows(layout);
  if (!grows_) column->addStretch();
  column->setContentsMargins(0, 0, 0, 0);

  scroll_ = new ContentArea(this);
  scroll_->setWidget(content);
  auto* outer = new QVBoxLayout(this);
  if (!form_.GetHeading().note.empty()) {
    heading_ = new HeadingLine(form_.GetHeading(), this);
    outer->addWidget(heading_);
  }
  outer->addWidget(scroll_, 1);
  if (hasFoot) {
    outer->addSpacing(6);
    builder.AddPart(foot[0], outer);
  }
  builder.AlignLabels();
}

void FormDialog::ChainFocus() {
  QWidget* before = nullptr;
  for (Control* control : reading_) {
    QWidget* field = ViewOf(*control).Field();
    if (field->focusPolicy() == Qt::NoFocus) continue;
    if (before != nullptr) setTabOrder(before, field);
    before = field;
  }
}

QSize FormDialog::Room() const { return screen()->availableSize() - kFrame; }

// A screen whose scale is no whole number may round a window down to its own points.
QSize FormDialog::LostInRounding() const {
  const bool broken = devicePixelRatioF() != std::floor(devicePixelRatioF());
  return broken ? QSize(1, 1) : QSize(0, 0);
}

void FormDialog::Refit() {
  refit_ = false;
  // From the inmost frame outward, as each tells the one around it what it needs.
  const QList<QWidget*> frames = scroll_->widget()->findChildren<QWidget*>();
  for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame)
    if ((*frame)->layout() != nullptr) (*frame)->layout()->activate();
  scroll_->widget()->layout()->activate();
  scroll_->updateGeometry();
  QSize wanted = layout()->totalSizeHint();
  // What grows can be smaller than it wants; a bar comes when even that is too high.
  const QLayout& content = *scroll_->widget()->layout();
  const QSize spare = content.totalSizeHint() - content.totalMinimumSize();
  if (wanted.height() - spare.height() > Room().height())
    wanted.rwidth() += scroll_->verticalScrollBar()->sizeHint().width();
  const QFontMetrics titleBar(QApplication::font("QMdiSubWindowTitleBar"));
  const int title = titleBar.horizontalAdvance(windowTitle()) + kTitleButtons;
  wanted.setWidth(std::max(wanted.width(), title));
  least_ = wanted - spare;
  wanted += LostInRounding();
  if (wanted == fitted_) return;
  Fit(wanted);
  if (shown_) KeepOnScreen();
}

// A window that a person may size comes up as great as its content wants, and after that becomes
// greater only where the content would not go in any more.
void FormDialog::Fit(const QSize& wanted) {
  const bool first = !fitted_.isValid();
  fitted_ = wanted;
  if (!grows_) return setFixedSize(wanted.boundedTo(Room()));
  setMinimumSize(least_.boundedTo(Room()));
  if (first)
    resize(wanted.boundedTo(Room()));
  else if (!isMaximized())
    resize(size().expandedTo((least_ + LostInRounding()).boundedTo(Room())));
}

void FormDialog::KeepOnScreen() {
  if (isMaximized()) return;
  const QRect area = screen()->availableGeometry(), whole = frameGeometry();
  const auto within = [](int at, int length, int least, int most) {
    return std::max(least, std::min(at, most - length));
  };
  const QPoint to(within(whole.x(), whole.width(), area.left(), area.right() + 1),
                  within(whole.y(), whole.height(), area.top(), area.bottom() + 1));
  if (to != whole.topLeft()) move(to);
}

// Enter presses the default button that is seen: a part of a form may have its own.
void FormDialog::SettleDefault() {
  for (const auto& [control, view] : views_) {
    auto* push = dynamic_cast<QPushButton*>(view->Field());
    if (push == nullptr || !control->IsShown()) continue;
    const bool wanted = static_cast<const Button*>(control)->GetRole() == Button::Role::Default;
    if (wanted && !push->isDefault()) push->setDefault(true);
  }
}

void FormDialog::Centre() {
  const QRect area = screen()->availableGeometry();
  move(area.center() - QPoint(width() / 2, height() / 2 + kFrame.height() / 4));
}

void FormDialog::showEvent(QShowEvent* event) {
  if (!shown_) {
    ensurePolished();
    Refit();
    Centre();
    shown_ = true;
    if (Control* first = form_.FirstFocus()) FocusMoved(*first);
  }
  QDialog::showEvent(event);
}

void FormDialog::ControlChanged(Control& control) {
  ViewOf(control).Refresh();
  if (control.GetKind() == Control::Kind::Frame) SettleDefault();
  if (depth_ > 0)
    refit_ = true;
  else if (shown_)
    Refit();
}

// The form leads to the field: what stands there is chosen whole, so that typing replaces it.
void FormDialog::FocusMoved(Control& control) {
  QWidget* field = ViewOf(control).Field();
  field->setFocus(Qt::TabFocusReason);
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
}

void FormDialog::TitleChanged() {
  const QString title = ToQt(form_.Title()).trimmed();
  setWindowTitle(title.isEmpty() ? QStringLiteral("ORM2002") : title);
}

void FormDialog::Act(const std::function<void()>& event) {
  if (!form_.IsOpen()) return;
  ++depth_;
  try {
    event();
  } catch (...) {
    // Nothing may pass through the widgets: it goes on where the form was shown.
    if (failure_ == nullptr) failure_ = std::current_exception();
    form_.Close();
  }
  if (--depth_ > 0) return;
  if (!form_.IsOpen())
    done(QDialog::Accepted);
  else if (refit_)
    Refit();
}

void FormDialog::RethrowFailure() {
  if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
}

bool FormDialog::SettleFields() {
  for (Control* control : form_.Controls()) {
    ControlView& view = ViewOf(*control);
    if (!control->IsShown() || !control->IsActive() || view.Settle()) continue;
    view.Field()->setFocus(Qt::TabFocusReason);
    view.Settle();
    return false;
  }
  return true;
}

void FormDialog::Press(Button& button) {
  if (button.GetRole() != Button::Role::Close && !SettleFields()) return;
  Act([&] { button.Press(); });
}

Button* FormDialog::ButtonOfKey(const std::string& key) const {
  if (key.empty()) return nullptr;
  for (Control* control : form_.Controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (button != nullptr && button->Keys().find(key) != std::string::npos && button->IsShown() &&
        button->IsActive())
      return button;
  }
  return nullptr;
}

void FormDialog::reject() {
  Act([this] { form_.OnWindowClose(); });
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
  const bool modifier = event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control ||
                        event->key() == Qt::Key_Alt || event->key() == Qt::Key_AltGr ||
                        event->key() == Qt::Key_Meta;
  if (form_.ClosesOnAnyKey() && !modifier) return reject();
  if (event->matches(QKeySequence::Cancel)) return Act([this] { form_.OnEscape(); });
  QDialog::keyPressEvent(event);
}

void FormDialog::mousePressEvent(QMouseEvent* event) {
  if (form_.ClosesOnAnyKey()) return reject();
  QDialog::mousePressEvent(event);
}

}  // namespace orm
