// The closing line of a fee note, the last of its data file, and the reading of a whole data file.
#pragma once

#include <string>

#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "tariff/closing_values.h"

namespace orm {

template <class Archive>
void CampiChiusura(Archive& file, Chiusura& c) {
  file.Line(Field("PercDiRiduzione", c.PercDiRiduzione), MoneyField("Acconti", c.Acconti),
            Field("TipoRiduzione", c.TipoRiduzione),
            Field("ApplicazioneRiduzione", c.ApplicazioneRiduzione));
}

// Reads the body of a case by its Campi, then the closing line, and nothing may follow.
template <class Dati>
void LeggiFileDati(const WorkFolder& folder, const std::string& nomeFile, Dati& dati,
                   Chiusura& chiusura) {
  DataReader file(folder, nomeFile);
  try {
    Campi(file, dati);
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(nomeFile);  // one of the case's own checks does not know it
  }
  CampiChiusura(file, chiusura);
  file.ExpectEnd();
}

// Writes a data file whole: the body of the case and the closing line behind it.
void ScriviParcella(const WorkFolder& folder, const std::string& nomeFile, const DataWriter& corpo,
                    Chiusura chiusura);

}  // namespace orm
