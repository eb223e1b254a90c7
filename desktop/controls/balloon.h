// A short notice beside a field: why a key or a value was not taken. It goes by itself.
#pragma once

#include <string>

class QWidget;

namespace orm {

void ShowBalloon(QWidget& field, const std::string& text);
void HideBalloon(const QWidget& field);

}  // namespace orm
