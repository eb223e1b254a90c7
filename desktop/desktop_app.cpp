#include "desktop/desktop_app.h"

#include <QDir>
#include <QLocale>
#include <QPalette>

#include "desktop/dress/seen_marks.h"
#include "desktop/icons.h"
#include "desktop/italian_captions.h"
#include "desktop/pictures.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

// What cannot be used is still read, on light windows and on dark ones.
constexpr QColor kUnusable(138, 138, 138);

QPalette SeenTexts() {
  QPalette palette;  // the other colours remain those of the desktop
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, kUnusable);
  return palette;
}

}  // namespace

void DressApplication(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  QGuiApplication::setApplicationDisplayName({});
  QGuiApplication::setDesktopFileName("orm2002");
  QApplication::setStyle(new SeenMarks(IconOf(LineIcon::Close)));
  QApplication::setPalette(SeenTexts());
  QApplication::setWindowIcon(ProgramIcon());
  QCoreApplication::installTranslator(new ItalianCaptions(&application));
}

std::string InstalledFiles() {
  const QDir programs(QCoreApplication::applicationDirPath());
  const bool built = programs.exists(QStringLiteral("share/orm2002"));
  return FromQt(programs.filePath(built ? "share/orm2002" : "../share/orm2002"));
}

}  // namespace orm
