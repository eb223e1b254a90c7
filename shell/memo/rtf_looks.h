// What the words of a rich text file make of characters and paragraphs.
#pragma once

#include <string_view>

#include "dialogs/rich_text/rich_document.h"
#include "shell/memo/rtf.h"
#include "shell/memo/rtf_tables.h"

namespace orm {

// Each takes one word with its number (0 without one; `on`: none, or any but 0), and gives back
// false for a word that is not of its kind. What the model cannot hold becomes a loss of `reading`.
bool TakeCharacterWord(std::string_view word, int number, bool on, const RtfTables& tables,
                       RichStyle& style, RtfReading& reading);
bool TakeParagraphWord(std::string_view word, int number, RichSetting& setting,
                       RtfReading& reading);

}  // namespace orm
