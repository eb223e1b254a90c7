// The data of a survey of buildings and their file INP_RIM[_E].DAP.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/data_file.h"
#include "tariff/files/listed_field.h"
#include "tariff/law/table_building_surveys.h"

namespace orm {

inline constexpr int kElaboratiRimMassimi = 20;

struct ElaboratoRim {
  std::int16_t TipoElaborato = 1;  // 1 to 6, a row of kElaboratiRim
  std::int16_t Scala = 1;          // of plans 1 to 6, of kScaleRim; 0 otherwise
  double Quantita = 0;             // mq, of sections mc
  std::int16_t Numero = 0;         // storeys of that area, or elevations; 1 for sections

  const TipoElaboratoRim& Tipo() const {
    return kElaboratiRim[static_cast<std::size_t>(TipoElaborato - 1)];
  }
  bool Pianta() const { return Tipo().genere == GenereRim::Pianta; }
  bool Sezione() const { return Tipo().genere == GenereRim::Sezione; }
  // Lire, for each mq or mc, and the fixed part.
  double Tariffa() const { return Tipo().tariffe[PostoScala()]; }
  double QuotaFissa() const { return Tipo().quote[PostoScala()]; }
  std::size_t PostoScala() const { return Pianta() ? static_cast<std::size_t>(Scala - 1) : 0; }
};

// The file has no money of its own but the advances.
struct DatiRim {
  std::string RilievoStrutture = "NO", RilievoImpianti = "NO", EdificioVincolato = "NO";
  std::vector<ElaboratoRim> Elaborati;
};

template <class Archive>
void Campi(Archive& file, DatiRim& d) {
  auto NumeroElaborati = static_cast<std::int16_t>(d.Elaborati.size());
  file.Line(Field("RilievoStrutture", d.RilievoStrutture),
            Field("RilievoImpianti", d.RilievoImpianti),
            Field("EdificioVincolato", d.EdificioVincolato),
            CountField("NumeroElaborati", NumeroElaborati, kElaboratiRimMassimi));
  d.Elaborati.resize(static_cast<std::size_t>(NumeroElaborati));
  int linea = 1;
  for (ElaboratoRim& e : d.Elaborati) {
    file.Line(Field("TipoElaborato", e.TipoElaborato), Field("Scala", e.Scala),
              Field("Quantita", e.Quantita), Field("Numero", e.Numero));
    EsigiVoce(++linea, "TipoElaborato", e.TipoElaborato, 1, 6);
    EsigiVoce(linea, "Scala", e.Scala, e.Pianta() ? 1 : 0, e.Pianta() ? 6 : 0);
  }
}

}  // namespace orm
