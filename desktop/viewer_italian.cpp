// Captions of Qt's own dialogs, by their English text.
#include "desktop/viewer_italian.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace orm {
namespace {

struct Caption {
  std::string_view english, italian;
};

constexpr std::array kCaptions = {
    Caption{"&Undo", "&Annulla"},
};

}  // namespace

QString ItalianCaptions::translate(const char* context, const char* source, const char*,
                                   int) const {
  for (const Caption& caption : kCaptions)
    if (caption.english == source)
      return QString::fromUtf8(caption.italian.data(),
                               static_cast<qsizetype>(caption.italian.size()));
  if (getenv("LOGTR")) fprintf(stderr, "TR %s | %s\n", context, source);
  return {};
}

}  // namespace orm
