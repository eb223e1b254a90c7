// The statements of the checks: every stress of random uses can be reckoned again from the numbers
// that its own statement gives.
#include <random>

#include "structures/balcony/balcony.h"
#include "structures/section_statement.h"
#include "structures/steel_beams/cantilever.h"
#include "structures/steel_beams/slab.h"
#include "structures/truss_slab/truss_slab.h"
#include "tests/unit/sums.h"

namespace orm {
namespace {

class Statements : public ::testing::Test {
 protected:
  // With two decimals, as fields have them.
  double Any(double least, double most) {
    return std::round(std::uniform_real_distribution<>(least, most)(random_) * 100) / 100;
  }
  bool Perhaps() { return random_() % 2 == 0; }
  std::mt19937 random_{20260112};
};

TEST_F(Statements, OfSectionsInBending) {
  const TensioniAmmissibili ammesse{2600, 97.5};
  int done = 0;
  for (int i = 0; i < 2000 / ORM_RANDOM_SHARE; ++i) {
    DatiSezione t{.B = Any(20, 200), .b = Any(10, 40), .Bi = Any(20, 90), .H = Any(20, 120)};
    t.s = Perhaps() ? Any(3, 9) : 0;
    t.si = Perhaps() ? Any(3, 9) : 0;
    if (t.s == 0) t.B = t.b;
    if (t.si == 0) t.Bi = t.b;
    for (StratoT& strato : t.strati)
      if (Perhaps()) strato = {Any(0.3, 20), Any(2, t.H - 2)};
    t.M = Any(-9000, 9000) * 100;
    RisultatiSezione r;
    VerificaSezioneT(t, r);
    DatiCircolare c{.D = Any(30, 200), .Ad1 = Any(5, 60), .Ac1 = Any(1, 9), .d1 = Any(3, 9)};
    c.Di = Perhaps() ? c.D / 2 : 0;
    c.Dd1 = c.D - 8;
    c.M = t.M;
    RisultatiCircolare rc;
    VerificaSezioneCircolare(c, rc);
    const auto expect = [&](const CateneFlessione& catene, const RisultatiFlessione& f) {
      const bool positivo = t.M > 0;
      const double mostrati[] = {f.asse, f.clsSup, f.clsInf, positivo ? f.minimo : f.massimo,
                                 positivo ? f.massimo : f.minimo};
      for (std::size_t k = 0; k < catene.size(); ++k)
        ExpectRecomputed(catene[k], mostrati[k], "sezione ");
      EXPECT_TRUE(std::ranges::any_of(catene[positivo ? 1 : 2], [&](const Passaggio& passo) {
        return passo.risultato == f.inerzia && !passo.conto.empty();
      }));
      ++done;
    };
    if (r.esito == EsitoT::Fatto && t.M != 0) expect(SpiegaSezioneT(t, r, ammesse), r);
    if (rc.esito == EsitoC::Fatto && t.M != 0) expect(SpiegaSezioneC(c, rc, ammesse), rc);
  }
  EXPECT_GT(done, 3000 / ORM_RANDOM_SHARE);
}

TEST_F(Statements, OfSteelBeams) {
  for (int i = 0; i < 500; ++i) {
    DatiSbalzoP s;
    s.lunghezza = Any(1, 8), s.altezza = Any(14, 50), s.acciaio = "Fe 360";
    s.putrella = kProfiliNP[random_() % kProfiliNP.size()].h == 80 ? "80" : "180";
    s.tavellone = {80, 6};
    for (double& carico : s.ripartiti) carico = Any(0, 300);
    s.pesoProprio = Any(5, 60), s.diretto = Any(0, 90);
    s.caricoEstremo = Any(0, 90), s.coppiaEstrema = Any(0, 90);
    if (Perhaps()) s.sisma = {0.4, 0.33};
    DatiSolaioP p;
    static_cast<DatiPutrelle&>(p) = s;
    p.cMezzeria = 8, p.cIncastro = Perhaps() ? 12 : 0;
    const VerificaPutrella v = VerificaSbalzoP(s);
    ExpectRecomputed(v.sigma, v.calcolate.sigma, "sbalzo ");
    ExpectRecomputed(v.tau, v.calcolate.tau, "sbalzo ");
    const RisultatiSolaioP r = VerificaSolaioP(p);
    ExpectRecomputed(r.sigma, r.calcolate.sigma, "solaio ");
    ExpectRecomputed(r.tau, r.calcolate.tau, "solaio ");
    ExpectRecomputed(r.permanente.passi, r.permanente.calcolata, "solaio ");
    ExpectRecomputed(r.totale.passi, r.totale.calcolata, "solaio ");
  }
}

TEST_F(Statements, OfBalconies) {
  int stabilita[2][2] = {};  // each way, held and overturned
  for (int i = 0; i < 600; ++i) {
    DatiBalcone d;
    d.tipo = static_cast<TipoBalcone>(i % 3), d.putrella = "160";
    d.t = Any(0.05, 0.3), d.b = Any(0.5, 2), d.Ls = Any(0, 1), d.Lm = Any(0.5, 4);
    d.Bm = Any(0.5, 2), d.b0 = Any(0.1, 0.4), d.hi = Any(0.2, 0.6), d.he = Any(0.1, 0.2);
    d.lunghezza = Any(1, 4), d.si = Any(0.2, 0.4), d.se = Any(0.1, 0.2), d.a = Any(0.5, 2);
    d.pr = Any(0.2, 0.6), d.Pl = Any(0, 100), d.qa = 400, d.gs = 2700;
    if (Perhaps()) d.sisma = {0.4, 0.33};
    CateneBalcone perche;
    const auto prosegue = [](Ribaltamento) { return true; };
    const RisultatiBalcone r = VerificaBalcone(d, prosegue, &perche);
    for (std::size_t k = 1; k < r.size(); ++k) {
      EXPECT_EQ(perche[k].empty(), r[k] == 0) << k;
      if (!perche[k].empty()) ExpectRecomputed(perche[k], r[k], "balcone ");
    }
    for (const std::size_t k : {StabilitaLato, StabilitaSporto})
      if (!perche[k].empty()) {
        ExpectRecomputed(perche[k], *perche[k].back().risultato, "balcone ");
        bool chiesto = false;
        VerificaBalcone(d, [&](Ribaltamento come) {
          chiesto |= (come == Ribaltamento::SbalziLaterali) == (k == StabilitaLato);
          return true;
        });
        EXPECT_EQ(chiesto, *perche[k].back().risultato < 1.5) << k;
        ++stabilita[k - StabilitaLato][chiesto];
      }
  }
  for (const auto& casi : stabilita)
    EXPECT_TRUE(casi[0] > 0 && casi[1] > 0) << casi[0] << ' ' << casi[1];
}

TEST_F(Statements, OfTrussSlabs) {
  int done = 0;
  for (int i = 0; i < 60; ++i) {
    DatiSolaioT d;
    d.luce = Any(2, 7), d.solettina = 4, d.blocco = "R 38 x 20", d.classeCls = "300";
    d.tipoFerro = "Fe B 44 k", d.pesoProprio = 305;
    d.permanente = Any(0, 300), d.accidentale = Any(100, 400);
    d.cSin = 12, d.cDex = 24, d.cMez = 10;
    const RisultatiSolaioT r = ProgettaSolaioT(d);
    if (r.esito != EsitoSolaioT::Verificato) continue;
    ++done;
    ExpectRecomputed(r.passiTaglio, r.passiTaglio.back().tagli[0].prima, "solaio ");
    ExpectRecomputed(r.passiTau, r.passiTau.back().tagli[0].prima, "solaio ");
    EXPECT_EQ(r.passiTau.back().tagli[0].dopo, r.tau);
    EXPECT_EQ(r.passiMezzeria.back().tagli[0].dopo, r.momentoMezzeria);
    for (const Appoggio* a : {&r.sinistra, &r.destra}) {
      EXPECT_EQ(Calcolatrice::Fa(a->passiNervata.back().conto.Testo()), a->nervata.dati.M);
      EXPECT_EQ(std::fabs(a->nervata.risultati.clsInf), a->clsNervata);
      for (const Moncone* m : {&a->lungo, &a->corto})
        if (m->diametro != 0) ExpectRecomputed(m->passi, m->Lunghezza(), "moncone ");
    }
    for (const Barra& barra : r.campata)
      if (barra.diametro != 0) ExpectRecomputed(barra.passi, barra.lunghezza, "ferro ");
  }
  EXPECT_GT(done, 20);
}

}  // namespace
}  // namespace orm
