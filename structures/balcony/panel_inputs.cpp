#include "structures/balcony/panel_inputs.h"

#include <span>
#include <string>
#include <vector>

#include "runtime/numbers.h"
#include "structures/loads/form_edge.h"
#include "structures/loads/form_seismic.h"
#include "structures/loads/form_service.h"
#include "structures/loads/load_form.h"
#include "structures/numbered_controls.h"
#include "structures/steel_profiles.h"

namespace orm {
namespace {

struct VoceMisura {
  const char* etichetta;
  const char* lettera;
};

constexpr VoceMisura kSpessore{"Spessore della lastra [m]", "s"};
constexpr VoceMisura kLarghezza{"Larghezza della lastra [m]", "La"};
constexpr VoceMisura kSbalzi{"Lunghezza sbalzi laterali [m]", "Ls"};
constexpr VoceMisura kCampata{"Luce campata centrale [m]", "Lm"};
constexpr VoceMisura kPresa{"Presa mensola nella muratura [m]", "Pm"};
constexpr VoceMisura kLunghezza{"Lunghezza mensola  [m]", "Bm"};

constexpr std::array kMisurePutrelle = {kSpessore, kLarghezza, kSbalzi,
                                        kCampata,  kPresa,     kLunghezza};
constexpr std::array kMisureMensole = {kSpessore,
                                       kLarghezza,
                                       kSbalzi,
                                       kCampata,
                                       kPresa,
                                       kLunghezza,
                                       VoceMisura{"Base mensola [m]", "Ba"},
                                       VoceMisura{"Altezza mensola all'incastro [m]", "Hi"},
                                       VoceMisura{"Altezza mensola all'estremità [m]", "He"}};
constexpr std::array kMisureLastra = {
    VoceMisura{"Lunghezza lastra [m]", "L"}, VoceMisura{"Spessore lastra all'incastro [m]", "Hi"},
    VoceMisura{"Spessore lastra all'estremità [m]", "He"},
    VoceMisura{"Presa lastra nella muratura [m]", "Pm"}, VoceMisura{"Aggetto lastra  [m]", "La"}};

constexpr std::array kTipi = {"Lastra su putrelle in ferro", "Lastra su mensole in pietra",
                              "Lastra semplice"};
constexpr std::array<std::span<const VoceMisura>, 3> kMisure = {kMisurePutrelle, kMisureMensole,
                                                                kMisureLastra};

constexpr double kPesoPietra = 2700;  // kg/mc, of granite and marble: a customary value
constexpr int kPrimaPutrella = 4;     // 160 mm

NumberLimits Limiti(const char* lettera) {
  return {.most = 99.999, .decimals = 3, .unit = lettera};
}

}  // namespace

PannelloMisure::PannelloMisure(Form& form, TipoBalcone tipo)
    : fraGeo(form, "fraGeo" + NumberText(static_cast<int>(tipo) + 1),
             kTipi[static_cast<std::size_t>(tipo)]) {
  const std::string nome = "cdGeo" + NumberText(static_cast<int>(tipo) + 1);
  for (const VoceMisura& voce : kMisure[static_cast<std::size_t>(tipo)])
    cdGeo.emplace_back(form, NomeIndicizzato(nome, cdGeo.size() + 1), voce.etichetta,
                       Limiti(voce.lettera));
}

Layout PannelloMisure::Contents() { return Group(fraGeo, {Fields({cdGeo.begin(), cdGeo.end()})}); }

IngressiBalcone::IngressiBalcone(Form& form, RunState& stato)
    : fraTipo(form, "fraTipo", "TIPO"),
      optTipo{{{form, "optTipo(0)", kTipi[0], gruppoTipo},
               {form, "optTipo(1)", kTipi[1], gruppoTipo},
               {form, "optTipo(2)", kTipi[2], gruppoTipo}}},
      misure{{{form, TipoBalcone::Putrelle},
              {form, TipoBalcone::Mensole},
              {form, TipoBalcone::LastraSemplice}}},
      cmbPutrella(form, "cmbPutrella", "Putrella NP [ H in mm ]", AltezzeNP()),
      lblModuli(form, "lblModuli", kNotaModuli, Label::Style::Note),
      fraCarichi(form, "fraCarichi", "CARICHI"),
      cdCarichi{{{form, "cdCarichi(1)", "Carico sui bordi liberi  [Kg/ml]", kLimitiCarico},
                 {form, "cdCarichi(2)", "Sovraccarico ripartito  [Kg/mq]", kLimitiCarico},
                 {form, "cdCarichi(3)", "Peso specifico della pietra  [Kg/mc]", kLimitiCarico}}},
      cmdCalc_Est(form, "cmdCalc_Est", "Analisi..."),
      cmdCalc_Acc(form, "cmdCalc_Acc", "Analisi..."),
      fraZona(form, "fraZona", "ZONA SISMICA"),
      optZona{{{form, "optZona(0)", "Si", gruppoZona}, {form, "optZona(1)", "No", gruppoZona}}},
      cmdCAR_SISMICHE(form, "cmdCAR_SISMICHE", "Azioni sismiche..."),
      stato_(stato) {
  optTipo[0].SetValue(true);
  optZona[1].SetValue(true);
  cmbPutrella.SetIndex(kPrimaPutrella);
  cdCarichi[2].SetValue(kPesoPietra);
  ScegliTipo();
  ScegliZona();
}

Layout IngressiBalcone::Contents() {
  std::deque<FloatBox>& putrelle = misure[0].cdGeo;
  std::vector<Layout> righe(putrelle.begin(), putrelle.end());
  righe.emplace_back(cmbPutrella);
  return Column({Group(fraTipo, {optTipo[0], optTipo[1], optTipo[2]}),
                 Group(misure[0].fraGeo, {Fields(std::move(righe))}), misure[1].Contents(),
                 misure[2].Contents(),
                 Group(fraCarichi, {Fields({Row({cdCarichi[0], cmdCalc_Est}),
                                            Row({cdCarichi[1], cmdCalc_Acc}), cdCarichi[2]})}),
                 Group(fraZona, {Row({optZona[0], optZona[1], cmdCAR_SISMICHE})})});
}

void IngressiBalcone::TieEvents(const std::function<void()>& cambiati) {
  for (OptionButton& opt : optTipo)
    opt.onChange = [this, &opt, cambiati] {
      if (!opt.Value()) return;
      ScegliTipo();
      cambiati();
    };
  for (OptionButton& opt : optZona)
    opt.onChange = [this, &opt, cambiati] {
      if (!opt.Value()) return;
      ScegliZona();
      cambiati();
    };
  for (PannelloMisure& pannello : misure)
    for (FloatBox& misura : pannello.cdGeo) misura.onChange = cambiati;
  for (FloatBox& carico : cdCarichi) carico.onChange = cambiati;
  cmbPutrella.onChange = [this, cambiati] {
    ScegliTipo();
    cambiati();
  };
  cmdCalc_Est.onPress = [this] {
    ChiediCarico(stato_, CarichiEstremita(stato_, FrmStruttureCarichiEstremita::Cerca::Carico),
                 cdCarichi[0]);
  };
  cmdCalc_Acc.onPress = [this] { ChiediCarico(stato_, CarichiAccidentali(stato_), cdCarichi[1]); };
  cmdCAR_SISMICHE.onPress = [this, cambiati] {
    ChiediCarichiSismici(stato_, cmdCAR_SISMICHE);
    if (CarichiSismici(stato_).Confermato()) cambiati();
  };
}

void IngressiBalcone::ScegliTipo() {
  for (std::size_t i = 0; i < misure.size(); ++i) misure[i].fraGeo.SetVisible(optTipo[i].Value());
  lblModuli.SetVisible(optTipo[0].Value() && ModuloInDifetto(cmbPutrella.ShownText()));
}

void IngressiBalcone::ScegliZona() { cmdCAR_SISMICHE.SetEnabled(optZona[0].Value()); }

void IngressiBalcone::LeggiSuMensole(const PannelloMisure& pannello, DatiBalcone& dati) const {
  dati.t = pannello.Misura(1);
  dati.b = pannello.Misura(2);
  dati.Ls = pannello.Misura(3);
  dati.Lm = pannello.Misura(4);
  dati.pr = pannello.Misura(5);
  dati.Bm = pannello.Misura(6);
}

DatiBalcone IngressiBalcone::Leggi() const {
  DatiBalcone dati;
  dati.tipo = Tipo();
  const PannelloMisure& pannello = misure[static_cast<std::size_t>(dati.tipo)];
  switch (dati.tipo) {
    case TipoBalcone::Putrelle:
      LeggiSuMensole(pannello, dati);
      dati.putrella = cmbPutrella.ShownText();
      break;
    case TipoBalcone::Mensole:
      LeggiSuMensole(pannello, dati);
      dati.b0 = pannello.Misura(7);
      dati.hi = pannello.Misura(8);
      dati.he = pannello.Misura(9);
      break;
    case TipoBalcone::LastraSemplice:
      dati.lunghezza = pannello.Misura(1);
      dati.si = pannello.Misura(2);
      dati.se = pannello.Misura(3);
      dati.pr = pannello.Misura(4);
      dati.a = pannello.Misura(5);
      break;
  }
  dati.Pl = cdCarichi[0].Value();
  dati.qa = cdCarichi[1].Value();
  dati.gs = cdCarichi[2].Value();
  if (optZona[0].Value()) dati.sisma = SismaDelBalcone(CarichiSismici(stato_).Coefficienti());
  return dati;
}

}  // namespace orm
