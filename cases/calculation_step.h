// The calculation step that every fee case shares: reads the data file, the professional's data and
// the header, and hands them to the case's routine with a blank note.
#pragma once

#include <string>
#include <type_traits>

#include "runtime/failure.h"
#include "shell/state/run_state.h"
#include "tariff/files/closing_line.h"
#include "tariff/parcella.h"

namespace orm {

// What a run keeps in its memory: whether notes record how their figures come about.
struct SpiegazioniChieste {
  bool si = false;
};

// Nothing printed yet: the currency, criteria and closing values of the run state, UTENTE.DAG,
// FileInt and the day.
Parcella NuovaParcella(RunState& stato);

template <class Dati>
Dati LeggiDati(RunState& stato) {
  Dati dati;
  LeggiFileDati(stato.folder, stato.FileInp, dati, stato.chiusura);
  return dati;
}

template <class Dati>
Parcella EseguiCalcolo(RunState& stato, Parcella (*calcolo)(Parcella, const Dati&)) {
  const auto dati = LeggiDati<Dati>(stato);
  return calcolo(NuovaParcella(stato), dati);
}

// A case that hands out the sum of its fees, which has no use here.
template <class Dati>
Parcella EseguiCalcolo(RunState& stato, Parcella (*calcolo)(Parcella, const Dati&, double&)) {
  const auto dati = LeggiDati<Dati>(stato);
  double totale = 0;
  return calcolo(NuovaParcella(stato), dati, totale);
}

// The reader of a file of configuration, which may be another for each code of the case.
template <class Lettore>
Lettore ApriLettore(const RunState& stato) {
  if constexpr (std::is_constructible_v<Lettore, const WorkFolder&, const std::string&>)
    return Lettore(stato.folder, stato.CasoDiParcella);
  else
    return Lettore(stato.folder);
}

// A case that looks things up in such a file.
template <class Dati, class Lettore>
Parcella EseguiCalcolo(RunState& stato,
                       Parcella (*calcolo)(Parcella, const Dati&, const Lettore&)) {
  const auto dati = LeggiDati<Dati>(stato);
  const auto lettore = ApriLettore<Lettore>(stato);
  return calcolo(NuovaParcella(stato), dati, lettore);
}

// The whole step. A failure belongs to FileInp, unless another file is known to be the reason.
template <auto calcolo>
Parcella CalcolaDaFile(RunState& stato) {
  try {
    return EseguiCalcolo(stato, calcolo);
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(stato.FileInp);
  }
}

}  // namespace orm
