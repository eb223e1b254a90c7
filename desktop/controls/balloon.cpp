#include "desktop/controls/balloon.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <array>

#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kMilliseconds = 6000;
constexpr int kGap = 3;
const char* const kName = "avviso";

// What the field stands on, so that the notice goes along when a form is scrolled.
QWidget* GroundOf(const QWidget& field) {
  QWidget* ground = field.parentWidget();
  while (!ground->isWindow() &&
         (ground->parentWidget() == nullptr ||
          qobject_cast<QScrollArea*>(ground->parentWidget()->parentWidget()) == nullptr))
    ground = ground->parentWidget();
  return ground;
}

class Balloon : public QLabel {
 public:
  explicit Balloon(QWidget& field) : QLabel(GroundOf(field)), field_(field) {
    setObjectName(kName);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(5);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { Say(note_); });
    connect(qApp, &QApplication::focusChanged, this, [this] {
      if (isVisible()) Place();
    });
    field.installEventFilter(this);
    parentWidget()->installEventFilter(this);
  }

  bool Is(const QWidget& field) const { return &field_ == &field; }
  void Tell(const QString& text) {
    Say(text);
    timer_.start(kMilliseconds);
  }
  void SetNote(const QString& note) {
    if (note == note_) return;
    note_ = note;
    if (note.isEmpty() && timer_.isActive()) return;
    timer_.stop();
    Say(note);
  }
  void Silence() {
    timer_.stop();
    Say(note_);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    if (watched == &field_ && type == QEvent::Hide) hide();
    if (watched == &field_ && type == QEvent::Show) Say(note_);
    if (watched == parentWidget() && (type == QEvent::Resize || type == QEvent::LayoutRequest))
      QTimer::singleShot(0, this, [this] {
        if (isVisible()) Place();
      });
    return QLabel::eventFilter(watched, event);
  }

 private:
  void Say(const QString& text) {
    if (text.isEmpty() || !field_.isVisible()) return hide();
    const bool news = text != this->text() || !isVisible();
    setText(text);
    Place();
    show();
    raise();
    if (!news) return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
  }

  // Beside the field, below or above it: where it hides least, and never the field that is typed
  // into.
  void Place() {
    const QWidget& ground = *parentWidget();
    const int wanted = fontMetrics().horizontalAdvance(text()) + 20;
    const int width = std::min({wanted, ground.width() - 8, CharactersWide(*this, 52)});
    const int height = heightForWidth(width);
    const QRect around(field_.mapTo(&ground, QPoint(0, 0)), field_.size());
    const int x = std::clamp(around.left(), 4, std::max(4, ground.width() - width - 4));
    const int right = RightOfRow(ground);
    const int room = std::clamp(ground.width() - right - 4, CharactersWide(*this, 14), width);
    const QSize beside(room, heightForWidth(room));
    const int middle = around.center().y() - beside.height() / 2;
    const std::array<QRect, 3> places = {QRect(QPoint(right, std::max(0, middle)), beside),
                                         QRect(x, around.bottom() + kGap, width, height),
                                         QRect(x, around.top() - height - kGap, width, height)};
    setGeometry(*std::ranges::min_element(places, {},
                                          [&](const QRect& place) { return Harm(place, ground); }));
  }

  // Behind the unit that stands beside the field.
  int RightOfRow(const QWidget& ground) const {
    const QWidget& row = *field_.parentWidget();
    const int end = row.childrenRect().right();
    return row.mapTo(&ground, QPoint(end, 0)).x() + 2 * kGap;
  }

  int Harm(const QRect& place, const QWidget& ground) const {
    int harm = ground.rect().contains(place) ? 0 : 100;
    for (const QWidget* other : ground.findChildren<QWidget*>()) {
      const bool typed = (other->focusPolicy() & Qt::TabFocus) != 0 || other->objectName() == kName;
      if (!typed || other == this || !other->isVisible() ||
          !place.intersects({other->mapTo(&ground, QPoint(0, 0)), other->size()}))
        continue;
      harm += other->hasFocus() || other == &field_ ? 1000 : 1;
    }
    return harm;
  }

  QWidget& field_;
  QTimer timer_;
  QString note_;
};

Balloon* Existing(const QWidget& field) {
  for (QLabel* label : GroundOf(field)->findChildren<QLabel*>(kName, Qt::FindDirectChildrenOnly))
    if (auto* balloon = dynamic_cast<Balloon*>(label); balloon->Is(field)) return balloon;
  return nullptr;
}

Balloon& BalloonOf(QWidget& field) {
  Balloon* balloon = Existing(field);
  return balloon != nullptr ? *balloon : *new Balloon(field);
}

}  // namespace

void ShowBalloon(QWidget& field, const std::string& text) {
  if (text.empty()) return HideBalloon(field);
  if (field.isVisible()) BalloonOf(field).Tell(ToQt(text));
}

void HideBalloon(const QWidget& field) {
  if (Balloon* balloon = Existing(field)) balloon->Silence();
}

void SetNote(QWidget& field, const std::string& text) {
  if (!text.empty()) return BalloonOf(field).SetNote(ToQt(text));
  if (Balloon* balloon = Existing(field)) balloon->SetNote({});
}

}  // namespace orm
