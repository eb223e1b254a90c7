// The style of the desktop, with the edges of marks and fields to be seen in dark colours too, and
// room beside the words of a button.
#pragma once

#include <QProxyStyle>

namespace orm {

class SeenMarks : public QProxyStyle {
 public:
  // Styles draw an edge darker than the window, which in dark colours is no edge: a mark that is
  // not set, and a field, would be nothing but the text beside it.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  // A long caption would otherwise touch the edges of its button.
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
};

}  // namespace orm
