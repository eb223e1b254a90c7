#include "structures/truss_slab/panel_views.h"

#include <cstddef>
#include <string>
#include <vector>

#include "runtime/numbers.h"
#include "structures/numbered_controls.h"
#include "structures/truss_slab/drawing.h"

namespace orm {
namespace {

constexpr std::array kEtichette = {"Taglio max  [    Kg    ]",
                                   "Momento incastro SIN  [ Kg x m ]",
                                   "Momento incastro DEX  [ Kg x m ]",
                                   "Momento mezzeria  [ Kg x m ]",
                                   "INCASTRO SIN  : Cls inf. sez. piena           [Kg/cmq] ",
                                   "INCASTRO SIN  : Cls inf. travetto             [Kg/cmq] ",
                                   "INCASTRO SIN  : Acciaio sup. sez. piena [Kg/cmq] ",
                                   "INCASTRO SIN  : Acciaio sup. travetto     [Kg/cmq] ",
                                   "INCASTRO DEX  : Acciaio sup. sez. piena [Kg/cmq] ",
                                   "INCASTRO DEX  : Acciaio sup. travetto     [Kg/cmq] ",
                                   "INCASTRO DEX  : Cls inf.  travetto             [Kg/cmq] ",
                                   "Tensione tangenziale max  cls [Kg/cmq]",
                                   "INCASTRO DEX  : Cls inf. sez. piena           [Kg/cmq] ",
                                   "MEZZERIA     :  Tensione acciaio inf.      [Kg/cmq]",
                                   "MEZZERIA     :  Tensione cls sup.           [Kg/cmq]",
                                   "Lunghezza zona piena a SIN",
                                   "Lunghezza zona piena a DEX"};
constexpr std::size_t kPrimaTensione = 5, kUltimaTensione = 15;
constexpr int kTangenziale = 12, kMezzeriaAcciaio = 14, kMezzeriaCls = 15;
constexpr std::array kSollecitazioni = {1, 2, 3, 4};
constexpr std::array kZonePiene = {16, 17};
constexpr std::size_t kFerriCampata = 3;
// Headings of the tables, one after the other.
constexpr std::array kColonne = {"",          "LUNGHEZZA", "DIAMETRO",  "",         "LUNGHEZZA",
                                 "DIAMETRO",  "",          "CALCOLATE", "",         "AMMESSE",
                                 "CALCOLATE", "",          "AMMESSE",   "CALCOLATE"};
// Concrete and steel of the solid section, then of the ribs.
constexpr std::array<int, 4> kSin = {5, 7, 6, 8}, kDex = {13, 9, 11, 10};

enum Vista { Schema, Disegno, Ferri, Sollecitazioni, Tensioni };

constexpr const char* kDueDecimali = "###0.00";

TextOptions Risultato(const char* unita = "") {
  return {.readOnly = true, .width = 7, .unit = unita, .figure = true};
}

}  // namespace

RigaRisultato::RigaRisultato(Form& form, std::size_t indice, const char* etichetta, bool tensione)
    : cdRisultati(form, NomeIndicizzato("cdRisultati", indice), etichetta, Risultato()) {
  if (tensione)
    cdVAmmessi.emplace(form, NomeIndicizzato("cdVAmmessi", indice), etichetta, Risultato());
}

VisteSolaio::VisteSolaio(Form& form)
    : fraVisualizza(form, "fraVisualizza", "VISUALIZZA RISULTATI"),
      optVisualizza{{{form, "optVisualizza(0)", "Schema input dati", gruppo},
                     {form, "optVisualizza(1)", "Disegno armature", gruppo},
                     {form, "optVisualizza(2)", "Tabella Ferri", gruppo},
                     {form, "optVisualizza(3)", "Sollecitazioni ", gruppo},
                     {form, "optVisualizza(4)", "Tensioni", gruppo}}},
      fraDisegno(form, "fraDisegno", "DISEGNO SCHEMA ARMATURE"),
      Lavagna(form, "Lavagna", kLarghezzaDisegno, kAltezzaDisegno, kPuntiDisegno),
      fraFerri(form, "fraFerri", "DISPOSIZIONE FERRI E LATERIZI"),
      cdLunghezze{{{form, "cdLunghezze(0)", "Ferro aggiuntivo in campata", Risultato("ml")},
                   {form, "cdLunghezze(1)", "Ferro integrativo n.1 in campata", Risultato("ml")},
                   {form, "cdLunghezze(2)", "Ferro integrativo n.2 in campata", Risultato("ml")},
                   {form, "cdLunghezze(3)", "Moncone lungo superiore SIN", Risultato("ml")},
                   {form, "cdLunghezze(4)", "Moncone lungo superiore DEX", Risultato("ml")},
                   {form, "cdLunghezze(5)", "Moncone corto superiore SIN", Risultato("ml")},
                   {form, "cdLunghezze(6)", "Moncone corto superiore DEX", Risultato("ml")}}},
      fraSollecitazioni(form, "fraSollecitazioni", "SOLLECITAZIONI "),
      fraTensioni(form, "fraTensioni", "TENSIONI ") {
  for (std::size_t i = 0; i < kColonne.size(); ++i)
    lblColonne.emplace_back(form, NomeIndicizzato("lblColonne", i), kColonne[i]);
  for (std::size_t i = 0; i < cdLunghezze.size(); ++i)
    lblDiametri.emplace_back(form, NomeIndicizzato("lblDiametri", i));
  for (std::size_t i = 0; i < kEtichette.size(); ++i)
    righe.emplace_back(form, i + 1, kEtichette[i],
                       i + 1 >= kPrimaTensione && i + 1 <= kUltimaTensione);
  for (const int zona : kZonePiene) Calcolato(zona).SetUnit("cm");
}

// A table under its headings; these stand in `lblColonne` from `primaColonna` on.
Layout VisteSolaio::Tabella(std::size_t primaColonna, std::vector<Layout> linee) {
  const std::size_t colonne = linee.front().children.size() + 1;
  std::vector<Layout> intestazione;
  for (std::size_t i = 0; i < colonne; ++i) intestazione.emplace_back(lblColonne[primaColonna + i]);
  linee.insert(linee.begin(), Row(std::move(intestazione)));
  return Fields(std::move(linee));
}

Layout VisteSolaio::TabellaTensioni(std::size_t primaColonna, const std::vector<int>& numeri) {
  std::vector<Layout> lines;
  for (const int numero : numeri) lines.push_back(Row({Ammesso(numero), Calcolato(numero)}));
  return Tabella(primaColonna, std::move(lines));
}

Layout VisteSolaio::Contents() {
  std::vector<Layout> viste, sollecitazioni, ferri, monconi;
  for (OptionButton& opt : optVisualizza) viste.emplace_back(opt);
  for (std::size_t i = 0; i < cdLunghezze.size(); ++i)
    (i < kFerriCampata ? ferri : monconi).push_back(Row({cdLunghezze[i], lblDiametri[i]}));
  for (const int numero : kZonePiene) ferri.push_back(Row({Calcolato(numero)}));
  for (const int numero : kSollecitazioni) sollecitazioni.push_back(Row({Calcolato(numero)}));
  return Column(
      {Group(fraVisualizza, {Row(std::move(viste))}), Group(fraDisegno, {Lavagna}),
       Group(fraFerri, {Row({Tabella(0, std::move(ferri)), Tabella(3, std::move(monconi))})}),
       Group(fraSollecitazioni, {Tabella(6, std::move(sollecitazioni))}),
       Group(fraTensioni,
             {Row({TabellaTensioni(
                       8, {kMezzeriaCls, kMezzeriaAcciaio, kSin[0], kSin[2], kSin[1], kSin[3]}),
                   TabellaTensioni(11, {kDex[0], kDex[2], kDex[1], kDex[3], kTangenziale})})})});
}

void VisteSolaio::TieEvents() {
  for (OptionButton& opt : optVisualizza)
    opt.onChange = [this, &opt] {
      if (opt.Value()) ScegliVista();
    };
  optVisualizza[Schema].SetValue(true);
}

void VisteSolaio::ScegliVista() {
  const int vista = gruppo.Chosen();
  fraDisegno.SetVisible(vista == Schema || vista == Disegno);
  fraFerri.SetVisible(vista == Ferri);
  fraSollecitazioni.SetVisible(vista == Sollecitazioni);
  fraTensioni.SetVisible(vista == Tensioni);
  if (vista == Schema) DisegnaSchemaSolaio(Lavagna);
  if (vista == Disegno && progettato_) DisegnaArmatureSolaio(Lavagna, dati_, risultati_);
  if (vista == Disegno && !progettato_) Lavagna.Clear();
}

void VisteSolaio::Azzera() {
  progettato_ = false;
  for (RigaRisultato& riga : righe) {
    riga.cdRisultati.SetText("");
    if (riga.cdVAmmessi) riga.cdVAmmessi->SetText("");
  }
  for (TestoBox& lunghezza : cdLunghezze) lunghezza.SetText("");
  for (Label& diametro : lblDiametri) diametro.SetText("");
  ScegliVista();
}

void VisteSolaio::ScriviTensione(int numero, double valore, double ammessa) {
  Calcolato(numero).SetText(FormatPattern(valore, kDueDecimali));
  Ammesso(numero).SetText(FormatPattern(ammessa, kDueDecimali));
}

void VisteSolaio::ScriviAppoggio(const Appoggio& appoggio, const std::array<int, 4>& numeri) {
  const Ammissibili& ammissibili = risultati_.ammissibili;
  ScriviTensione(numeri[0], appoggio.clsPiena, ammissibili.cls);
  ScriviTensione(numeri[1], appoggio.acciaioPiena, ammissibili.acciaio);
  ScriviTensione(numeri[2], appoggio.clsNervata, ammissibili.cls);
  ScriviTensione(numeri[3], appoggio.acciaioNervata, ammissibili.acciaio);
}

void VisteSolaio::ScriviFerri() {
  const RisultatiSolaioT& r = risultati_;
  const auto barra = [](const Moncone& m) { return Barra{m.diametro, m.Lunghezza()}; };
  const std::array<Barra, 7> barre = {r.campata[0],          r.campata[1],
                                      r.campata[2],          barra(r.sinistra.lungo),
                                      barra(r.destra.lungo), barra(r.sinistra.corto),
                                      barra(r.destra.corto)};
  for (std::size_t i = 0; i < barre.size(); ++i) {
    if (barre[i].diametro == 0) continue;
    cdLunghezze[i].SetText(FormatPattern(barre[i].lunghezza, kDueDecimali));
    lblDiametri[i].SetText("Ø " + NumberText(barre[i].diametro));
  }
  for (const int zona : kZonePiene)
    Calcolato(zona).SetText(FormatPattern(r.zonaPiena * 100, "##0.0"));
}

void VisteSolaio::Mostra(const DatiSolaioT& dati, const RisultatiSolaioT& risultati) {
  dati_ = dati;
  risultati_ = risultati;
  progettato_ = true;
  const std::array sollecitazioni = {risultati.taglio, risultati.sinistra.momento,
                                     risultati.destra.momento, risultati.momentoMezzeria};
  for (std::size_t i = 0; i < sollecitazioni.size(); ++i)
    Calcolato(kSollecitazioni[i]).SetText(FormatPattern(sollecitazioni[i], kDueDecimali));
  ScriviAppoggio(risultati.sinistra, kSin);
  ScriviAppoggio(risultati.destra, kDex);
  ScriviTensione(kMezzeriaCls, risultati.clsMezzeria, risultati.ammissibili.cls);
  ScriviTensione(kMezzeriaAcciaio, risultati.acciaioMezzeria, risultati.ammissibili.acciaio);
  ScriviTensione(kTangenziale, risultati.tau, risultati.ammissibili.taglio);
  ScriviFerri();
  optVisualizza[Disegno].SetValue(true);
  ScegliVista();
}

}  // namespace orm
