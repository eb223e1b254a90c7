# Writes pages into a source file, as what the routine NAME of shell/help/help_texts.h gives:
# cmake -DOUTPUT=... -DNAME=... -DROOT=... -DPAGES=a;b -P this
file(WRITE ${OUTPUT}.new "// Made from the pages under docs/ by cmake/embed_pages.cmake.
#include \"shell/help/help_texts.h\"

namespace orm {
namespace {
constexpr HelpText kTexts[] = {\n")
foreach(PAGE IN LISTS PAGES)
  file(READ ${ROOT}/${PAGE} TEXT)
  file(APPEND ${OUTPUT}.new "{\"${PAGE}\", R\"page(${TEXT})page\"},\n")
endforeach()
file(APPEND ${OUTPUT}.new "};
}  // namespace

std::span<const HelpText> ${NAME}() { return kTexts; }

}  // namespace orm\n")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
