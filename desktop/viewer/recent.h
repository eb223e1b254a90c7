// The files shown last, kept in the viewer's own settings for all its windows.
#pragma once

#include <QStringList>

class QSettings;

namespace orm {

class RecentFiles {
 public:
  static constexpr int kMost = 10;

  // From now on they are kept in `settings`, which live longer. Before, nothing is remembered.
  void KeepIn(QSettings& settings) { settings_ = &settings; }

  QStringList Paths() const;  // whole ones, the last shown first
  void Add(const QString& path);
  void Forget(const QString& path);

 private:
  void Write(const QStringList& paths);
  QSettings* settings_ = nullptr;
};

}  // namespace orm
