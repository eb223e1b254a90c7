#include "jobs/zip/zip_library.h"

#include <dlfcn.h>

#include "runtime/failure.h"

namespace orm {
namespace {

// It stays loaded until the program ends.
ZipCalls Carica() {
  void* const libreria = ::dlopen(ORM_LIBZIP, RTLD_NOW);
  const auto chiamata = [libreria](const char* nome) {
    void* const posto = libreria == nullptr ? nullptr : ::dlsym(libreria, nome);
    if (posto == nullptr)
      throw RuntimeFailure(
          "Gli archivi ZIP non si possono usare: questa libreria manca, o non si può leggere.")
          .AtFile(ORM_LIBZIP);
    return posto;
  };
#define ORM_ZIP_CALL(name) reinterpret_cast<decltype(&::zip_##name)>(chiamata("zip_" #name)),
  return {ORM_ZIP_CALLS(ORM_ZIP_CALL)};
#undef ORM_ZIP_CALL
}

}  // namespace

const ZipCalls& LibZip() {
  static const ZipCalls calls = Carica();  // a failure is tried again
  return calls;
}

}  // namespace orm
