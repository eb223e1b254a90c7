#include "desktop/desktop_app.h"

#include <QLocale>

#include "desktop/italian_captions.h"
#include "desktop/pictures.h"
#include "desktop/seen_marks.h"

namespace orm {

void DressApplication(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  QGuiApplication::setApplicationDisplayName({});
  QGuiApplication::setDesktopFileName("orm2002");
  QApplication::setStyle(new SeenMarks);
  QApplication::setWindowIcon(ProgramIcon());
  QCoreApplication::installTranslator(new ItalianCaptions(&application));
}

}  // namespace orm
