// What the desk remembers: where the jobs are, which of them is the model of new ones, its window.
#pragma once

#include <QSettings>
#include <QString>

namespace orm {

class DeskSettings {
 public:
  DeskSettings();  // those of the person
  explicit DeskSettings(const QString& file);

  // The folder of the jobs: ORM2002 among the documents, until another is chosen.
  QString Root() const;
  void SetRoot(const QString& folder);

  // The name of the job that new ones take the professional's data from; empty for the last one.
  QString Model() const;
  void SetModel(const QString& job);

  QByteArray State(const char* of) const;
  void KeepState(const char* of, const QByteArray& state);

 private:
  QSettings kept_;
};

}  // namespace orm
