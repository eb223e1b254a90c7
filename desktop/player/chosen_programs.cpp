#include "desktop/player/chosen_programs.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "desktop/qt_text.h"

namespace orm {
namespace {
const QString kKey = QStringLiteral("scelti");

QSettings Memory() { return QSettings(QStringLiteral("ORM2002"), QStringLiteral("Programmi")); }
}  // namespace

std::string WholePath(const std::string& program, const std::string& folder) {
  const QString name = ToQt(program);
  const QString path = name.contains('/') ? QDir(ToQt(folder)).absoluteFilePath(name)
                                          : QStandardPaths::findExecutable(name);
  return QFileInfo(path).isFile() ? FromQt(QDir::cleanPath(path)) : std::string();
}

bool LiesIn(const std::string& wholePath, const std::string& folder) {
  const QFileInfo where(ToQt(folder)), program(ToQt(wholePath));
  const auto below = [](const QString& path, const QString& above) {
    return above.isEmpty() || path.startsWith(above.endsWith('/') ? above : above + '/');
  };
  return below(program.canonicalFilePath(), where.canonicalFilePath()) ||
         below(program.filePath(), QDir::cleanPath(where.absoluteFilePath()));
}

bool IsChosen(const std::string& wholePath) {
  return Memory().value(kKey).toStringList().contains(ToQt(wholePath));
}

void RememberChosen(const std::string& wholePath) {
  QSettings memory = Memory();
  const QStringList known = memory.value(kKey).toStringList();
  if (!wholePath.empty() && !known.contains(ToQt(wholePath)))
    memory.setValue(kKey, known + QStringList(ToQt(wholePath)));
}

}  // namespace orm
