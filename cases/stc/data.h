// The data of a condition survey and their file INP_STC[_E].DAP.
#pragma once

#include <cstdint>

#include "runtime/data_file.h"

namespace orm {

// The file has no money of its own but the advances.
struct DatiStc {
  std::int32_t Superficie = 0;  // mq
  std::int32_t NumeroPartite = 0;
  std::int32_t NumeroMappali = 0;
  std::int32_t VolumeAbitazioni = 0;    // mc
  std::int32_t SuperficieAgricola = 0;  // mq
  std::int16_t AnnoPrestazione = 1999;
  std::int16_t MesePrestazione = 6;
  double Maggiorazione = 0;  // part of the fee, for road fronts being widened
};

template <class Archive>
void Campi(Archive& file, DatiStc& d) {
  file.Line(Field("Superficie", d.Superficie), Field("NumeroPartite", d.NumeroPartite),
            Field("NumeroMappali", d.NumeroMappali), Field("VolumeAbitazioni", d.VolumeAbitazioni),
            Field("SuperficieAgricola", d.SuperficieAgricola),
            Field("AnnoPrestazione", d.AnnoPrestazione),
            Field("MesePrestazione", d.MesePrestazione), Field("Maggiorazione", d.Maggiorazione));
}

}  // namespace orm
