// Small line drawings for the commands of the viewer and the memo, painted in the colour of the
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
  Colour
};

QIcon IconOf(LineIcon shape);

}  // namespace orm
