// The palettes of the two themes; the system's own is left as it was found.
#include "desktop/viewer/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace orm {
namespace {

QPalette DarkPalette() {
  const QColor window(45, 46, 48), base(30, 31, 33), text(226, 226, 224), faint(126, 127, 130);
  QPalette colours(QColor(58, 60, 63), window);
  colours.setColor(QPalette::Window, window);
  colours.setColor(QPalette::Base, base);
  colours.setColor(QPalette::AlternateBase, window);
  colours.setColor(QPalette::ToolTipBase, QColor(66, 68, 72));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::BrightText}) {
    colours.setColor(role, text);
    colours.setColor(QPalette::Disabled, role, faint);
  }
  colours.setColor(QPalette::PlaceholderText, faint);
  colours.setColor(QPalette::Highlight, QColor(52, 104, 168));
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::Link, QColor(120, 170, 230));
  return colours;
}

QPalette LightPalette() {
  QPalette colours(QColor(239, 239, 239), QColor(239, 239, 239));
  colours.setColor(QPalette::Base, Qt::white);
  colours.setColor(QPalette::PlaceholderText, QColor(130, 130, 130));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    colours.setColor(QPalette::Disabled, role, QColor(160, 160, 160));
  colours.setColor(QPalette::Highlight, QColor(48, 110, 190));
  colours.setColor(QPalette::HighlightedText, Qt::white);
  return colours;
}

}  // namespace

void ApplyTheme(Theme theme) {
  static const QPalette system = QApplication::palette();
  QApplication::setPalette(theme == Theme::System ? system
                           : theme == Theme::Dark ? DarkPalette()
                                                  : LightPalette());
}

}  // namespace orm
