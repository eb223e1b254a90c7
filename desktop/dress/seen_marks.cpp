#include "desktop/dress/seen_marks.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "desktop/dress/look.h"

namespace orm {
namespace {

constexpr int kBesideWords = 16;  // pixels of a button, both sides together

}  // namespace

QSize SeenMarks::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type == CT_PushButton) size.setWidth(std::max(size.width(), contents.width() + kBesideWords));
  return size;
}

QIcon SeenMarks::standardIcon(StandardPixmap icon, const QStyleOption* option,
                              const QWidget* widget) const {
  return icon == SP_LineEditClearButton ? emptiesField_
                                        : QProxyStyle::standardIcon(icon, option, widget);
}

// The frame begins below its words.
void SeenMarks::EdgeOfGroup(const QStyleOption& option, QPainter& painter) const {
  const int words =
      std::max(pixelMetric(PM_ExclusiveIndicatorHeight, &option), option.fontMetrics.height());
  painter.save();
  QColor edge = NoteText(option.palette);
  edge.setAlphaF(0.25F);
  painter.setPen(edge);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, words + 3.5, -0.5, -0.5), 2, 2);
  painter.restore();
}

void SeenMarks::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameGroupBox && IsDark(option->palette)) return EdgeOfGroup(*option, *painter);
  const bool round = element == PE_IndicatorRadioButton;
  const bool several = element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget);
  const bool field = element == PE_FrameLineEdit || several;
  if (!round && !field && element != PE_IndicatorCheckBox) return;
  // The field with the focus has an edge of its own.
  if (!IsDark(option->palette) || (field && (option->state & State_HasFocus))) return;
  QColor edge = NoteText(option->palette);
  if (field || !(option->state & State_Enabled)) edge.setAlphaF(0.55F);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(edge);
  painter->setBrush(Qt::NoBrush);
  const QRectF around = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (round)
    painter->drawEllipse(around.adjusted(0.5, 0.5, -0.5, -0.5));
  else
    painter->drawRoundedRect(around, field ? 2 : 1, field ? 2 : 1);
  painter->restore();
}

}  // namespace orm
