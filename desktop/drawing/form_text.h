// What a form shows, as text for a sheet: its data, and the results that are those of the data.
#pragma once

#include <QFont>
#include <QString>
#include <vector>

class QTextDocument;

namespace orm {

class Form;
class Frame;

// A document of such a text, with its letters.
void SetUpSheetText(QTextDocument& document, const QFont& font);

// Laid out as the form is, in HTML that stands in a document of this font without folding its
// lines. `views` are frames that count as shown; side by side where `width` has room for them.
QString FormAsHtml(const Form& form, const std::vector<const Frame*>& views, const QFont& font,
                   double width);

}  // namespace orm
