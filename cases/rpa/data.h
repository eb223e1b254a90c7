// The data of a survey of lands and their file INP_RPA[_E].DAP.
#pragma once

#include <cstdint>
#include <vector>

#include "runtime/data_file.h"
#include "tariff/files/listed_field.h"
#include "tariff/law/table_land_surveys.h"

namespace orm {

inline constexpr int kTerreniRpaMassimi = 20;

struct TerrenoRpa {
  // From 1, entries of kTerreniRpa, kGiacitureRpa and kScaleRpa.
  std::int16_t Terreno = 1, Giacitura = 1, Scala = 1;
  double Ettari = 0;

  double Tariffa() const { return kTariffeTerreni[Terreno - 1][Giacitura - 1][Scala - 1]; }
};

// The file has no money of its own but the advances.
struct DatiRpa {
  double OreProfessionista = 0, OreAiutoIscritto = 0, OreAiutoConcetto = 0;
  std::int32_t ParticellePiccole = 0, ParticelleGrandi = 0;  // up to 500 mq, and above
  std::vector<TerrenoRpa> Terreni;
};

template <class Archive>
void Campi(Archive& file, DatiRpa& d) {
  auto NumeroTerreni = static_cast<std::int16_t>(d.Terreni.size());
  file.Line(Field("OreProfessionista", d.OreProfessionista),
            Field("OreAiutoIscritto", d.OreAiutoIscritto),
            Field("OreAiutoConcetto", d.OreAiutoConcetto),
            Field("ParticellePiccole", d.ParticellePiccole),
            Field("ParticelleGrandi", d.ParticelleGrandi),
            CountField("NumeroTerreni", NumeroTerreni, kTerreniRpaMassimi));
  d.Terreni.resize(static_cast<std::size_t>(NumeroTerreni));
  int linea = 1;
  for (TerrenoRpa& t : d.Terreni) {
    file.Line(Field("Terreno", t.Terreno), Field("Giacitura", t.Giacitura), Field("Scala", t.Scala),
              Field("Ettari", t.Ettari));
    EsigiVoce(++linea, "Terreno", t.Terreno, 1, 3);
    EsigiVoce(linea, "Giacitura", t.Giacitura, 1, 3);
    EsigiVoce(linea, "Scala", t.Scala, 1, 2);
  }
}

}  // namespace orm
