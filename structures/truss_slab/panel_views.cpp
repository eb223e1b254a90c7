#include "structures/truss_slab/panel_views.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

#include "dialogs/data_forms/result_form.h"
#include "runtime/numbers.h"
#include "structures/section_statement.h"
#include "structures/structural_report.h"

namespace orm {
namespace {

// As the table has them.
std::array<Barra, 7> BarreDi(const RisultatiSolaioT& r) {
  const auto barra = [](const Moncone& m) { return Barra{m.diametro, m.Lunghezza(), m.passi}; };
  return {r.campata[0],          r.campata[1],
          r.campata[2],          barra(r.sinistra.lungo),
          barra(r.destra.lungo), barra(r.sinistra.corto),
          barra(r.destra.corto)};
}

}  // namespace

PannelloVisteSolaio::PannelloVisteSolaio(Form& form) : form_(form) {
  fraVisualizza.KeepOffPaper();
  for (OptionButton& opt : optVisualizza) {
    opt.KeepOffPaper();
    opt.onChange = [this, &opt] {
      if (opt.Value()) ScegliVista();
    };
  }
  optVisualizza[Schema].SetValue(true);
  Lavagna.SetStretches(true);
  Lavagna.SetOtherViews({&fraFerri, &fraSollecitazioni, &fraTensioni});
}

// A table under its headings; these stand in `lblColonne` from `primaColonna` on.
Layout PannelloVisteSolaio::Tabella(std::size_t primaColonna, std::vector<Layout> linee) {
  const std::size_t colonne = linee.front().children.size() + 1;
  std::vector<Layout> intestazione;
  for (std::size_t i = 0; i < colonne; ++i) intestazione.emplace_back(lblColonne[primaColonna + i]);
  linee.insert(linee.begin(), Row(std::move(intestazione)));
  return Fields(std::move(linee));
}

Layout PannelloVisteSolaio::TabellaTensioni(std::size_t primaColonna,
                                            std::initializer_list<Valore> tensioni) {
  std::vector<Layout> linee;
  for (const Valore tensione : tensioni)
    linee.push_back(Row({cdVAmmessi[tensione - SinClsPiena], cdTensioni[tensione - SinClsPiena]}));
  return Tabella(primaColonna, std::move(linee));
}

Layout PannelloVisteSolaio::Contents(Label& esito) {
  constexpr std::size_t kCampata = 3;  // bars in the span, before the stubs
  std::vector<Layout> campata, monconi, sollecitazioni, scelte;
  for (std::size_t i = 0; i < cdLunghezze.size(); ++i)
    (i < kCampata ? campata : monconi).push_back(Row({cdLunghezze[i], lblDiametri[i]}));
  for (TestoBox& zona : cdZonePiene) campata.push_back(Row({zona}));
  for (TestoBox& valore : cdSollecitazioni) sollecitazioni.push_back(Row({valore}));
  scelte.assign(optVisualizza.begin(), optVisualizza.end());
  return Column(
      {Row({Group(fraVisualizza, {Row(std::move(scelte))}), Group(fraEsito, {esito})}),
       Views({Group(fraDisegno, {Lavagna}),
              Group(fraFerri,
                    {Row({Tabella(0, std::move(campata)), Tabella(3, std::move(monconi))})}),
              Group(fraSollecitazioni, {Tabella(6, std::move(sollecitazioni))}),
              Group(fraTensioni,
                    {Row({TabellaTensioni(8, {MezzeriaCls, MezzeriaAcciaio, SinClsPiena,
                                              SinClsTravetto, SinAcciaioPiena, SinAcciaioTravetto}),
                          TabellaTensioni(11, {DexClsPiena, DexClsTravetto, DexAcciaioPiena,
                                               DexAcciaioTravetto, Tangenziale})})})})});
}

void PannelloVisteSolaio::ScegliVista() {
  const int vista = gruppo.Chosen();
  fraDisegno.SetVisible(vista == Schema || vista == Disegno);
  fraFerri.SetVisible(vista == Ferri);
  fraSollecitazioni.SetVisible(vista == Sollecitazioni);
  fraTensioni.SetVisible(vista == Tensioni);
  if (vista == Schema) DisegnaSchemaSolaio(Lavagna);
  if (vista == Disegno && progetto_)
    DisegnaArmatureSolaio(Lavagna, progetto_->dati, progetto_->risultati);
  if (vista != Disegno || progetto_) return;
  Lavagna.Clear();
  if (cambiati_) Lavagna.SetNotice(FormDiCalcolo::kDatiCambiati);
}

void PannelloVisteSolaio::Azzera() {
  progetto_.reset();
  for (Schiera<TestoBox>* valori :
       {&cdLunghezze, &cdSollecitazioni, &cdTensioni, &cdVAmmessi, &cdZonePiene})
    for (TestoBox& valore : *valori) valore.SetText("");
  for (Label& diametro : lblDiametri) diametro.SetText("");
  ScegliVista();
}

void PannelloVisteSolaio::SegnaCambiati() {
  cambiati_ = true;
  ScegliVista();
}

bool PannelloVisteSolaio::EScelta(const Control& control) const {
  return std::ranges::any_of(gruppo.Options(),
                             [&](const OptionButton* opt) { return opt == &control; });
}

void PannelloVisteSolaio::Scrivi(Valore tensione, double valore, double ammessa) {
  cdTensioni[tensione - SinClsPiena].SetText(FormatPattern(valore, kDueDecimali));
  cdVAmmessi[tensione - SinClsPiena].SetText(FormatPattern(ammessa, kDueDecimali));
}

void PannelloVisteSolaio::ScriviFerri(const RisultatiSolaioT& r) {
  const auto barre = BarreDi(r);
  for (std::size_t i = 0; i < barre.size(); ++i) {
    const bool assente = barre[i].diametro == 0;
    cdLunghezze[i].SetText(assente ? "" : FormatPattern(barre[i].lunghezza, kDueDecimali));
    lblDiametri[i].SetText(assente ? "assente" : "Ø " + NumberText(barre[i].diametro));
  }
  for (TestoBox& zona : cdZonePiene) zona.SetText(FormatPattern(r.zonaPiena * 100, "##0.0"));
}

void PannelloVisteSolaio::Mostra(const ProgettoSolaioT& progetto) {
  progetto_ = progetto;
  cambiati_ = false;
  const RisultatiSolaioT& r = progetto_->risultati;
  const Ammissibili& ammissibili = r.ammissibili;
  const std::array sollecitazioni = {r.taglio, r.sinistra.momento, r.destra.momento,
                                     r.momentoMezzeria};
  for (std::size_t i = 0; i < sollecitazioni.size(); ++i)
    cdSollecitazioni[i].SetText(FormatPattern(sollecitazioni[i], kDueDecimali));
  Scrivi(MezzeriaCls, r.clsMezzeria, ammissibili.cls);
  Scrivi(MezzeriaAcciaio, r.acciaioMezzeria, ammissibili.acciaio);
  Scrivi(SinClsPiena, r.sinistra.clsPiena, ammissibili.cls);
  Scrivi(SinClsTravetto, r.sinistra.clsNervata, ammissibili.cls);
  Scrivi(SinAcciaioPiena, r.sinistra.acciaioPiena, ammissibili.acciaio);
  Scrivi(SinAcciaioTravetto, r.sinistra.acciaioNervata, ammissibili.acciaio);
  Scrivi(DexClsPiena, r.destra.clsPiena, ammissibili.cls);
  Scrivi(DexClsTravetto, r.destra.clsNervata, ammissibili.cls);
  Scrivi(DexAcciaioPiena, r.destra.acciaioPiena, ammissibili.acciaio);
  Scrivi(DexAcciaioTravetto, r.destra.acciaioNervata, ammissibili.acciaio);
  Scrivi(Tangenziale, r.tau, ammissibili.taglio);
  ScriviFerri(r);
  optVisualizza[Disegno].SetValue(true);
  ScegliVista();
}

std::vector<Spiegazione> PannelloVisteSolaio::Spiegate() const {
  const RisultatiSolaioT& r = progetto_->risultati;
  const TensioniAmmissibili ammesse{r.ammissibili.acciaio, r.ammissibili.cls};
  std::vector<Spiegazione> spiegate;
  const auto di = [&](const Control& campo, Catena passi) {
    spiegate.push_back(Risultato(campo.Caption(), std::move(passi)));
  };
  di(cdSollecitazioni[0], r.passiTaglio);
  di(cdSollecitazioni[1], r.sinistra.passiMomento);
  di(cdSollecitazioni[2], r.destra.passiMomento);
  di(cdSollecitazioni[3], r.passiMezzeria);
  // The stresses of a section: those of its compressed concrete and of its stretched steel.
  const auto sezione = [&](const SezioneVerificata& s, const Catena& passi, Valore cls,
                           Valore acciaio) {
    const CateneFlessione catene = SpiegaSezioneT(s.dati, s.risultati, ammesse, kDueDecimali);
    const bool sotto = s.dati.M < 0;
    for (const auto& [valore, quale] :
         {std::pair{cls, sotto ? 2 : 1}, std::pair{acciaio, sotto ? 3 : 4}}) {
      Catena catena = passi;
      for (const std::size_t parte : {std::size_t{0}, static_cast<std::size_t>(quale)})
        catena.insert(catena.end(), catene[parte].begin(), catene[parte].end());
      di(cdTensioni[valore - SinClsPiena], std::move(catena));
    }
  };
  sezione(r.mezzeria, r.passiMezzeria, MezzeriaCls, MezzeriaAcciaio);
  for (const auto& [a, clsP, acciaioP, clsT, acciaioT] :
       {std::tuple{&r.sinistra, SinClsPiena, SinAcciaioPiena, SinClsTravetto, SinAcciaioTravetto},
        std::tuple{&r.destra, DexClsPiena, DexAcciaioPiena, DexClsTravetto, DexAcciaioTravetto}}) {
    sezione(a->piena, a->passiMomento, clsP, acciaioP);
    sezione(a->nervata, a->passiNervata, clsT, acciaioT);
  }
  di(cdTensioni[Tangenziale - SinClsPiena], r.passiTau);
  const auto barre = BarreDi(r);
  for (std::size_t i = 0; i < barre.size(); ++i)
    if (barre[i].diametro != 0) di(cdLunghezze[i], barre[i].passi);
  return spiegate;
}

}  // namespace orm
