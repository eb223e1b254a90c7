// A number of a data file that names an entry of a list: of a table of the law, say.
#pragma once

#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm {

// The field of that line must be one of the list, from `prima` to `ultima`: any other is a
// RuntimeFailure.
inline void EsigiVoce(int linea, const char* campo, int valore, int prima, int ultima) {
  if (valore >= prima && valore <= ultima) return;
  throw RuntimeFailure("Il valore " + NumberText(valore) + " non è fra quelli previsti.")
      .AtLine(linea)
      .AtField(campo);
}

}  // namespace orm
