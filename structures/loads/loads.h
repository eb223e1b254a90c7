// Load analysis: what the load dialogs reckon. Loads in kg/mq, lengths in m, unless told otherwise.
#pragma once

namespace orm {

// Snow: `base` is the zone's value, `altezza` the altitude in m above the sea, `inclinazione` the
// slope in degrees. The base holds up to 300 m and up to 20 degrees; from 60 degrees on snow slides
// off and the load is 0.
double CaricoNeve(double base, double altezza, double inclinazione);

// Partition walls spread over the floor: length x height x weight (kg/mq of wall) / area of the
// floor (mq); 0 over an area of 0.
double CaricoTramezzi(double area, double lunghezza, double altezza, double peso);

// A hollow tile: length and height in cm, weight in kg/mq.
struct Tavellone {
  double lunghezza = 0, altezza = 0, peso = 0;
};

// Filling between two beams. `pesoSpecifico` in kg/mc, height and space in cm. With a tile, what it
// takes up of the space is left out of the concrete and its own weight is spread over the space.
double CaricoRiempimento(double pesoSpecifico, double altezza);
double CaricoRiempimentoMisto(double pesoSpecifico, double altezza, double spazio,
                              const Tavellone& tavellone);

// Couple at the edge of a cantilever, kg x m/ml: thrust on the handrail (kg/ml) by its height.
double CoppiaCorrimano(double spinta, double altezza);

// Seismic coefficients: protection I, and s by which the service loads count.
struct CoefficientiSismici {
  double I = 0, s = 0;
};

}  // namespace orm
