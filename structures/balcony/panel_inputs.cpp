#include "structures/balcony/panel_inputs.h"

#include <string>
#include <vector>

#include "runtime/numbers.h"
#include "structures/loads/form_edge.h"
#include "structures/loads/form_seismic.h"
#include "structures/loads/form_service.h"

namespace orm {
namespace {

using D = DatiBalcone;

constexpr VoceMisura kSpessore{"Spessore della lastra [m]", "s", &D::t},
    kLarghezza{"Larghezza della lastra [m]", "La", &D::b},
    kSbalzi{"Lunghezza sbalzi laterali [m]", "Ls", &D::Ls},
    kCampata{"Luce campata centrale [m]", "Lm", &D::Lm},
    kPresa{"Presa mensola nella muratura [m]", "Pm", &D::pr},
    kLunghezza{"Lunghezza mensola  [m]", "Bm", &D::Bm};

constexpr std::array kMisurePutrelle = {kSpessore, kLarghezza, kSbalzi,
                                        kCampata,  kPresa,     kLunghezza};
constexpr std::array kMisureMensole = {
    kSpessore,
    kLarghezza,
    kSbalzi,
    kCampata,
    kPresa,
    kLunghezza,
    VoceMisura{"Base mensola [m]", "Ba", &D::b0},
    VoceMisura{"Altezza mensola all'incastro [m]", "Hi", &D::hi},
    VoceMisura{"Altezza mensola all'estremità [m]", "He", &D::he}};
constexpr std::array kMisureLastra = {VoceMisura{"Lunghezza lastra [m]", "L", &D::lunghezza},
                                      VoceMisura{"Spessore lastra all'incastro [m]", "Hi", &D::si},
                                      VoceMisura{"Spessore lastra all'estremità [m]", "He", &D::se},
                                      VoceMisura{"Presa lastra nella muratura [m]", "Pm", &D::pr},
                                      VoceMisura{"Aggetto lastra  [m]", "La", &D::a}};
constexpr std::array<std::span<const VoceMisura>, 3> kMisure = {kMisurePutrelle, kMisureMensole,
                                                                kMisureLastra};

constexpr double kPesoPietra = 2700;  // kg/mc, of granite and marble: a customary value
constexpr int kPrimaPutrella = 4;     // 160 mm

}  // namespace

PannelloMisure::PannelloMisure(Form& form, TipoBalcone tipo)
    : voci(kMisure[static_cast<std::size_t>(tipo)]),
      fraGeo(form, "fraGeo" + NumberText(static_cast<int>(tipo) + 1),
             kTipiBalcone[static_cast<std::size_t>(tipo)]) {
  const std::string nome = "cdGeo" + NumberText(static_cast<int>(tipo) + 1);
  for (const VoceMisura& voce : voci)
    cdGeo.emplace_back(form, NomeIndicizzato(nome, cdGeo.size() + 1), voce.etichetta,
                       NumberLimits{.most = 99.999, .decimals = 3, .unit = voce.lettera});
}

void PannelloMisure::Leggi(DatiBalcone& dati) const {
  for (std::size_t i = 0; i < voci.size(); ++i) dati.*voci[i].misura = cdGeo[i].Value();
}

PannelloDatiBalcone::PannelloDatiBalcone(Form& form, RunState& stato) : form_(form), stato_(stato) {
  optTipo[0].SetValue(true);
  optNo.SetValue(true);
  cmbPutrella.SetIndex(kPrimaPutrella);
  cdPietra.SetValue(kPesoPietra);
  Aggiorna();
}

Layout PannelloDatiBalcone::Contents() {
  std::vector<Layout> geometrie;
  for (PannelloMisure& pannello : misure) {
    std::vector<Layout> righe(pannello.cdGeo.begin(), pannello.cdGeo.end());
    if (&pannello == &misure[0]) righe.emplace_back(cmbPutrella);
    geometrie.push_back(Group(pannello.fraGeo, {Fields(std::move(righe))}));
  }
  std::vector<Layout> gruppi{Group(fraTipo, {optTipo.begin(), optTipo.end()}),
                             Views(std::move(geometrie))};
  gruppi.push_back(Group(fraCarichi, {Fields({Row({cdBordo, cmdCalc_Est}),
                                              Row({cdRipartito, cmdCalc_Acc}), cdPietra})}));
  gruppi.push_back(Group(fraZona, {Row({optSi, optNo, cmdCAR_SISMICHE})}));
  return Column(std::move(gruppi));
}

void PannelloDatiBalcone::TieEvents(const std::function<void()>& cambiati,
                                    const std::function<void()>& altroTipo) {
  for (OptionGroup* gruppo : {&gruppoTipo, &gruppoZona})
    for (OptionButton* opt : gruppo->Options())
      opt->onChange = [this, gruppo, opt, cambiati, altroTipo] {
        if (!opt->Value()) return;
        if (gruppo == &gruppoTipo) altroTipo();
        Aggiorna();
        cambiati();
      };
  cmbPutrella.onChange = [this, cambiati] {
    Aggiorna();
    cambiati();
  };
  for (PannelloMisure& pannello : misure)
    for (FloatBox& misura : pannello.cdGeo) misura.onChange = cambiati;
  for (FloatBox* carico : {&cdBordo, &cdRipartito, &cdPietra}) carico->onChange = cambiati;
  cmdCalc_Est.onPress = [this] {
    ChiediCarico(stato_, CarichiEstremita(stato_, FrmStruttureCarichiEstremita::Cerca::Carico),
                 cdBordo);
  };
  cmdCalc_Acc.onPress = [this] { ChiediCarico(stato_, CarichiAccidentali(stato_), cdRipartito); };
  cmdCAR_SISMICHE.onPress = [this, cambiati] {
    ChiediCarichiSismici(stato_, cmdCAR_SISMICHE, cambiati);
  };
}

void PannelloDatiBalcone::Aggiorna() {
  for (std::size_t i = 0; i < misure.size(); ++i) misure[i].fraGeo.SetVisible(optTipo[i].Value());
  lblModuli.SetVisible(Tipo() == TipoBalcone::Putrelle && ModuloInDifetto(cmbPutrella.ShownText()));
  cmdCAR_SISMICHE.SetEnabled(optSi.Value());
}

DatiBalcone PannelloDatiBalcone::Leggi() const {
  DatiBalcone dati;
  dati.tipo = Tipo();
  misure[static_cast<std::size_t>(dati.tipo)].Leggi(dati);
  if (dati.tipo == TipoBalcone::Putrelle) dati.putrella = cmbPutrella.ShownText();
  dati.Pl = cdBordo.Value();
  dati.qa = cdRipartito.Value();
  dati.gs = cdPietra.Value();
  if (optSi.Value()) dati.sisma = SismaDelBalcone(CarichiSismici(stato_).Coefficienti());
  return dati;
}

}  // namespace orm
