// Captions of Qt's own dialogs and menus, by their English text.
#include "desktop/italian_captions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "desktop/qt_text.h"

// In a static library, from which only what is called for is linked.
static void LoadItalian() { Q_INIT_RESOURCE(resources); }

namespace orm {
namespace {

struct Caption {
  std::string_view english, italian;
};

// What Qt's own Italian lacks: captions of the print dialog and of the choice of files.
constexpr auto kCaptions = std::to_array<Caption>({
    {"Advanced", "Avanzate"},
    {"Folder", "Cartella"},
    {"Double Sided Printing", "Stampa fronte e retro"},
    {"Off", "No"},
    {"Long side binding", "Rilegatura sul lato lungo"},
    {"Short side binding", "Rilegatura sul lato corto"},
    {"Pages", "Pagine"},
    {"Specify pages or ranges separated by commas. Ranges are specified by two numbers separated "
     "by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Pagine o intervalli separati da virgole; un intervallo è di due numeri separati da un "
     "trattino. Per esempio 3,5-7,9 stampa le pagine 3, 5, 6, 7 e 9."},
});

// Names of keys as they stand on an Italian keyboard, and in the manual; Qt's Italian differs.
constexpr auto kKeys = std::to_array<Caption>(
    {{"Shift", "Maiusc"}, {"PgDown", "Pag giù"}, {"PgUp", "Pag su"}, {"Home", "Inizio"}});

template <std::size_t N>
QString ItalianOf(const std::array<Caption, N>& captions, std::string_view english) {
  const auto* found =
      std::find_if(captions.begin(), captions.end(),
                   [english](const Caption& caption) { return caption.english == english; });
  return found == captions.end() ? QString() : ToQt(found->italian);
}

}  // namespace

ItalianCaptions::ItalianCaptions(QObject* parent) : QTranslator(parent) {
  LoadItalian();
  [[maybe_unused]] const bool isThere = load(QStringLiteral(":/qtbase_it.qm"));
}

QString ItalianCaptions::translate(const char* context, const char* source,
                                   const char* disambiguation, int number) const {
  QString key = std::string_view(context) == "QShortcut" ? ItalianOf(kKeys, source) : QString();
  if (!key.isNull()) return key;
  QString known = QTranslator::translate(context, source, disambiguation, number);
  return known.isNull() ? ItalianOf(kCaptions, source) : known;
}

}  // namespace orm
