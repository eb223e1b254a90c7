// Watching a file that is replaced, not written in place: the folder is watched as well, because
// the watch of the file itself goes with its old contents.
#include "desktop/viewer/watch.h"

#include <QFileInfo>
#include <utility>

namespace orm {
namespace {
constexpr int kPauseMilliseconds = 150;
}

FileWatch::FileWatch(std::function<void()> changed) {
  pause_.setSingleShot(true);
  pause_.setInterval(kPauseMilliseconds);
  QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &pause_,
                   [this] { pause_.start(); });
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &pause_,
                   [this] { pause_.start(); });
  QObject::connect(&pause_, &QTimer::timeout, &pause_, [this, changed = std::move(changed)] {
    WatchAgain();
    changed();
  });
}

void FileWatch::Follow(const QString& path) {
  const QStringList old = watcher_.files() + watcher_.directories();
  if (!old.isEmpty()) watcher_.removePaths(old);
  path_ = path;
  watcher_.addPath(QFileInfo(path).absolutePath());
  WatchAgain();
}

void FileWatch::WatchAgain() {
  if (!watcher_.files().contains(path_) && QFileInfo::exists(path_)) watcher_.addPath(path_);
}

}  // namespace orm
