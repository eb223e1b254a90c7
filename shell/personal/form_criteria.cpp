#include "shell/personal/form_criteria.h"

#include <algorithm>
#include <span>
#include <utility>

#include "cases/fee_case.h"
#include "shell/personal/settings.h"

namespace orm {
namespace {

constexpr std::array<const char*, 4> kTipi = {"CALCOLATA", "ASSEGNATA", "CALABRIA",
                                              "NUOVA TARIFFA"};
constexpr std::array<const char*, 3> kResidenze = {"FUORIREGIONE", "OLTRE100KM", "ENTRO100KM"};
constexpr std::array<const char*, 2> kDirezioni = {"UNITE", "SEPARATE"};

using Testi = std::span<const char* const>;  // what the options of a group stand for

// From the values to the form.
struct Mostra {
  void operator()(OptionGroup& gruppo, Testi testi, const std::string& valore) const {
    gruppo.Choose(static_cast<int>(std::ranges::find(testi, valore) - testi.begin()));
  }
  void operator()(CheckBox& casella, const std::string& valore) const {
    casella.SetValue(valore == "SI");
  }
  void operator()(NumberBox& campo, double valore) const { campo.SetValue(valore); }
  void operator()(TestoBox& campo, const std::string& valore) const { campo.SetText(valore); }
};

// From the form to the values. A stored value of none of the options sets none, and is kept.
struct Prendi {
  void operator()(OptionGroup& gruppo, Testi testi, std::string& valore) const {
    if (gruppo.Chosen() >= 0) valore = testi[static_cast<std::size_t>(gruppo.Chosen())];
  }
  void operator()(CheckBox& casella, std::string& valore) const {
    valore = casella.Value() ? "SI" : "NO";
  }
  template <class Numero>
  void operator()(NumberBox& campo, Numero& valore) const {
    valore = static_cast<Numero>(campo.Value());
  }
  void operator()(TestoBox& campo, std::string& valore) const { valore = campo.Text(); }
};

}  // namespace

template <class Verso>
void FrmPerCriteri::Voci(Criteri& c, Verso verso) {
  verso(tipoPercentuale, kTipi, c.TipoPercentualeCompensi);
  verso(residenza, kResidenze, c.ResidenzaCollaudatore);
  verso(direzione, kDirezioni, c.AliquoteDirezioneLavori);
  verso(Percentualecompensi, c.PercCompensiAssegnata);
  verso(casellainteri1, c.DecimaliTabelle);
  verso(casellainteri2, c.DecimaliCompensi);
  verso(chkCA[0], c.CompensiSuSorveglianza);
  verso(chkCA[1], c.CompensiSuMaggiorazione);
  verso(chkStampaParere, c.StampaParere);
  verso(cdQuotaFissa, c.QuotaFissaParere);
  verso(cdQuotaPercentuale, c.QuotaPercentualeParere);
  verso(tboxPresidente, c.PresidenteOrdine);
  verso(chkAggiuntive, c.StampaSpeseAggiuntive);
  verso(chkSpese[0], c.SpesaInarcassa);
  verso(chkSpese[1], c.SpesaInps);
  verso(chkSpese[2], c.SpesaIva);
  verso(chkSpese[3], c.SpesaTassaParere);
  verso(cdPercentualeAggiuntive[0], c.PercInarcassa);
  verso(cdPercentualeAggiuntive[1], c.PercInps);
  verso(cdPercentualeAggiuntive[2], c.PercIva);
}

FrmPerCriteri::FrmPerCriteri(RunState& stato)
    : Form("frmPER_Criteri", "CRITERI", "criteri di calcolo"), stato_(stato) {
  SetContent(Disposizione());
  chkStampaParere.onChange = chkAggiuntive.onChange = chkSpese[3].onChange = Option2.onChange =
      Option3.onChange = [this] { AttivaGruppi(); };
  Voci(stato.criteri, Mostra());
  AttivaGruppi();
  btnOK.onPress = [this] { TryAndStay(stato_.player, [this] { Conferma(); }); };
}

Layout FrmPerCriteri::Disposizione() {
  return Column(
      {Group(fraCompensi, {Option1, Option2, Option3, Option13}),
       Row({Column({Group(fraPercentuale, {Percentualecompensi}),
                    Group(fraDirezione, {Row({Option4, Option5})}),
                    Group(fraCompensiSu, {Row({chkCA[0], chkCA[1]})})}),
            Column({Group(fraResidenza, {Row({Option6, Option7, Option8})}),
                    Group(fraDecimali, {Fields({casellainteri1, casellainteri2})})})}),
       Row({Group(fraParere,
                  {chkStampaParere, Fields({cdQuotaFissa, cdQuotaPercentuale, tboxPresidente})}),
            Group(fraSpese, {chkAggiuntive, Row({chkSpese[0], cdPercentualeAggiuntive[0]}),
                             Row({chkSpese[1], cdPercentualeAggiuntive[1]}),
                             Row({chkSpese[2], cdPercentualeAggiuntive[2]}), chkSpese[3]})}),
       Buttons({btnOK})});
}

void FrmPerCriteri::AttivaGruppi() {
  const FeeCase* at = FindFeeCase(stato_.CasoDiParcella);
  const int groups = at == nullptr ? kAllCriteria : at->criteria;
  const bool compensi = (groups & kCompensiAccessori) != 0;
  fraCompensi.SetEnabled(compensi);
  fraPercentuale.SetEnabled(compensi && Option2.Value());
  fraResidenza.SetEnabled(compensi && Option3.Value());
  fraDirezione.SetEnabled((groups & kDirezioneLavori) != 0);
  fraCompensiSu.SetEnabled((groups & kCompensiSuVoci) != 0);
  fraDecimali.SetEnabled(compensi || (groups & kTabelle) != 0);
  casellainteri1.SetEnabled((groups & kTabelle) != 0);
  casellainteri2.SetEnabled(compensi);
  // What is not printed has nothing to be filled in. The fee of the Order stands in both groups.
  const bool spese = chkAggiuntive.Value();
  const bool quote = chkStampaParere.Value() || (spese && chkSpese[3].Value());
  cdQuotaFissa.SetEnabled(quote);
  cdQuotaPercentuale.SetEnabled(quote);
  tboxPresidente.SetEnabled(chkStampaParere.Value());
  for (CheckBox& voce : chkSpese) voce.SetEnabled(spese);
  for (FloatBox& percentuale : cdPercentualeAggiuntive) percentuale.SetEnabled(spese);
}

// What cannot be written is not in force either.
void FrmPerCriteri::Conferma() {
  Criteri nuovi = stato_.criteri;
  Voci(nuovi, Prendi());
  ScriviCriteri(stato_.folder, nuovi);
  stato_.criteri = nuovi;
  Esci(Uscita::Conferma);
}

}  // namespace orm
