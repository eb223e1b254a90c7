// The look of a page that is written in Markdown: headings, tables, space between lines. The same
// on the screen and on paper.
#pragma once

#include <QColor>

class QPalette;
class QTextDocument;

namespace orm {

struct PageColours {
  QColor heading{24, 58, 102}, border{150, 150, 150}, tableHead{235, 238, 242};
};
PageColours ColoursOnPaper();
PageColours ColoursFor(const QPalette& palette);  // of a screen, light or dark

// Dresses the page that the document holds; the body has the document's font of `bodyPoints`.
void DressPage(QTextDocument& document, const PageColours& colours, double bodyPoints);

}  // namespace orm
