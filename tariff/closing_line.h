// The closing line of a fee note, the last of its data file, and the reading of a whole data file.
#pragma once

#include <string>

#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "shell/run_state.h"

namespace orm {

template <class Archive>
void CampiChiusura(Archive& file, Chiusura& c) {
  file.Line(Field("PercDiRiduzione", c.PercDiRiduzione), Field("Acconti", c.Acconti),
            Field("TipoRiduzione", c.TipoRiduzione),
            Field("ApplicazioneRiduzione", c.ApplicazioneRiduzione));
}

// Reads the body of a case by its Campi, then the closing line, and nothing may follow.
template <class Dati>
void LeggiParcella(RunState& stato, Dati& dati) {
  DataReader file(stato.folder, stato.FileInp);
  try {
    Campi(file, dati);
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(stato.FileInp);  // one of the case's own checks does not know it
  }
  CampiChiusura(file, stato.chiusura);
  file.ExpectEnd();
}

// Writes a data file whole: the body of the case and the closing line behind it.
void ScriviParcella(const WorkFolder& folder, const std::string& nomeFile, const DataWriter& corpo,
                    Chiusura chiusura);

}  // namespace orm
