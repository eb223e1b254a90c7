// Small line drawings for the commands of the windows, painted in the colour of the
// text: they are sharp at every scale and follow the theme.
#pragma once

#include <QIcon>

namespace orm {

enum class LineIcon {
  Save,
  Print,
  Preview,
  Pdf,
  Find,
  Edit,
  Reload,
  Larger,
  Smaller,
  Up,
  Down,
  Close,
  Back,
  Forward,
  Left,
  Centre,
  Right,
  Justified,
  Bullets,
  Colour,
  Folder,
  NewFolder,
  Clock
};

QIcon IconOf(LineIcon shape);

}  // namespace orm
