// Load analysis: the figures, and the dialogs that no command of the menu opens by itself.
#include "structures/loads/loads.h"

#include <gtest/gtest.h>

#include <functional>

#include "structures/loads/form_edge.h"
#include "structures/loads/form_filling.h"
#include "structures/loads/form_permanent.h"
#include "structures/loads/form_seismic.h"
#include "structures/loads/hollow_tiles.h"
#include "structures/structural_report.h"
#include "tests/unit/fake_player.h"
#include "tests/unit/form_rules.h"

namespace orm {
namespace {

// Shows a form by doing what the test says in it; keeps what was started.
class DoingPlayer : public FakePlayer {
 public:
  std::function<void()> doing;
  int started = 0;
  void Show(Form& form) override {
    form.Open();
    EXPECT_TRUE(FormRules::Broken(form).empty()) << FormRules::Broken(form).front();
    doing();
    EXPECT_FALSE(form.IsOpen());
  }
  void StartProgram(const std::string&, const std::string&) override { ++started; }
};

class Caller : public Form {
 public:
  Caller() : Form("frmChiamante", ""), campo(*this, "campo", "Carico") { SetContent(campo); }
  FloatBox campo;
};

class LoadDialogs : public testing::Test {
 protected:
  DoingPlayer player;
  RunState stato{player, WorkFolder()};
  Caller caller;
};

TEST(Loads, SnowHasItsBaseUpTo300MetresAnd20Degrees) {
  EXPECT_EQ(CaricoNeve(90, 0, 0), 90);
  EXPECT_EQ(CaricoNeve(90, 300, 20), 90);
  EXPECT_DOUBLE_EQ(CaricoNeve(90, 301, 0), 90.15);
  EXPECT_DOUBLE_EQ(CaricoNeve(60, 1300, 40), 0.5 * 210);
  EXPECT_EQ(CaricoNeve(60, 1300, 60), 0);
  EXPECT_EQ(CaricoNeve(60, 1300, 89), 0);
}

TEST(Loads, PartitionsOverNoAreaAreNone) {
  EXPECT_EQ(CaricoTramezzi(0, 9, 2.8, 130), 0);
  EXPECT_DOUBLE_EQ(CaricoTramezzi(42, 9, 2.8, 130), 78);
}

TEST(Loads, MixedFillingIsConcreteAroundTheTile) {
  EXPECT_DOUBLE_EQ(CaricoRiempimento(2400, 15), 360);
  // One metre of floor between beams 80 cm apart, 12 cm high: 0.096 mc less a tile 60 x 6 (0.036
  // mc) of concrete of 1000 kg/mc, and the tile's 39 kg/mq over 0.6 of the 0.8 mq.
  const Tavellone tile{60, 6, 39};
  EXPECT_DOUBLE_EQ(CaricoRiempimentoMisto(1000, 12, 80, tile),
                   (1000 * (0.096 - 0.036) + 39 * 0.6) / 0.8);
}

TEST(Loads, TilesGoByLengthAndHeight) {
  EXPECT_EQ(NomiTavelloni().size(), 40U);
  EXPECT_EQ(NomiTavelloni().front(), "50 x 3");
  EXPECT_EQ(NomiTavelloni()[7], "60 x 6");
  EXPECT_EQ(TavelloneDiLista(7).peso, 39);
  EXPECT_EQ(TavelloneDiLista(-1).lunghezza, 0);
}

TEST_F(LoadDialogs, FillingRefusesATileThatIsTooHighOrTooWide) {
  FrmStruttureCarichiRiempimento& form = CarichiRiempimento(stato, 70, 5);
  player.doing = [&] {
    EXPECT_EQ(form.cdTotale.Value(), 120);
    form.Option2.SetValue(true);
    form.cdCLS_1.SetValue(1400);
    EXPECT_EQ(form.cdTotale.Value(), 70);
    form.Option3.SetValue(true);
    form.cdCLS_2.SetValue(1000);
    form.cmbTavellone.Enter("80 x 6");
    form.OKButton.Press();  // both too high and too wide: the height is told
    EXPECT_TRUE(form.IsOpen());
    form.cmbTavellone.Enter("80 x 4");
    form.OKButton.Press();
    form.cmbTavellone.Enter("70 x 4");
    form.OKButton.Press();
  };
  ChiediCarico(stato, form, caller.campo);
  ASSERT_EQ(player.messages.size(), 2U);
  EXPECT_EQ(player.messages[0].title, "  ATTENZIONE !! ");
  EXPECT_EQ(player.messages[0].text, "L'ALTEZZA DEL TAVELLONE SUPERA QUELLA A DISPOSIZIONE !");
  EXPECT_EQ(player.messages[1].text, "LA LARGHEZZA DEL TAVELLONE SUPERA QUELLA A DISPOSIZIONE !");
  // 1 cm of concrete over a tile of 30 kg/mq that takes all the space.
  EXPECT_DOUBLE_EQ(caller.campo.Value(), 40);
  player.doing = [&] {
    EXPECT_TRUE(form.Option3.Value());
    form.OKButton.Press();
  };
  ChiediCarico(stato, CarichiRiempimento(stato, 70, 8), caller.campo);
  EXPECT_DOUBLE_EQ(caller.campo.Value(), 70);
}

TEST_F(LoadDialogs, AFillingWithoutSpaceIsNoDivision) {
  FrmStruttureCarichiRiempimento& form = CarichiRiempimento(stato, 0, 8);
  player.doing = [&] {
    form.Option3.SetValue(true);
    EXPECT_EQ(form.cdTotale.Value(), 0);
    form.OKButton.Press();
    form.OnWindowClose();
  };
  ChiediCarico(stato, form, caller.campo);
  EXPECT_EQ(player.messages.size(), 1U);
  EXPECT_TRUE(form.Option1.Value());  // as before it was shown
}

TEST_F(LoadDialogs, TheEdgeGivesALoadOrACouple) {
  using Cerca = FrmStruttureCarichiEstremita::Cerca;
  FrmStruttureCarichiEstremita& form = CarichiEstremita(stato, Cerca::Carico);
  player.doing = [&] {
    EXPECT_TRUE(form.fraCarico.IsShown());
    EXPECT_FALSE(form.fraCoppia.IsShown());
    form.Find("optCARICO(4)")->Enter("on");
    form.Find("cdParapetto")->Enter("75,5");
    form.OKButton.Press();
  };
  ChiediCarico(stato, form, caller.campo);
  EXPECT_EQ(caller.campo.Value(), 75.5);
  player.doing = [&] {
    EXPECT_FALSE(form.fraCarico.IsShown());
    form.Find("optSpinta(1)")->Enter("on");
    form.cdCorrimano.SetValue(1.1);
    form.OKButton.Press();
  };
  ChiediCarico(stato, CarichiEstremita(stato, Cerca::Coppia), caller.campo);
  EXPECT_DOUBLE_EQ(caller.campo.Value(), 165);
}

TEST_F(LoadDialogs, SeismicChoicesLast) {
  EXPECT_EQ(CarichiSismici(stato).Coefficienti().I, 1.0);
  EXPECT_EQ(CarichiSismici(stato).Coefficienti().s, 0.33);
  player.doing = [&] {
    CarichiSismici(stato).Option1.SetValue(true);
    CarichiSismici(stato).Option6.SetValue(true);
    CarichiSismici(stato).OKButton.Press();
  };
  ChiediCarichiSismici(stato, caller.campo, [] {});
  EXPECT_EQ(CarichiSismici(stato).Coefficienti().I, 1.4);
  EXPECT_EQ(CarichiSismici(stato).Coefficienti().s, 1.0);
  player.doing = [&] {
    CarichiSismici(stato).Option2.SetValue(true);
    CarichiSismici(stato).OnWindowClose();
  };
  ChiediCarichiSismici(stato, caller.campo, [] {});
  EXPECT_EQ(CarichiSismici(stato).Coefficienti().I, 1.4);
  RunState another(player, WorkFolder());
  EXPECT_EQ(CarichiSismici(another).Coefficienti().I, 1.0);
}

}  // namespace
}  // namespace orm
