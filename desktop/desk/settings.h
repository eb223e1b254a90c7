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
  void ShowOnce(const QString& folder) { once_ = folder; }  // another root, not remembered

  // The name of the job that new ones take the professional's data from; empty for the last one.
  QString Model() const;
  void SetModel(const QString& job);

  // The folder of the last file chosen: of an archive, a PDF.
  QString Folder() const;
  void SetFolder(const QString& folder);

  QByteArray State(const char* of) const;
  void KeepState(const char* of, const QByteArray& state);

 private:
  QSettings kept_;
  QString once_;
};

}  // namespace orm
