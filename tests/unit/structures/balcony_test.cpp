// The stone balcony: statics by adding up small loads, stability at its limit, and a drawing that
// stays on its panel.
#include "structures/balcony/balcony.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <utility>

#include "dialogs/form.h"
#include "structures/balcony/drawing.h"
#include "structures/balcony/statics.h"
#include "structures/steel_profiles.h"

namespace orm {
namespace {

const ProsegueInstabile kSempre = [](Ribaltamento) { return true; };

DatiBalcone ACaso(std::mt19937& caso, TipoBalcone tipo) {
  const auto fra = [&](double a, double b) { return std::uniform_real_distribution(a, b)(caso); };
  DatiBalcone d;
  d.tipo = tipo;
  d.t = fra(0.05, 0.2), d.b = fra(0.5, 1.6), d.Ls = fra(0, 0.8), d.Lm = fra(0.8, 3);
  d.Bm = fra(0.5, 1.6), d.pr = fra(0.2, 0.6), d.putrella = AltezzeNP()[caso() % 18];
  d.b0 = fra(0.15, 0.4), d.hi = fra(0.2, 0.5), d.he = d.hi * fra(0, 1);
  d.lunghezza = fra(0.5, 4), d.si = fra(0.08, 0.3), d.se = d.si * fra(0, 1), d.a = fra(0.4, 1.4);
  d.Pl = fra(0, 300), d.qa = fra(0, 600), d.gs = fra(2000, 3000);
  if (caso() % 2 == 0) d.sisma = SismaDelBalcone({1.4, fra(0.33, 1)});
  return d;
}

// Shear and moment at the wall, load by load along the projection.
Sforzi Sommati(const DatiBalcone& d) {
  const double g = 1 + d.sisma.kv, q = (1 + d.sisma.s * d.sisma.kv) * d.qa;
  const bool sola = d.tipo == TipoBalcone::LastraSemplice;
  const double fuori = sola ? d.a : d.b, largo = sola ? d.lunghezza : d.Lm / 2 + d.Ls;
  const int bordi = sola ? 2 : 1;
  Sforzi somma{g * d.Pl * largo, g * d.Pl * largo * fuori};
  const auto aggiungi = [&](double L, const auto& alMetro) {
    constexpr int kParti = 500;
    for (int i = 0; i < kParti; ++i) {
      const double x = (i + 0.5) * L / kParti, carico = alMetro(x) * L / kParti;
      somma.V += carico;
      somma.M += carico * x;
    }
  };
  aggiungi(fuori, [&](double x) {
    const double spessore = sola ? d.si + (d.se - d.si) * x / d.a : d.t;
    return (g * d.gs * spessore + q) * largo + bordi * g * d.Pl;
  });
  if (d.tipo == TipoBalcone::Mensole)
    aggiungi(d.Bm, [&](double x) { return g * d.gs * d.b0 * (d.hi + (d.he - d.hi) * x / d.Bm); });
  if (d.tipo == TipoBalcone::Putrelle)
    aggiungi(d.Bm, [&](double) { return g * ProfiloNP(d.putrella).P; });
  return somma;
}

void ExpectVicini(double a, double b) { EXPECT_NEAR(a, b, 1e-5 * std::abs(b)); }

class Balcone : public testing::TestWithParam<TipoBalcone> {};
INSTANTIATE_TEST_SUITE_P(Tipi, Balcone,
                         testing::Values(TipoBalcone::Putrelle, TipoBalcone::Mensole,
                                         TipoBalcone::LastraSemplice));

// Where no edge is loaded and the slab is 1 m wide on brackets of 1 m, the customary formulas are
// statics.
TEST_P(Balcone, CheckIsStaticsForOneMetreWithoutEdges) {
  std::mt19937 caso(5802);
  for (int i = 0; i < 200; ++i) {
    DatiBalcone d = ACaso(caso, GetParam());
    d.Pl = 0;
    d.b = d.Bm = 1;
    ExpectVicini(SforziAlMuro(d).V, Sommati(d).V);
    ExpectVicini(SforziAlMuro(d).M, Sommati(d).M);
  }
}

TEST_P(Balcone, RatiosBringTheCheckToStatics) {
  std::mt19937 caso(5803);
  for (int i = 0; i < 200; ++i) {
    const DatiBalcone d = ACaso(caso, GetParam());
    const RisultatiBalcone r = VerificaBalcone(d, kSempre), su = StaticaSuVerifica(d);
    const auto [V, M] = Sommati(d);
    const Profilo p = ProfiloNP(d.putrella);
    const auto vicino = [&](ElementoBalcone elemento, double statica) {
      ExpectVicini(r[elemento] * su[elemento], statica);
    };
    ExpectVicini(StaticaAlMuro(d).V, V);
    ExpectVicini(StaticaAlMuro(d).M, M);
    double Bw = d.b0;
    if (d.tipo == TipoBalcone::Putrelle) {
      Bw = p.b / 1000;
      vicino(SigmaAcciaio, M * 100 / p.W);
      vicino(TauAcciaio, V * 100 / ((AltezzaProfilo(d.putrella) - 2 * p.tf) * p.tw));
    } else if (d.tipo == TipoBalcone::Mensole) {
      vicino(SigmaMensola, M / (d.b0 * d.hi * d.hi / 6) / 10000);
      vicino(TauMensola, 1.5 * V / (d.b0 * d.hi) / 10000);
      EXPECT_EQ(r[SigmaAcciaio], 0);
    } else {
      Bw = d.lunghezza;
      vicino(SigmaLastra, M / (d.lunghezza * d.si * d.si / 6) / 10000);
      vicino(TauLastra, 1.5 * V / (d.lunghezza * d.si) / 10000);
    }
    vicino(IncrementoMuratura, (6 * M / d.pr + 4 * V) / (d.pr * Bw) / 10000);
  }
}

// The check of the slab has the overhang as statics has it, and the span without seismic factors
// but for the weight of the overhang that holds it down.
TEST(Balcony, SlabIsStaticsButForTheSpanInASeismicZone) {
  std::mt19937 caso(5804);
  for (int i = 0; i < 400; ++i) {
    const DatiBalcone d = ACaso(caso, TipoBalcone::Mensole);
    DatiBalcone sbalzo = d, campata = d;
    sbalzo.Lm = campata.Ls = 0;
    campata.sisma = {};
    const Sforzi fuori = StaticaLastra(sbalzo), dentro = StaticaLastra(campata);
    const double trattiene = (1 - d.sisma.kv) * d.gs * d.t * d.b * d.Ls * d.Ls / 2;
    ExpectVicini(SforziLastra(d).V, std::max(fuori.V, dentro.V));
    ExpectVicini(SforziLastra(d).M, std::max(fuori.M, dentro.M - trattiene));
    const RisultatiBalcone r = VerificaBalcone(d, kSempre), su = StaticaSuVerifica(d);
    ExpectVicini(r[SigmaLastra], SforziLastra(d).M * 6 / (d.t * d.t * d.b) / 10000);
    ExpectVicini(r[TauLastra], 4.5 * SforziLastra(d).V / (d.b * d.t) / 10000);
    ExpectVicini(su[SigmaLastra] * SforziLastra(d).M, StaticaLastra(d).M);
    ExpectVicini(su[TauLastra] * SforziLastra(d).V, StaticaLastra(d).V / 3);
  }
}

// Exactly 1.5 times the overturning moment holds; a hair more is asked about, and a no ends the
// check.
void ExpectAskedBeyond(DatiBalcone d, Ribaltamento come) {
  d.tipo = TipoBalcone::Mensole;
  d.sisma = {0.5, 0.25};
  d.t = 0.5, d.Pl = 7, d.gs = 54, d.pr = d.b0 = d.hi = d.he = 1;
  const auto no = [come](Ribaltamento chiesto) { return chiesto != come; };
  EXPECT_EQ(VerificaBalcone(d, no)[EsitoBalcone], 0);
  d.qa += 0.001;
  EXPECT_EQ(VerificaBalcone(d, no), (RisultatiBalcone{-1}));
  EXPECT_GT(VerificaBalcone(d, kSempre)[SigmaMensola], 0);
}

TEST(Balcony, Overturning) {
  // t x b = 1, so w = 1.5 x 54 + 1.5 x 7 + 1.125 x 10 x 2 = 114; Mr = 3^2 x 114 / 2 + 1.5 x 7 x 2
  // x 3 = 576; Ms = 8^2 x 0.5 x 54 / 2 = 864 = 1.5 x 576.
  DatiBalcone d;
  d.b = d.Bm = 2, d.Ls = 3, d.Lm = 5, d.qa = 10;
  ExpectAskedBeyond(d, Ribaltamento::SbalziLaterali);
  // 3 m beyond the brackets, front 2 x 1.5 + 4 = 7: w = 1.5 x 54 x 0.5 x 7 + 3 x 7 + 1.125 x 12 x 7
  // = 399; Mr = 3^2 x 399 / 2 + 1.5 x 7 x 7 x 3 = 2016; Ms = 8^2 x 0.5 x 54 x 0.5 x 7 / 2 = 3024.
  d.b = 11, d.Bm = 8, d.Ls = 1.5, d.Lm = 4, d.qa = 12;
  ExpectAskedBeyond(d, Ribaltamento::SportoSuMensole);
}

TEST_P(Balcone, DrawingStaysOnItsPanel) {
  Form form("frm", "");
  Lavagna lavagna(form, "Lavagna", kLarghezzaBalcone, kAltezzaBalcone, kPuntiBalcone);
  std::mt19937 caso(5805);
  std::uniform_real_distribution esponente(-3.0, 2.0);
  for (int i = 0; i < 300; ++i) {
    DatiBalcone d = ACaso(caso, GetParam());
    // Measures that no balcony has, but a person can type.
    for (double* m :
         {&d.t, &d.b, &d.Ls, &d.Lm, &d.Bm, &d.b0, &d.hi, &d.lunghezza, &d.si, &d.a, &d.pr})
      *m = std::pow(10, esponente(caso));
    d.he = d.hi / 2, d.se = d.si / 2;
    DisegnaBalcone(lavagna, d);
    for (const DrawOperation& op : lavagna.Operations())
      for (const Point& p : op.points)
        ASSERT_TRUE(p.x >= 0 && p.x <= kLarghezzaBalcone && p.y >= 0 && p.y <= kAltezzaBalcone)
            << lavagna.AsText();
  }
}

// All that can be seen at the scale of the longest measures is drawn as it is.
TEST(Balcony, DrawingTellsWhatItLosesAtItsScale) {
  Form form("frm", "");
  Lavagna lavagna(form, "Lavagna", kLarghezzaBalcone, kAltezzaBalcone, kPuntiBalcone);
  DatiBalcone lastra, mensole;
  lastra.tipo = TipoBalcone::LastraSemplice, mensole.tipo = TipoBalcone::Mensole;
  lastra.si = lastra.se = 0.2, lastra.lunghezza = 3, lastra.a = 1.1, lastra.pr = 0.3;
  mensole.t = 0.4, mensole.b = mensole.Bm = 0.5, mensole.Lm = 0.6, mensole.pr = 0.45;
  mensole.b0 = 0.25, mensole.hi = mensole.he = 1.5;
  DatiBalcone minuta = lastra, lunga = mensole;
  minuta.si = minuta.se = 0.02, minuta.pr = 2, lunga.Lm = 99;
  const std::pair<DatiBalcone, const char*> casi[] = {
      {lastra, ""}, {mensole, ""}, {minuta, "Sezione"}, {lunga, "Pianta"}};
  for (const auto& [dati, perde] : casi) {
    DisegnaBalcone(lavagna, dati);
    std::string detto;
    for (const DrawOperation& op : lavagna.Operations())
      if (op.text.ends_with("  (non in scala)")) detto += op.text.substr(0, op.text.find(' '));
    EXPECT_EQ(detto, perde);
  }
}

}  // namespace
}  // namespace orm
