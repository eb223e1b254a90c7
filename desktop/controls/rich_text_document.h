// A text with looks between the logic's plain values and the document of the toolkit. What a person
// does not touch comes back as it was, exact to the twip.
#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include "dialogs/rich_text/rich_document.h"

class QTextDocument;

namespace orm {

QTextCharFormat FormatOf(const RichStyle& style);
void FillDocument(QTextDocument& shown, const RichDocument& document);
// The shown text; page measures are those of `before`.
RichDocument ReadDocument(const QTextDocument& shown, const RichDocument& before);

}  // namespace orm
