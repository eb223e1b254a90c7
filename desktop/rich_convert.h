// Texts with looks, between the logic and the editor of the widgets.
#pragma once

#include "dialogs/rich_document.h"

class QTextDocument;

namespace orm {

void WriteInto(QTextDocument& editor, const RichDocument& document);
// Paragraphs as they stand in the editor; the page of `before` is kept.
RichDocument ReadFrom(const QTextDocument& editor, const RichDocument& before);

}  // namespace orm
