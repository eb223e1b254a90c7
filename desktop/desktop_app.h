// What every program with windows begins with.
#pragma once

#include <QApplication>
#include <string>

namespace orm {

// Icon, Italian texts of the widgets and names, on the application that has just begun.
void DressApplication(QApplication& application);

// The folder of the files that an installation brings: beside the folder of the programs, or in it
// where they were built.
std::string InstalledFiles();

}  // namespace orm
