// Slabs and cantilevers of NP beams against loads that are put on the beam slice by slice.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "structures/loads/hollow_tiles.h"
#include "structures/steel_beams/cantilever.h"
#include "structures/steel_beams/panel_results.h"
#include "structures/steel_beams/slab.h"

namespace orm {
namespace {

constexpr int kSlices = 20000;

// A floor as a person might give it.
template <class Dati>
Dati Floor(std::mt19937& random) {
  const auto pick = [&random](double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
  };
  Dati dati;
  dati.lunghezza = pick(0.5, 8);
  dati.altezza = pick(5, 50);
  const auto heights = AltezzeNP();
  dati.putrella = heights[random() % heights.size()];
  dati.acciaio = "Fe 360";
  dati.tavellone = TavelloneDiLista(static_cast<int>(random() % 40));
  for (double& carico : dati.ripartiti) carico = pick(0, 400);
  dati.pesoProprio = ProfiloNP(dati.putrella).P;
  dati.diretto = pick(0, 300);
  return dati;
}

// Load on a metre of beam: a strip of floor as wide as the beams are apart, and what is on the
// beam.
double OnAMetre(const DatiPutrelle& dati, double permanent, double service) {
  const double strip = (dati.tavellone.lunghezza + ProfiloNP(dati.putrella).b / 10) / 100;
  double load = permanent * (dati.pesoProprio + dati.diretto);
  for (std::size_t i = 0; i < Sovraccarico; ++i) load += permanent * dati.ripartiti[i] * strip;
  return load + service * dati.ripartiti[Sovraccarico] * strip;
}

TEST(SteelSlab, BeamOnTwoSupportsBySlices) {
  std::mt19937 random(143);
  for (int i = 0; i < 40; ++i) {
    auto dati = Floor<DatiSolaioP>(random);
    dati.cMezzeria = 8;
    const RisultatiSolaioP r = VerificaSolaioP(dati);
    const double q = OnAMetre(dati, 1, 1), L = dati.lunghezza, dx = L / kSlices;
    EXPECT_NEAR(r.taglio, q * L / 2, 1e-9 * r.taglio);
    // Moment at the middle, and its deflection as the moment of the curvature (virtual work).
    double moment = q * L / 2 * L / 2, work = 0;
    for (int k = 0; k < kSlices; ++k) {
      const double x = (k + 0.5) * dx;
      if (x < L / 2) moment -= q * dx * (L / 2 - x);
      work += (q * L / 2 * x - q * x * x / 2) * (std::min(x, L - x) / 2) * dx;
    }
    EXPECT_NEAR(r.momento, moment, 1e-6 * moment);
    // kg m^3 over kg/cmq cm^4, in cm.
    EXPECT_NEAR(r.totale.calcolata, work * 1e6 / (kModuloAcciaio * InerziaComposta(dati)),
                1e-6 * r.totale.calcolata);
    EXPECT_NEAR(r.permanente.calcolata / r.totale.calcolata, OnAMetre(dati, 1, 0) / q, 1e-9);
  }
}

// The concrete strip by strip about the axis where both sides balance.
TEST(SteelSlab, InertiaByStrips) {
  std::mt19937 random(144);
  for (int i = 0; i < 40; ++i) {
    const auto dati = Floor<DatiSolaioP>(random);
    const Profilo p = ProfiloNP(dati.putrella);
    const double h = AltezzaProfilo(dati.putrella) / 10, t = std::max(dati.altezza - h, 0.0);
    const double width = Interasse(dati) / 15, dy = t / kSlices;
    double area = p.A, first = p.A * (t + h / 2);
    for (int k = 0; k < kSlices; ++k) {
      area += width * dy;
      first += width * dy * (k + 0.5) * dy;
    }
    const double axis = first / area;
    double inertia = p.J + p.A * std::pow(t + h / 2 - axis, 2);
    for (int k = 0; k < kSlices; ++k) inertia += width * dy * std::pow((k + 0.5) * dy - axis, 2);
    EXPECT_NEAR(InerziaComposta(dati), inertia, 1e-6 * inertia);
  }
}

TEST(SteelSlab, CoefficientsAndEdges) {
  EXPECT_EQ(MomentoSolaioP(2, 100, 8, 12), 50);
  EXPECT_EQ(MomentoSolaioP(2, 100, 0, 10), 40);
  EXPECT_EQ(MomentoSolaioP(2, 100, 0, 0), 0);
  // Hinged 5/384, built in 1/384; a coefficient under 9.6 would lift the beam.
  EXPECT_NEAR(FrecciaUnitaria(3, 0) / FrecciaUnitaria(3, 12), 5, 1e-12);
  EXPECT_LT(FrecciaUnitaria(3, 9), 0);
  EXPECT_TRUE(IncastroEccessivo(11.9));
  EXPECT_FALSE(IncastroEccessivo(12));
  EXPECT_FALSE(IncastroEccessivo(0));
  EXPECT_TRUE(AltezzaSolaioInsufficiente(5, 19.99));
  EXPECT_FALSE(AltezzaSolaioInsufficiente(5, 20));
  // What is not in the tables has 1 everywhere.
  EXPECT_EQ(ProfiloNP("130").W, 1);
  EXPECT_EQ(TensioniAcciaio("Fe 235").tau, 1);
  EXPECT_TRUE(ModuloInDifetto("120"));
  EXPECT_FALSE(ModuloInDifetto("140"));
}

TEST(SteelSlab, ValuesBeyondTheAllowedOnesWarnUntilTheyAreCleared) {
  Form form("frmProva", "");
  PannelloRisultatiPutrelle risultati(form, {"uno", "due"});
  risultati.Mostra({{924, 924}, {1600, 1600.001}});
  EXPECT_FALSE(risultati.cdRisultati[0].Warns());
  EXPECT_TRUE(risultati.cdRisultati[1].Warns());
  EXPECT_EQ(risultati.cdRisultati[1].ShownText(), "1600,00");
  risultati.Azzera();
  EXPECT_FALSE(risultati.cdRisultati[1].Warns());
}

TEST(SteelCantilever, LoadsBySlices) {
  std::mt19937 random(145);
  for (int i = 0; i < 40; ++i) {
    auto dati = Floor<DatiSbalzoP>(random);
    dati.caricoEstremo = static_cast<double>(random() % 400);
    dati.coppiaEstrema = static_cast<double>(random() % 400);
    const bool seismic = i % 2 == 0;
    if (seismic) dati.sisma = FattoriPer({1.2, 0.5});
    const double kv = seismic ? 0.48 : 0, s = seismic ? 0.5 : 0;
    const double q = OnAMetre(dati, 1 + kv, 1 + s * kv);
    const double strip = Interasse(dati) / 100, dx = dati.lunghezza / kSlices;
    const double edge = dati.caricoEstremo * strip * (1 + kv);
    double shear = edge, moment = edge * dati.lunghezza + dati.coppiaEstrema * strip;
    for (int k = 0; k < kSlices; ++k) {
      shear += q * dx;
      moment += q * dx * (k + 0.5) * dx;
    }
    const VerificaPutrella r = VerificaSbalzoP(dati);
    EXPECT_NEAR(r.taglio, shear, 1e-6 * shear);
    EXPECT_NEAR(r.momento, moment, 1e-6 * moment);
    EXPECT_NEAR(r.calcolate.sigma * ProfiloNP(dati.putrella).W / 100, moment, 1e-6 * moment);
  }
}

}  // namespace
}  // namespace orm
