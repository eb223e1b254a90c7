#include "desktop/desktop_app.h"

#include <QDir>
#include <QLocale>

#include "desktop/italian_captions.h"
#include "desktop/pictures.h"
#include "desktop/qt_text.h"

namespace orm {

void DressApplication(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  QGuiApplication::setApplicationDisplayName({});
  QGuiApplication::setDesktopFileName("orm2002");
  QApplication::setWindowIcon(ProgramIcon());
  QCoreApplication::installTranslator(new ItalianCaptions(&application));
}

std::string InstalledFiles() {
  const QDir programs(QCoreApplication::applicationDirPath());
  const bool built = programs.exists(QStringLiteral("share/orm2002"));
  return FromQt(programs.filePath(built ? "share/orm2002" : "../share/orm2002"));
}

}  // namespace orm
