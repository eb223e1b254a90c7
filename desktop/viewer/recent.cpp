#include "desktop/viewer/recent.h"

#include <QSettings>

namespace orm {
namespace {
const QString kKey = QStringLiteral("recenti");
}

QStringList RecentFiles::Paths() const {
  if (settings_ == nullptr) return {};
  settings_->sync();  // other windows have shown files meanwhile
  return settings_->value(kKey).toStringList().mid(0, kMost);
}

void RecentFiles::Add(const QString& path) {
  QStringList paths = Paths();
  paths.removeAll(path);
  paths.prepend(path);
  Write(paths.mid(0, kMost));
}

void RecentFiles::Forget(const QString& path) {
  QStringList paths = Paths();
  paths.removeAll(path);
  Write(paths);
}

void RecentFiles::Write(const QStringList& paths) {
  if (settings_ == nullptr) return;
  settings_->setValue(kKey, paths);
  settings_->sync();
}

}  // namespace orm
