#include "desktop/dress/page_dress.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include "desktop/dress/look.h"

namespace orm {
namespace {

void DressTables(QTextDocument& document, const PageColours& colours) {
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorder(1);
    format.setBorderBrush(colours.border);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setCellPadding(4);
    format.setCellSpacing(0);
    format.setTopMargin(6);
    format.setBottomMargin(10);
    table->setFormat(format);
    for (int column = 0; column < table->columns(); ++column) {
      QTextTableCell cell = table->cellAt(0, column);
      QTextTableCellFormat head = cell.format().toTableCellFormat();
      head.setBackground(colours.tableHead);
      cell.setFormat(head);
    }
  }
}

bool HoldsPicture(const QTextBlock& block) {
  return block.text().contains(QChar::ObjectReplacementCharacter);
}

void DressHeading(const QTextBlock& block, int level, const PageColours& colours,
                  double bodyPoints) {
  QTextCursor cursor(block);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  QTextCharFormat letters;
  letters.setFontPointSize(bodyPoints * (level == 1 ? 1.8 : level == 2 ? 1.26 : 1.1));
  letters.setFontWeight(QFont::Bold);
  letters.setForeground(colours.heading);
  cursor.mergeCharFormat(letters);
}

}  // namespace

PageColours ColoursOnPaper() { return {}; }

PageColours ColoursFor(const QPalette& palette) {
  if (!IsDark(palette)) return {};
  return {QColor(150, 190, 240), QColor(104, 106, 110), QColor(58, 61, 66)};
}

void DressPage(QTextDocument& document, const PageColours& colours, double bodyPoints) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    const int heading = format.headingLevel();
    if (cursor.currentTable() == nullptr) {
      // A line that a picture stands in is as high as the picture.
      if (!HoldsPicture(block)) format.setLineHeight(124, QTextBlockFormat::ProportionalHeight);
      format.setTopMargin(heading == 1 ? 0 : heading > 1 ? 14 : 3);
      format.setBottomMargin(heading == 1 ? 14 : 5);
      cursor.setBlockFormat(format);
    }
    if (heading > 0) DressHeading(block, heading, colours, bodyPoints);
  }
  DressTables(document, colours);
}

}  // namespace orm
