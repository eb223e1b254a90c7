// What every program with windows begins with.
#pragma once

#include <QApplication>

namespace orm {

// Icon, Italian texts of the widgets and names, on the application that has just begun.
void DressApplication(QApplication& application);

}  // namespace orm
