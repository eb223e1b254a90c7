// Tells when a file on the disk has been changed by somebody else, a new calculation above all.
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <functional>

namespace orm {

class FileWatch {
 public:
  // `changed` is called a moment after the last of a burst of changes, and may find nothing new:
  // changes of other files of the folder are reported too.
  explicit FileWatch(std::function<void()> changed);
  void Follow(const QString& path);

 private:
  void WatchAgain();
  QFileSystemWatcher watcher_;
  QTimer pause_;
  QString path_;
};

}  // namespace orm
