#include "desktop/player/outside_programs.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <initializer_list>

#include "desktop/qt_text.h"

namespace orm {
namespace {

std::string FirstOf(std::initializer_list<const char*> names, const std::string& otherwise) {
  for (const char* name : names) {
    const QString path = QStandardPaths::findExecutable(name);
    if (!path.isEmpty()) return FromQt(path);
  }
  return otherwise;
}

}  // namespace

OutsidePrograms FindOutsidePrograms() {
  const std::string here = FromQt(QCoreApplication::applicationDirPath());
  const std::string viewer = here + "/orm2002-visore";
  return {viewer,
          FirstOf({"gnome-text-editor", "gedit", "kate", "kwrite", "mousepad", "pluma", "xed",
                   "featherpad", "l3afpad", "leafpad"},
                  viewer),
          FirstOf({"evince", "okular", "atril", "xreader", "qpdfview", "zathura", "mupdf"},
                  "/usr/bin/xdg-open"),
          here + "/orm2002-guida"};
}

}  // namespace orm
