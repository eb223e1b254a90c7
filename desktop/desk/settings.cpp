#include "desktop/desk/settings.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace orm {
namespace {
const QString kRoot = QStringLiteral("cartella"), kModel = QStringLiteral("modello"),
              kFolder = QStringLiteral("file");
}

DeskSettings::DeskSettings() : kept_(QStringLiteral("ORM2002"), QStringLiteral("Lavori")) {}
DeskSettings::DeskSettings(const QString& file) : kept_(file, QSettings::IniFormat) {}

QString DeskSettings::Root() const {
  if (!once_.isEmpty()) return once_;
  QString chosen = kept_.value(kRoot).toString();
  if (!chosen.isEmpty()) return chosen;
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
         QStringLiteral("/ORM2002");
}

void DeskSettings::SetRoot(const QString& folder) {
  once_.clear();
  kept_.setValue(kRoot, folder);
  SetModel({});
}

QString DeskSettings::Model() const { return kept_.value(kModel).toString(); }
void DeskSettings::SetModel(const QString& job) { kept_.setValue(kModel, job); }

QString DeskSettings::Folder() const {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString folder = kept_.value(kFolder, documents).toString();
  return QFileInfo::exists(folder) ? folder : QDir::homePath();
}

void DeskSettings::SetFolder(const QString& folder) { kept_.setValue(kFolder, folder); }

QByteArray DeskSettings::State(const char* of) const {
  return kept_.value(QLatin1String(of)).toByteArray();
}

void DeskSettings::KeepState(const char* of, const QByteArray& state) {
  kept_.setValue(QLatin1String(of), state);
}

}  // namespace orm
