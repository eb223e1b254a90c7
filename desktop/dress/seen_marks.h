// The style of the desktop, with the edges of marks and fields to be seen in dark colours too, room
// beside the words of a button, and a drawing of our own on the button that empties a field.
#pragma once

#include <QIcon>
#include <QProxyStyle>

namespace orm {

class SeenMarks : public QProxyStyle {
 public:
  explicit SeenMarks(QIcon emptiesField) : emptiesField_(std::move(emptiesField)) {}

  // Styles draw an edge darker than the window, which in dark colours is no edge: a mark that is
  // not set, and a field, would be nothing but the text beside it.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  // A long caption would otherwise touch the edges of its button.
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  // To find its drawing a style reads whole themes of icons, a quarter of the start of a program.
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;

 private:
  void EdgeOfGroup(const QStyleOption& option, QPainter& painter) const;

  QIcon emptiesField_;
};

}  // namespace orm
