// A short notice beside a field: why a key or a value was not taken.
#pragma once

#include <string>

class QWidget;

namespace orm {

void ShowBalloon(QWidget& field, const std::string& text);  // goes by itself after some seconds
void HideBalloon(const QWidget& field);
// What stands beside the field until it is mended; an empty text takes it away. A balloon comes
// before it and gives way to it again.
void SetNote(QWidget& field, const std::string& text);

}  // namespace orm
