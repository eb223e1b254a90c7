#include "desktop/dress/look.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace orm {
namespace {

// The colour of texts with so many tenths of the ground in it.
QColor Faded(const QPalette& palette, int tenths) {
  const QColor text = palette.color(QPalette::WindowText);
  const QColor window = palette.color(QPalette::Window);
  const auto blend = [=](int a, int b) { return (a * (10 - tenths) + b * tenths) / 10; };
  return {blend(text.red(), window.red()), blend(text.green(), window.green()),
          blend(text.blue(), window.blue())};
}

}  // namespace

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor WarningText(const QPalette& palette) {
  return IsDark(palette) ? QColor(255, 138, 128) : QColor(176, 32, 24);
}

QColor WarningBase(const QPalette& palette) {
  return IsDark(palette) ? QColor(74, 32, 30) : QColor(253, 236, 234);
}

QColor AutomaticText(const QPalette& palette) {
  return IsDark(palette) ? QColor(144, 190, 255) : QColor(0, 48, 208);
}

QColor NoteText(const QPalette& palette) { return Faded(palette, 3); }
QColor StaleText(const QPalette& palette) { return Faded(palette, 5); }

QColor AdviceText(const QPalette& palette) {
  return IsDark(palette) ? QColor(255, 204, 112) : QColor(138, 82, 0);
}

QColor AdviceBase(const QPalette& palette) {
  return IsDark(palette) ? QColor(72, 54, 16) : QColor(255, 240, 204);
}

QIcon WarningMark(const QPalette& palette, const QColor& colour) {
  QIcon icon;
  for (const int scale : {1, 2, 3}) {
    QPixmap picture(16 * scale, 16 * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(QRectF(7, 3.5, 2, 6), 1, 1);
    painter.drawEllipse(QRectF(6.9, 10.6, 2.2, 2.2));
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

int CharactersWide(const QWidget& widget, int characters) {
  const QFontMetrics metrics(widget.font());
  // Between a digit and an average letter: capitals are common in these forms.
  return characters * std::max(metrics.horizontalAdvance('0'), metrics.averageCharWidth());
}

}  // namespace orm
