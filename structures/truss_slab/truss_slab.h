// Design of a floor of one span, of truss joists and hollow blocks, by the allowable stresses
// (D.M. 9-1-1996): the least bars of its kinds that hold, their lengths, and the solid zones beside
// the supports. Nothing here knows of a dialog.
#pragma once

#include <array>
#include <string>

#include "runtime/explanation/explanation.h"
#include "structures/solvers/section_t.h"
#include "structures/truss_slab/bars.h"
#include "structures/truss_slab/lookup.h"

namespace orm {

struct DatiSolaioT {
  ModuloSolaio modulo = kModuliSolaio[0];
  double luce = 0;       // clear, m
  double solettina = 0;  // cm
  std::string blocco, classeCls, tipoFerro;
  double pesoProprio = 0, permanente = 0, accidentale = 0;  // kg/mq
  double cSin = 0, cDex = 0, cMez = 0;                      // the 12 of 1/12
  // Additional bar, first and second supplementary bar, long and short stub.
  std::array<SceltaFerro, kGeneriFerri> ferri;

  double H() const { return AltezzaBlocco(blocco) + solettina; }  // total height, cm
};

enum class EsitoSolaioT {
  Verificato,
  SenzaMonconi,
  MezzeriaCls,
  MezzeriaAcciaio,
  SinistraCls,
  SinistraAcciaio,
  DestraCls,
  DestraAcciaio,
  ZonePieneMomenti,
  ZonePieneTaglio
};

struct Ammissibili {
  double acciaio = 0, cls = 0, aderenza = 0, taglio = 0;  // kg/cmq; taglio is tau c0
};

struct Barra {
  double diametro = 0;   // mm, 0 for none
  double lunghezza = 0;  // m
  Catena passi = {};     // of the length
};

// An upper stub: what goes into the support and what into the span.
struct Moncone {
  double diametro = 0, incastro = 0, campata = 0;
  Catena passi = {};
  double Lunghezza() const { return incastro + campata; }
};

// A section as it was verified last.
struct SezioneVerificata {
  DatiSezione dati;
  RisultatiSezione risultati;
};

struct Appoggio {
  double momento = 0;                         // kg x m
  Catena passiMomento, passiNervata;          // of it, and of the moment of the ribs
  double clsPiena = 0, acciaioPiena = 0;      // solid section; concrete at the lower edge, |value|
  double clsNervata = 0, acciaioNervata = 0;  // ribs at the end of the solid zone
  double asse = 0;                            // neutral axis of the ribs from the upper edge, cm
  Moncone lungo, corto;
  SezioneVerificata piena, nervata;
};

// Bars stand for one joist, shear and moments for a module.
struct RisultatiSolaioT {
  EsitoSolaioT esito = EsitoSolaioT::Verificato;
  Ammissibili ammissibili;
  double q = 0;                // kg/m
  double taglio = 0;           // kg
  double momentoMezzeria = 0;  // kg x m
  double clsMezzeria = 0, acciaioMezzeria = 0;
  std::array<Barra, 3> campata;  // as in the data
  Appoggio sinistra, destra;
  double tau = 0;  // kg/cmq, cut to 2 decimals
  SezioneVerificata mezzeria;
  // How loads, shear and moments, and the shear stress came about.
  Catena carico, passiTaglio, passiMezzeria, passiTau;
  double zonaPiena = 0;  // m, the same on both sides
};

// The data must have a span and a load above 0 and coefficients other than 0. Of a design that
// fails, the results after the failing step are not filled.
RisultatiSolaioT ProgettaSolaioT(const DatiSolaioT& dati);

Ammissibili TensioniAmmissibiliSolaio(const DatiSolaioT& dati);

}  // namespace orm
