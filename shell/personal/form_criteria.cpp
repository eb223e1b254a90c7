#include "shell/personal/form_criteria.h"

#include <algorithm>
#include <utility>

#include "cases/fee_case.h"
#include "shell/personal/settings.h"

namespace orm {
namespace {

constexpr std::array<const char*, 4> kTipi = {"CALCOLATA", "ASSEGNATA", "CALABRIA",
                                              "NUOVA TARIFFA"};
constexpr std::array<const char*, 3> kResidenze = {"FUORIREGIONE", "OLTRE100KM", "ENTRO100KM"};
constexpr std::array<const char*, 2> kDirezioni = {"UNITE", "SEPARATE"};

template <std::size_t N>
void Choose(OptionGroup& group, const std::array<const char*, N>& values,
            const std::string& value) {
  group.Choose(static_cast<int>(std::find(values.begin(), values.end(), value) - values.begin()));
}

// The value of the chosen option; with a stored value of none of them no option is set, and the
// value is kept.
template <std::size_t N>
std::string Chosen(const OptionGroup& group, const std::array<const char*, N>& values,
                   const std::string& kept) {
  return group.Chosen() < 0 ? kept : values[static_cast<std::size_t>(group.Chosen())];
}

const char* SiNo(bool value) { return value ? "SI" : "NO"; }

// Nine decimals are the most that the rule of decimals itself asks for.
const NumberLimits kDecimali{.most = 9};
const NumberLimits kPercento{.most = 100, .decimals = 2, .unit = "%"};

}  // namespace

FrmPerCriteri::FrmPerCriteri(RunState& stato)
    : Form("frmPER_Criteri", "CRITERI"),
      fraCompensi(*this, "fraCompensi", "PERCENTUALE COMPENSI ACCESSORI"),
      Option1(*this, "Option1", "CALCOLATA  secondo FILE PERSONALIZZATO ( es. criterio CASMEZ)",
              tipoPercentuale),
      Option2(*this, "Option2", "ASSEGNATA per CONVENZIONE", tipoPercentuale),
      Option3(*this, "Option3",
              "CRITERIO REGIONE CALABRIA PER ONORARI COLLAUDI TECNICI ED AMMINISTRATIVI",
              tipoPercentuale),
      Option13(*this, "Option13", "CALCOLATA secondo D.M. 4-4-01", tipoPercentuale),
      fraPercentuale(*this, "fraPercentuale", "PERCENTUALE PER COMPENSI ACCESSORI"),
      Percentualecompensi(*this, "Percentualecompensi", "",
                          {.most = 100, .decimals = 4, .unit = "max 60"}),
      fraResidenza(*this, "fraResidenza", "RESIDENZA COLLAUDATORE"),
      Option6(*this, "Option6", "Fuori Regione", residenza),
      Option7(*this, "Option7", "Oltre 100 Km", residenza),
      Option8(*this, "Option8", "Entro 100 Km", residenza),
      fraDirezione(*this, "fraDirezione", "ONORARI DIREZIONE LAVORI con Aliquote"),
      Option4(*this, "Option4", "CUMULATE", direzione),
      Option5(*this, "Option5", "SEPARATE", direzione),
      fraDecimali(*this, "fraDecimali", "NUMERO DECIMALI NELLE PERCENTUALI DI CALCOLO "),
      casellainteri1(*this, "casellainteri1", "Tabelle A, C, F e similari", kDecimali),
      casellainteri2(*this, "casellainteri2", "Compensi Accessori", kDecimali),
      fraCompensiSu(*this, "fraCompensiSu", "COMPENSI ACCESSORI SU"),
      chkCA{{{*this, "chkCA(0)", "SORVEGLIANZA"},
             {*this, "chkCA(1)", "MAGGIORAZIONE INCARICO PARZIALE"}}},
      fraParere(*this, "fraParere", "PARERE CONGRUITÀ ORDINE PROFESSIONALE"),
      chkStampaParere(*this, "chkStampaParere", "Stampa "),
      cdQuotaFissa(*this, "cdQuotaFissa", "Quota fissa ( € )",
                   {.most = 999999.99, .decimals = 2, .trailingZeros = true}),
      cdQuotaPercentuale(*this, "cdQuotaPercentuale", "Quota Percent.", kPercento),
      tboxPresidente(*this, "tboxPresidente", "Presidente dell'Ordine",
                     {.longest = 50, .width = 28}),
      fraSpese(*this, "fraSpese", "SPESE AGGIUNTIVE PER IL COMMITTENTE"),
      chkAggiuntive(*this, "chkAggiuntive", "Stampa "),
      chkSpese{{{*this, "chkSpese(0)", "Contr. INARCASSA "},
                {*this, "chkSpese(1)", "Contr. INPS "},
                {*this, "chkSpese(2)", "I.V.A."},
                {*this, "chkSpese(3)", "Tassa Ordine per Rilascio Parere"}}},
      cdPercentualeAggiuntive{{{*this, "cdPercentualeAggiuntive(0)", "", kPercento},
                               {*this, "cdPercentualeAggiuntive(1)", "", kPercento},
                               {*this, "cdPercentualeAggiuntive(2)", "", kPercento}}},
      btnOK(*this, "btnOK", "&O.K.", Button::Role::Default),
      stato_(stato) {
  casellainteri1.SetUnit("0 per criterio automatico");
  casellainteri2.SetUnit("0 per criterio automatico");
  SetContent(
      Column({Group(fraCompensi, {Option1, Option2, Option3, Option13}),
              Row({Column({Group(fraPercentuale, {Percentualecompensi}),
                           Group(fraDirezione, {Row({Option4, Option5})}),
                           Group(fraCompensiSu, {Row({chkCA[0], chkCA[1]})})}),
                   Column({Group(fraResidenza, {Row({Option6, Option7, Option8})}),
                           Group(fraDecimali, {Fields({casellainteri1, casellainteri2})})})}),
              Row({Group(fraParere, {chkStampaParere,
                                     Fields({cdQuotaFissa, cdQuotaPercentuale, tboxPresidente})}),
                   Group(fraSpese, {chkAggiuntive, Row({chkSpese[0], cdPercentualeAggiuntive[0]}),
                                    Row({chkSpese[1], cdPercentualeAggiuntive[1]}),
                                    Row({chkSpese[2], cdPercentualeAggiuntive[2]}), chkSpese[3]})}),
              Buttons({btnOK})}));
  Option2.onChange = Option3.onChange = [this] { EnableGroups(); };
  Show(stato.criteri);
  EnableGroups();
  btnOK.onPress = [this] {
    TryAndStay(stato_.player, [this] {
      const Criteri before = std::exchange(stato_.criteri, Taken());
      try {
        ScriviCriteri(stato_);
      } catch (const RuntimeFailure&) {
        stato_.criteri = before;
        throw;
      }
      Close();
    });
  };
}

void FrmPerCriteri::EnableGroups() {
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
}

void FrmPerCriteri::Show(const Criteri& c) {
  Choose(tipoPercentuale, kTipi, c.TipoPercentualeCompensi);
  Choose(residenza, kResidenze, c.ResidenzaCollaudatore);
  Choose(direzione, kDirezioni, c.AliquoteDirezioneLavori);
  Percentualecompensi.SetValue(c.PercCompensiAssegnata);
  casellainteri1.SetValue(c.DecimaliTabelle);
  casellainteri2.SetValue(c.DecimaliCompensi);
  chkCA[0].SetValue(c.CompensiSuSorveglianza == "SI");
  chkCA[1].SetValue(c.CompensiSuMaggiorazione == "SI");
  chkStampaParere.SetValue(c.StampaParere == "SI");
  cdQuotaFissa.SetValue(c.QuotaFissaParere);
  cdQuotaPercentuale.SetValue(c.QuotaPercentualeParere);
  tboxPresidente.SetText(c.PresidenteOrdine);
  chkAggiuntive.SetValue(c.StampaSpeseAggiuntive == "SI");
  chkSpese[0].SetValue(c.SpesaInarcassa == "SI");
  chkSpese[1].SetValue(c.SpesaInps == "SI");
  chkSpese[2].SetValue(c.SpesaIva == "SI");
  chkSpese[3].SetValue(c.SpesaTassaParere == "SI");
  cdPercentualeAggiuntive[0].SetValue(c.PercInarcassa);
  cdPercentualeAggiuntive[1].SetValue(c.PercInps);
  cdPercentualeAggiuntive[2].SetValue(c.PercIva);
}

Criteri FrmPerCriteri::Taken() const {
  Criteri c;
  c.TipoPercentualeCompensi =
      Chosen(tipoPercentuale, kTipi, stato_.criteri.TipoPercentualeCompensi);
  c.ResidenzaCollaudatore = Chosen(residenza, kResidenze, stato_.criteri.ResidenzaCollaudatore);
  c.AliquoteDirezioneLavori = Chosen(direzione, kDirezioni, stato_.criteri.AliquoteDirezioneLavori);
  c.PercCompensiAssegnata = Percentualecompensi.Value();
  c.DecimaliTabelle = static_cast<std::uint8_t>(casellainteri1.Value());
  c.DecimaliCompensi = static_cast<std::uint8_t>(casellainteri2.Value());
  c.CompensiSuSorveglianza = SiNo(chkCA[0].Value());
  c.CompensiSuMaggiorazione = SiNo(chkCA[1].Value());
  c.StampaParere = SiNo(chkStampaParere.Value());
  c.QuotaFissaParere = cdQuotaFissa.Value();
  c.QuotaPercentualeParere = cdQuotaPercentuale.Value();
  c.PresidenteOrdine = tboxPresidente.Text();
  c.StampaSpeseAggiuntive = SiNo(chkAggiuntive.Value());
  c.SpesaInarcassa = SiNo(chkSpese[0].Value());
  c.SpesaInps = SiNo(chkSpese[1].Value());
  c.SpesaIva = SiNo(chkSpese[2].Value());
  c.SpesaTassaParere = SiNo(chkSpese[3].Value());
  c.PercInarcassa = cdPercentualeAggiuntive[0].Value();
  c.PercInps = cdPercentualeAggiuntive[1].Value();
  c.PercIva = cdPercentualeAggiuntive[2].Value();
  return c;
}

}  // namespace orm
