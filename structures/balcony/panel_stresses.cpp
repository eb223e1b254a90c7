#include "structures/balcony/panel_stresses.h"

#include <array>
#include <cmath>
#include <utility>

#include "runtime/numbers.h"
#include "structures/balcony/form_stones.h"

namespace orm {
namespace {

// The element of the results that each cdOUT shows.
constexpr std::array kMostrati = {SigmaLastra,  TauLastra,  SigmaMensola,      TauMensola,
                                  SigmaAcciaio, TauAcciaio, IncrementoMuratura};
constexpr std::size_t kRigaPutrella = 2;  // row of the steel

// The stones of slab and brackets, each with its last choice, as long as the program runs.
struct PietreDelBalcone {
  std::array<FrmVerPietre, 2> form;
};

}  // namespace

PannelloTensioniBalcone::PannelloTensioniBalcone(Form& form, RunState& stato)
    : form_(form), stato_(stato) {
  for (FloatBox& risultato : cdOUT) risultato.SetReadOnly(true);
  cmbTipoDiFerro.SetIndex(0);
  ScegliAcciaio();
  MostraLimiti();
  cdOUT.back().SetUnit("Kg/cmq");
}

Layout PannelloTensioniBalcone::Materiali() {
  return Group(fraMateriali, {Fields({Row({lblMateriali.begin(), lblMateriali.end()}),
                                      Row({cdMaterialiS[0], cdMaterialiT[0], cdbMateriali[0]}),
                                      Row({cdMaterialiS[1], cdMaterialiT[1], cdbMateriali[1]}),
                                      Row({cdMaterialiS[2], cdMaterialiT[2], cmbTipoDiFerro})})});
}

Layout PannelloTensioniBalcone::Risultati(Label& esito) {
  return Group(fraRisultati,
               {Fields({Row({lblRisultati.begin(), lblRisultati.end()}), Row({cdOUT[0], cdOUT[1]}),
                        Row({cdOUT[2], cdOUT[3]}), Row({cdOUT[4], cdOUT[5]}), Row({cdOUT[6]})}),
                esito});
}

void PannelloTensioniBalcone::TieEvents(const std::function<void()>& cambiati) {
  for (std::size_t i = 0; i < cdMaterialiS.size(); ++i)
    cdMaterialiS[i].onChange = cdMaterialiT[i].onChange = [this, cambiati] {
      MostraLimiti();
      cambiati();
    };
  for (std::size_t i = 0; i < cdbMateriali.size(); ++i)
    cdbMateriali[i].onPress = [this, i] { ChiediPietra(i); };
  cmbTipoDiFerro.onChange = [this] { ScegliAcciaio(); };
}

void PannelloTensioniBalcone::Scegli(TipoBalcone tipo) {
  const std::array presenti = {true, tipo == TipoBalcone::Mensole, tipo == TipoBalcone::Putrelle};
  for (std::size_t i = 0; i < presenti.size(); ++i)
    for (FloatBox* campo : {&cdMaterialiS[i], &cdMaterialiT[i], &cdOUT[2 * i], &cdOUT[2 * i + 1]})
      campo->SetVisible(presenti[i]);
  cdbMateriali[1].SetVisible(presenti[1]);
  cmbTipoDiFerro.SetVisible(presenti[2]);
}

void PannelloTensioniBalcone::Azzera() {
  for (FloatBox& risultato : cdOUT) {
    risultato.SetValue(0);
    risultato.SetWarning(false);
  }
  MostraLimiti();
}

void PannelloTensioniBalcone::Mostra(const RisultatiBalcone& risultati) {
  for (std::size_t i = 0; i < cdOUT.size(); ++i) {
    const double valore = risultati[kMostrati[i]];
    cdOUT[i].SetValue(valore);
    cdOUT[i].SetShown(FormatPattern(valore, kModelloBalcone));
    cdOUT[i].SetWarning(Supera(risultati, i));
  }
}

std::vector<Spiegazione> PannelloTensioniBalcone::Spiegate(const RisultatiBalcone& risultati,
                                                           CateneBalcone perche) const {
  std::vector<Spiegazione> spiegate;
  for (const auto& [stabilita, titolo] :
       {std::pair{StabilitaLato, "Stabilità della lastra agli sbalzi laterali"},
        std::pair{StabilitaSporto, "Stabilità della lastra allo sporto sulle mensole"}})
    if (!perche[stabilita].empty())
      spiegate.push_back(Risultato(titolo, std::move(perche[stabilita])));
  for (std::size_t i = 0; i < kMostrati.size(); ++i) {
    Catena& catena = perche[kMostrati[i]];
    if (catena.empty()) continue;
    const bool muro = kMostrati[i] == IncrementoMuratura;
    if (!muro) {
      catena.back().note.push_back(std::string(Supera(risultati, i)
                                                   ? "SUPERA la tensione ammissibile, "
                                                   : "Non supera la tensione ammissibile, ") +
                                   CifraEsatta(Ammessa(i)) + " Kg/cmq");
    }
    const char* quale = muro ? "" : i % 2 == 0 ? ", σ" : ", τ";
    spiegate.push_back(Risultato(cdOUT[i].Caption() + quale, std::move(catena)));
  }
  return spiegate;
}

// Of the stress that a result is held against, in the order of cdOUT.
double PannelloTensioniBalcone::Ammessa(std::size_t mostrato) const {
  return (mostrato % 2 == 0 ? cdMaterialiS : cdMaterialiT)[mostrato / 2].Value();
}

// Behind each stress the one that it may reach, or is beyond.
void PannelloTensioniBalcone::MostraLimiti() {
  for (std::size_t i = 0; i < 2 * cdMaterialiS.size(); ++i)
    cdOUT[i].SetUnit((cdOUT[i].Warns() ? "> " : "≤ ") +
                     ShownNumber(Ammessa(i), cdMaterialiS[0].Limits()));
}

// The wall, shown last, is held against nothing.
bool PannelloTensioniBalcone::Supera(const RisultatiBalcone& risultati,
                                     std::size_t mostrato) const {
  if (kMostrati[mostrato] == IncrementoMuratura) return false;
  return std::fabs(risultati[kMostrati[mostrato]]) > Ammessa(mostrato);
}

bool PannelloTensioniBalcone::Supera(const RisultatiBalcone& risultati) const {
  for (std::size_t i = 0; i < kMostrati.size(); ++i)
    if (Supera(risultati, i)) return true;
  return false;
}

void PannelloTensioniBalcone::ChiediPietra(std::size_t pietra) {
  FrmVerPietre& form = stato_.memoria.The<PietreDelBalcone>().form[pietra];
  form.Presenta(stato_.player);
  if (form.Confermato()) {
    cdMaterialiS[pietra].SetValue(form.Sigma());
    cdMaterialiT[pietra].SetValue(form.Tau());
  }
  form_.MoveFocus(cdMaterialiS[pietra]);
}

void PannelloTensioniBalcone::ScegliAcciaio() {
  const Tensioni ammesse = TensioniAcciaio(cmbTipoDiFerro.ShownText());
  cdMaterialiS[kRigaPutrella].SetValue(ammesse.sigma);
  cdMaterialiT[kRigaPutrella].SetValue(ammesse.tau);
}

}  // namespace orm
