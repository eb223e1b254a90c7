// Floors of NP beams and hollow tiles: what the slab between two walls and the cantilever have in
// common, which is the strip of floor that a beam carries.
#pragma once

#include <array>
#include <string>

#include "runtime/explanation/steps.h"
#include "structures/loads/loads.h"
#include "structures/steel_profiles.h"

namespace orm {

// Loads spread over the floor, in the order in which they are given; the last is the service load.
enum CaricoRipartito : std::size_t {
  Solettina,
  PesoTavelloni,
  Riempimento,
  AltroRipartito,
  CarichiPermanentiRipartiti,
  Sovraccarico,
  NumeroCarichiRipartiti
};

struct DatiPutrelle {
  double lunghezza = 0;  // clear span or projection, m
  double altezza = 0;    // of the whole section, cm
  std::string putrella;  // height in mm, as in the table of profiles
  std::string acciaio;   // grade
  Tavellone tavellone;   // length and height in cm
  std::array<double, NumeroCarichiRipartiti> ripartiti{};  // kg/mq
  double pesoProprio = 0, diretto = 0;                     // on the beam, kg/m
};

// Distance of two beams, cm: the tile and the flange that it rests on.
double Interasse(const DatiPutrelle& dati);
// The space between two beams, cm: that of the tile.
double SpazioRiempimento(const DatiPutrelle& dati);
// The height at disposal for the filling, cm: what the tile leaves of the beam.
double AltezzaRiempimento(const DatiPutrelle& dati);

// Loads on a beam, kg/ml; `passi` takes how they came about.
struct CarichiPutrella {
  double qa = 0;  // service load
  double qp = 0;  // permanent loads of the floor
  double d = 0;   // on the beam itself
};
CarichiPutrella CarichiSullaPutrella(const DatiPutrelle& dati, Catena& passi);

// What a check of a beam ends with: forces in kg and kg x m, stresses in kg/cmq.
struct VerificaPutrella {
  double taglio = 0, momento = 0;
  Tensioni calcolate, ammesse;
  Catena sigma, tau;  // how they came about
};
// Of sums of the loads that `passi` tells.
VerificaPutrella VerificaTensioni(const DatiPutrelle& dati, const Catena& passi,
                                  const Conto& taglio, const Conto& momento);

// A value as the dialog shows it, and whether it is within what is allowed.
Passaggio PassoVerificato(std::string regola, const Conto& conto, std::string unita,
                          double ammesso);

}  // namespace orm
