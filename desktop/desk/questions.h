// What the desk asks and tells: names, folders, files, failures.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QWidget;

namespace orm {

inline constexpr const char* kDeskName = "ORM2002 Lavori";

// What a question for a name shows. `refusal` says why a name cannot be used; empty when it can.
struct NameOfJob {
  QString title, label, button;
  QString name;  // proposed
  QString note;  // below the field
  std::function<QString(const QString&)> refusal;
};

std::optional<QString> AskName(QWidget* parent, const NameOfJob& question);

// One out of a list, found as one types; its place, or nothing.
std::optional<int> AskOneOf(QWidget* parent, const QString& title, const QString& button,
                            const QStringList& names);

// An existing folder, beginning at `start`; empty when none was chosen.
QString AskFolder(QWidget* parent, const QString& title, const QString& start);

// Files that are there, or one of them alone; empty when none was chosen.
QStringList AskFilesOf(QWidget* parent, const QString& title, const QString& start,
                       const QString& filter, bool several);

// Does the work under the cursor of waiting. Of one that fails it tells `failed` with the reason,
// and gives false.
bool Try(QWidget* parent, const QString& failed, const std::function<void()>& work);

}  // namespace orm
