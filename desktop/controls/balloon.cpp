#include "desktop/controls/balloon.h"

#include <QAccessible>
#include <QLabel>
#include <QTimer>
#include <QToolTip>

#include "desktop/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kMilliseconds = 6000;
const char* const kName = "avviso";

QLabel* Existing(const QWidget& field) {
  return field.window()->findChild<QLabel*>(kName, Qt::FindDirectChildrenOnly);
}

QLabel* Make(QWidget* window) {
  auto* balloon = new QLabel(window);
  balloon->setObjectName(kName);
  balloon->setTextFormat(Qt::PlainText);
  balloon->setWordWrap(true);
  balloon->setPalette(QToolTip::palette());
  balloon->setForegroundRole(QPalette::ToolTipText);
  balloon->setBackgroundRole(QPalette::ToolTipBase);
  balloon->setAutoFillBackground(true);
  balloon->setFrameStyle(QFrame::Box | QFrame::Plain);
  balloon->setMargin(5);
  balloon->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* timer = new QTimer(balloon);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, balloon, &QWidget::hide);
  return balloon;
}

// Below the field, or above where there is no room, whole inside the window.
void Place(QLabel& balloon, const QWidget& field) {
  const QWidget& window = *field.window();
  const int room = window.width() - 8;
  const int wanted = balloon.fontMetrics().horizontalAdvance(balloon.text()) + 20;
  const int width = std::min({wanted, room, CharactersWide(balloon, 52)});
  balloon.resize(width, balloon.heightForWidth(width));
  const QPoint below = field.mapTo(&window, QPoint(0, field.height() + 3));
  const QPoint above = field.mapTo(&window, QPoint(0, -balloon.height() - 3));
  const bool fits = below.y() + balloon.height() <= window.height();
  const int x = std::clamp(below.x(), 4, std::max(4, window.width() - width - 4));
  balloon.move(x, fits ? below.y() : std::max(0, above.y()));
}

}  // namespace

void ShowBalloon(QWidget& field, const std::string& text) {
  if (!field.isVisible()) return;
  if (text.empty()) return HideBalloon(field);
  QLabel* balloon = Existing(field);
  if (balloon == nullptr) balloon = Make(field.window());
  balloon->setText(ToQt(text));
  Place(*balloon, field);
  balloon->show();
  balloon->raise();
  balloon->findChild<QTimer*>()->start(kMilliseconds);
  QAccessibleEvent event(balloon, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void HideBalloon(const QWidget& field) {
  if (QLabel* balloon = Existing(field)) balloon->hide();
}

}  // namespace orm
