// The words of rich text files that the reader knows by table.
#pragma once

#include <string_view>
#include <utility>

#include "dialogs/rich_text/rich_document.h"

namespace orm {

// What is lost, by the word that tells it.
struct Loss {
  std::string_view word;
  const char* what;
};
inline constexpr const char* kAspetti =
    "altri aspetti dei caratteri (barrato, apice, evidenziato e simili)";
inline constexpr Loss kLosses[] = {
    {"trowd", "tabelle (resta il testo delle celle)"},
    {"pict", "immagini"},
    {"object", "oggetti inseriti da altri programmi"},
    {"header", "intestazioni e piè di pagina"},
    {"headerl", "intestazioni e piè di pagina"},
    {"headerr", "intestazioni e piè di pagina"},
    {"headerf", "intestazioni e piè di pagina"},
    {"footer", "intestazioni e piè di pagina"},
    {"footerl", "intestazioni e piè di pagina"},
    {"footerr", "intestazioni e piè di pagina"},
    {"footerf", "intestazioni e piè di pagina"},
    {"footnote", "note a piè di pagina"},
    {"annotation", "commenti"},
    {"field", "campi e collegamenti (resta il loro testo)"},
    {"shp", "disegni e caselle di testo"},
    {"do", "disegni e caselle di testo"},
    {"page", "salti di pagina"},
    {"pagebb", "salti di pagina"},
    {"column", "salti di pagina"},
    {"sect", "sezioni"},
    {"strike", kAspetti},
    {"striked", kAspetti},
    {"super", kAspetti},
    {"sub", kAspetti},
    {"up", kAspetti},
    {"dn", kAspetti},
    {"caps", kAspetti},
    {"scaps", kAspetti},
    {"outl", kAspetti},
    {"shad", kAspetti},
    {"highlight", kAspetti},
    {"cb", kAspetti},
    {"chcbpat", kAspetti},
    {"v", kAspetti},
    {"embo", kAspetti},
    {"impr", kAspetti},
    {"expnd", kAspetti},
    {"expndtw", kAspetti},
    {"tqr", "tabulazioni allineate a destra, al centro o alla virgola"},
    {"tqc", "tabulazioni allineate a destra, al centro o alla virgola"},
    {"tqdec", "tabulazioni allineate a destra, al centro o alla virgola"},
    {"brdrs", "bordi"},
    {"brdrdb", "bordi"},
    {"brdrth", "bordi"},
    {"brdrdot", "bordi"},
    {"brdrdash", "bordi"},
    {"cbpat", "sfondi"},
};
inline constexpr const char* kUnderlines = "forme particolari di sottolineatura";
inline constexpr const char* kNumbering = "numerazione automatica (i numeri restano come testo)";
inline constexpr const char* kSpacing = "interlinea";
inline constexpr const char* kOtherSet = "caratteri di altri alfabeti";

// Groups whose contents are no text of the document.
inline constexpr std::string_view kSkipped[] = {"stylesheet",
                                                "info",
                                                "pict",
                                                "object",
                                                "header",
                                                "headerl",
                                                "headerr",
                                                "headerf",
                                                "footer",
                                                "footerl",
                                                "footerr",
                                                "footerf",
                                                "footnote",
                                                "annotation",
                                                "fldinst",
                                                "listtable",
                                                "listoverridetable",
                                                "shpinst",
                                                "do",
                                                "nonshppict",
                                                "filetbl",
                                                "revtbl",
                                                "xe",
                                                "tc",
                                                "bkmkstart",
                                                "bkmkend",
                                                "pntxta",
                                                "pntxtb",
                                                "themedata",
                                                "private1"};

inline constexpr std::pair<std::string_view, RichSetting::Alignment> kAlignments[] = {
    {"ql", RichSetting::Alignment::Left},
    {"qc", RichSetting::Alignment::Centre},
    {"qr", RichSetting::Alignment::Right},
    {"qj", RichSetting::Alignment::Justified}};

// Lengths of a paragraph, in twips.
inline constexpr std::pair<std::string_view, int RichSetting::*> kMeasures[] = {
    {"fi", &RichSetting::first},
    {"li", &RichSetting::left},
    {"ri", &RichSetting::right},
    {"sb", &RichSetting::before},
    {"sa", &RichSetting::after}};

inline constexpr std::string_view kPageWords[] = {"paperw", "paperh", "margl", "margr",
                                                  "margt",  "margb",  "deftab"};

// Signs that have a word instead of a byte.
inline constexpr std::pair<std::string_view, const char*> kNamedCharacters[] = {
    {"tab", "\t"},         {"line", "\n"},        {"~", "\u00A0"},    {"_", "\u2011"},
    {"-", "\u00AD"},       {"emdash", "—"},       {"endash", "–"},    {"bullet", "•"},
    {"lquote", "‘"},       {"rquote", "’"},       {"ldblquote", "“"}, {"rdblquote", "”"},
    {"emspace", "\u2003"}, {"enspace", "\u2002"}, {"cell", "\t"},
};

}  // namespace orm
