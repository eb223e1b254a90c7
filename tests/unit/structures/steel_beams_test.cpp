// Slabs and cantilevers of NP beams against the formulas of handbooks, on random floors.
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

// As wide as the beams are apart, m.
double Strip(const DatiPutrelle& dati) {
  return (dati.tavellone.lunghezza + ProfiloNP(dati.putrella).b / 10) / 100;
}

// Load on a metre of beam: a strip of floor and what is on the beam.
double OnAMetre(const DatiPutrelle& dati, double permanent, double service) {
  double load = permanent * (dati.pesoProprio + dati.diretto);
  for (std::size_t i = 0; i < Sovraccarico; ++i)
    load += permanent * dati.ripartiti[i] * Strip(dati);
  return load + service * dati.ripartiti[Sovraccarico] * Strip(dati);
}

// Beam and concrete of a fifteenth of its width, from the upper edge to their own axis.
double Inertia(const DatiSolaioP& dati) {
  const Profilo p = ProfiloNP(dati.putrella);
  const double h = AltezzaProfilo(dati.putrella) / 10, t = std::max(dati.altezza - h, 0.0);
  const double width = Strip(dati) * 100 / 15, area = p.A + width * t;
  const double first = p.A * (t + h / 2) + width * t * t / 2;
  return p.J + p.A * std::pow(t + h / 2, 2) + width * t * t * t / 3 - first * first / area;
}

TEST(SteelSlab, BeamOnTwoSupports) {
  std::mt19937 random(143);
  for (int i = 0; i < 100; ++i) {
    auto dati = Floor<DatiSolaioP>(random);
    dati.cMezzeria = 8;
    const RisultatiSolaioP r = VerificaSolaioP(dati);
    const double q = OnAMetre(dati, 1, 1), L = dati.lunghezza;
    EXPECT_NEAR(r.taglio, q * L / 2, 1e-9 * r.taglio);
    EXPECT_NEAR(r.momento, q * L * L / 8, 1e-9 * r.momento);
    const double deflection =
        5 * (q / 100) * std::pow(L * 100, 4) / (384 * 2100000 * Inertia(dati));
    EXPECT_NEAR(r.totale.calcolata, deflection, 1e-9 * deflection);
    EXPECT_NEAR(r.permanente.calcolata, deflection * OnAMetre(dati, 1, 0) / q, 1e-9 * deflection);
    EXPECT_NEAR(r.calcolate.sigma * ProfiloNP(dati.putrella).W / 100, r.momento, 1e-9 * r.momento);
  }
}

TEST(SteelSlab, CoefficientsAndEdges) {
  EXPECT_EQ(MomentoSolaioP(2, 100, 8, 12), 50);
  EXPECT_EQ(MomentoSolaioP(2, 100, 0, 10), 40);
  EXPECT_EQ(MomentoSolaioP(2, 100, 0, 0), 0);
  // Hinged 5/384, built in 1/384.
  EXPECT_NEAR(FrecciaUnitaria(3, 0) / FrecciaUnitaria(3, 12), 5, 1e-12);
  EXPECT_TRUE(IncastroEccessivo(11.9));
  EXPECT_FALSE(IncastroEccessivo(12));
  EXPECT_FALSE(IncastroEccessivo(0));
  EXPECT_FALSE(AltezzaSolaioInsufficiente(5, 20));
  // What is not in the tables has 1 everywhere.
  EXPECT_EQ(ProfiloNP("130").W, 1);
  EXPECT_EQ(TensioniAcciaio("Fe 235").tau, 1);
}

TEST(SteelSlab, ValuesBeyondTheAllowedOnesWarnUntilTheyAreCleared) {
  Form form("frmProva", "");
  PannelloRisultatiPutrelle risultati(form, {"uno", "due"});
  risultati.Mostra({{924, 924}, {1600, 1600.001}});
  EXPECT_FALSE(risultati.cdRisultati[0].Warns());
  EXPECT_TRUE(risultati.cdRisultati[1].Warns());
  risultati.Azzera();
  EXPECT_FALSE(risultati.cdRisultati[1].Warns());
}

TEST(SteelCantilever, LoadsInAndOutsideASeismicZone) {
  std::mt19937 random(145);
  for (int i = 0; i < 100; ++i) {
    auto dati = Floor<DatiSbalzoP>(random);
    dati.caricoEstremo = static_cast<double>(random() % 400);
    dati.coppiaEstrema = static_cast<double>(random() % 400);
    if (i % 2 == 0) dati.sisma = FattoriPer({1.2, 0.5});
    const double kv = i % 2 == 0 ? 0.48 : 0, s = 0.5, L = dati.lunghezza;
    const double q = OnAMetre(dati, 1 + kv, 1 + s * kv);
    const double edge = dati.caricoEstremo * Strip(dati) * (1 + kv);
    const VerificaPutrella r = VerificaSbalzoP(dati);
    EXPECT_NEAR(r.taglio, q * L + edge, 1e-9 * r.taglio);
    EXPECT_NEAR(r.momento, q * L * L / 2 + edge * L + dati.coppiaEstrema * Strip(dati),
                1e-9 * r.momento);
  }
}

}  // namespace
}  // namespace orm
