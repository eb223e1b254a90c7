#include "structures/sections/form_bending.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "structures/message_boxes.h"

namespace orm {
namespace {

// The materials of every example: steel FeB44k, concrete Rck 300; kg/cmq.
constexpr double kAcciaioEsempio = 2600, kClsEsempio = 97.5;

// A long heading stands in two lines.
std::string Intestazione(std::string testo) {
  constexpr std::size_t kLongest = 20;
  if (testo.size() > kLongest) testo[testo.rfind(' ', kLongest)] = '\n';
  return testo;
}

}  // namespace

PannelloArmature::PannelloArmature(Form& form, std::size_t primo,
                                   const std::vector<std::string>& righe, const char* riga,
                                   const std::string& distanza)
    : lblRiga(form, NomeIndicizzato("lblRiga", primo), riga),
      lblFerri(form, NomeIndicizzato("lblFerri", primo), "Ferri"),
      lblDistanza(form, NomeIndicizzato("lblDistanza", primo), Intestazione(distanza)),
      CasellaFerri(form, "CasellaFerri", primo, righe),
      Distanza(form, "Distanza", primo, std::vector(righe.size(), distanza), kLunghezza) {}

Layout PannelloArmature::Contents() {
  std::vector<Layout> lines{Row({lblRiga, lblFerri, lblDistanza})};
  for (std::size_t i = 0; i < CasellaFerri.size(); ++i)
    lines.push_back(Row({CasellaFerri[i], Distanza[i]}));
  return Fields(std::move(lines));
}

void PannelloArmature::Scrivi(std::size_t riga, const char* ferri, double distanza) {
  CasellaFerri[riga].SetText(ferri);
  Distanza[riga].SetValue(distanza);
}

FormFlessione::FormFlessione(std::string nome, std::string titolo, RunState& stato,
                             const NoteFlessione& note, const std::vector<std::string>& forme)
    : FormRiprendibile(std::move(nome), std::move(titolo), stato), note_(note) {
  for (std::size_t i = 0; i < forme.size(); ++i) {
    OptionButton& scelta = Option.emplace_back(
        *this, "Option" + NumberText(static_cast<double>(i) + 1), forme[i], gruppo);
    scelta.onChange = [this, i, &scelta] {
      if (scelta.Value()) Scegli(i);
    };
  }
  for (FloatBox& risultato : cdOUT) risultato.SetReadOnly(true);
  CD_12.onChange = CD_13.onChange = [this] { MostraLimiti(); };
  MostraLimiti();
  CD_01.onChange = [this] {
    Azzera();
    MostraLimiti();
    Label_NOTA.SetText("POSITIVO se tende le fibbre inferiori");
  };
  ComCalcola.onPress = [this] { Calcola(); };
  ComEsci.onPress = [this] { Close(); };
}

void FormFlessione::OnOpen() {
  FormRiprendibile::OnOpen();
  Label_NOTA.SetText(note_.benvenuto);
}

// An example may leave the results of another shape, whose drawing has gone with what was said of
// it.
void FormFlessione::Scegli(std::size_t forma) {
  ScegliForma(forma);
  if (std::ranges::any_of(cdOUT, [](const FloatBox& r) { return r.Value() != 0; }))
    Label_NOTA.SetText(note_.segni);
  else
    SenzaRisultati();
  MostraLimiti();
}

void FormFlessione::Disponi(std::vector<Layout> geometria, std::vector<Layout> armature) {
  SetContent(
      Column({Row({Column({Group(fraTipo, {Row({Option.begin(), Option.end()})}),
                           Column({Group(fraSollecitazioni, {Fields({CD_01})}),
                                   Group(fraMateriali, {Fields({CD_12, CD_13})})}),
                           Group(fraGeometria, {Fields(std::move(geometria))}),
                           Group(fraRisultati, {Fields({cdOUT.begin(), cdOUT.end()}), lblEsito})}),
                   Column({Group(fraArmature, std::move(armature)), Group(fraNote, {Label_NOTA}),
                           Lavagna})}),
              Buttons({ComCalcola, cmdSPIEGA, cmdSALVA, cmdAPRI, ComEsci})}));
}

void FormFlessione::Avvisa(const std::string& testo) { stato_.player.Ask(AvvisoVerifica(testo)); }

bool FormFlessione::SenzaMomento() {
  if (Momento() != 0) return false;
  Avvisa("IL MOMENTO FLETTENTE È NULLO");
  return true;
}

void FormFlessione::ScriviEsempio(double momento) {
  CD_12.SetValue(kAcciaioEsempio);
  CD_13.SetValue(kClsEsempio);
  CD_01.SetValue(momento);
}

// The two fields of steel show its extreme stresses, whatever their captions say.
void FormFlessione::Mostra(const RisultatiFlessione& r, bool verificata, CateneFlessione perche) {
  const bool positivo = Momento() > 0;
  const std::array valori = {r.asse, r.clsSup, r.clsInf, positivo ? r.minimo : r.massimo,
                             positivo ? r.massimo : r.minimo};
  std::vector<Spiegazione> spiegazioni;
  for (std::size_t i = 0; i < cdOUT.size(); ++i) {
    cdOUT[i].SetValue(valori[i]);
    cdOUT[i].SetShown(FormatPattern(valori[i], i == 0 ? kModelloAsse : kModelloTensione));
    spiegazioni.push_back(Risultato(cdOUT[i].Caption(), std::move(perche[i])));
    const bool provato = i != 0 && i != NonProvato();
    cdOUT[i].SetWarning(provato && std::fabs(valori[i]) >= Ammesso(i));
  }
  Calcolato(verificata ? kVerificata : kNonVerificata, verificata, std::move(spiegazioni));
  MostraLimiti();
  Label_NOTA.SetText(std::string(note_.segni) + (verificata ? "" : note_.nonVerificata));
}

void FormFlessione::Azzera() {
  for (FloatBox& risultato : cdOUT) {
    risultato.SetValue(0);
    risultato.SetWarning(false);
  }
}

// Behind each stress the one that it must not reach, or has reached.
void FormFlessione::MostraLimiti() {
  for (std::size_t i = 1; i < cdOUT.size(); ++i) {
    const bool provato = i != NonProvato();
    cdOUT[i].SetHint(provato ? "" : "L'acciaio compresso non entra nel giudizio.");
    if (provato)
      cdOUT[i].SetUnit((cdOUT[i].Warns() ? "≥ " : "< ") + ShownNumber(Ammesso(i), kTensione));
    else
      cdOUT[i].SetUnit("esclusa", true);
  }
}

void FormFlessione::ADatiCambiati() {
  MostraLimiti();
  if (Lavagna.HasVerdict()) Lavagna.SetNotice(kDatiCambiati);
}

}  // namespace orm
