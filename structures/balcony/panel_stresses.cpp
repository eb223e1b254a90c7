#include "structures/balcony/panel_stresses.h"

#include <cmath>
#include <limits>

#include "runtime/numbers.h"
#include "structures/balcony/form_stones.h"

namespace orm {
namespace {

constexpr std::array kElementi = {"Pietra lastra", "Pietra mensole ", "Acciaio"};
constexpr const char *kSigma = "σ  [Kg/cmq]", *kTau = "τ  [Kg/cmq]";

// The two elements of the results that belong to a material.
constexpr std::array<std::array<std::size_t, 2>, 3> kElementiDi = {
    {{SigmaLastra, TauLastra}, {SigmaMensola, TauMensola}, {SigmaAcciaio, TauAcciaio}}};

const NumberLimits kAmmessa{.most = 9999.99, .decimals = 2};
const NumberLimits kCalcolata{.least = -9999999.9, .most = 9999999.9, .decimals = 1};

// The stones of slab and brackets, each with its last choice, as long as the program runs.
struct PietreDelBalcone {
  std::array<FrmVerPietre, 2> form;
};

}  // namespace

TensioniBalcone::TensioniBalcone(Form& form, RunState& stato)
    : fraMateriali(form, "fraMateriali", "TENSIONI AMMISSIBILI"),
      lblMateriali{{{form, "lblMateriali(0)"},
                    {form, "lblMateriali(1)", kSigma},
                    {form, "lblMateriali(2)", kTau},
                    {form, "lblMateriali(3)"}}},
      cdMaterialiS{{{form, "cdMaterialiS(0)", kElementi[0], kAmmessa},
                    {form, "cdMaterialiS(1)", kElementi[1], kAmmessa},
                    {form, "cdMaterialiS(2)", kElementi[2], kAmmessa}}},
      cdMaterialiT{{{form, "cdMaterialiT(0)", kElementi[0], kAmmessa},
                    {form, "cdMaterialiT(1)", kElementi[1], kAmmessa},
                    {form, "cdMaterialiT(2)", kElementi[2], kAmmessa}}},
      cdbMateriali{
          {{form, "cdbMateriali(0)", "Pietra..."}, {form, "cdbMateriali(1)", "Pietra..."}}},
      cmbTipoDiFerro(form, "cmbTipoDiFerro", "", NomiGradiAcciaio()),
      fraRisultati(form, "fraRisultati", "RISULTATI"),
      lblRisultati{{{form, "lblRisultati(0)"},
                    {form, "lblRisultati(1)", kSigma},
                    {form, "lblRisultati(2)", kTau}}},
      cdOUT{{{form, "cdOUT(0)", kElementi[0], kCalcolata},
             {form, "cdOUT(1)", kElementi[0], kCalcolata},
             {form, "cdOUT(2)", kElementi[1], kCalcolata},
             {form, "cdOUT(3)", kElementi[1], kCalcolata},
             {form, "cdOUT(6)", "Incremento su Muratura  ", kCalcolata},
             {form, "cdOUT(4)", kElementi[2], kCalcolata},
             {form, "cdOUT(5)", kElementi[2], kCalcolata}}},
      stato_(stato) {
  for (FloatBox& risultato : cdOUT) risultato.SetReadOnly(true);
  cmbTipoDiFerro.SetIndex(0);
  ScegliAcciaio();
}

Layout TensioniBalcone::Materiali() {
  return Group(fraMateriali,
               {Fields({Row({lblMateriali[0], lblMateriali[1], lblMateriali[2], lblMateriali[3]}),
                        Row({cdMaterialiS[0], cdMaterialiT[0], cdbMateriali[0]}),
                        Row({cdMaterialiS[1], cdMaterialiT[1], cdbMateriali[1]}),
                        Row({cdMaterialiS[2], cdMaterialiT[2], cmbTipoDiFerro})})});
}

Layout TensioniBalcone::Risultati() {
  return Group(fraRisultati, {Fields({Row({lblRisultati[0], lblRisultati[1], lblRisultati[2]}),
                                      Row({Risultato(SigmaLastra), Risultato(TauLastra)}),
                                      Row({Risultato(SigmaMensola), Risultato(TauMensola)}),
                                      Row({Risultato(SigmaAcciaio), Risultato(TauAcciaio)}),
                                      Row({Risultato(IncrementoMuratura)})})});
}

void TensioniBalcone::TieEvents(const std::function<void()>& cambiati) {
  for (std::size_t i = 0; i < cdMaterialiS.size(); ++i)
    cdMaterialiS[i].onChange = cdMaterialiT[i].onChange = cambiati;
  for (std::size_t i = 0; i < cdbMateriali.size(); ++i)
    cdbMateriali[i].onPress = [this, i] { ChiediPietra(i); };
  cmbTipoDiFerro.onChange = [this] { ScegliAcciaio(); };
}

void TensioniBalcone::Scegli(TipoBalcone tipo) {
  const std::array presenti = {true, tipo == TipoBalcone::Mensole, tipo == TipoBalcone::Putrelle};
  for (std::size_t i = 0; i < presenti.size(); ++i) {
    cdMaterialiS[i].SetVisible(presenti[i]);
    cdMaterialiT[i].SetVisible(presenti[i]);
    for (const std::size_t elemento : kElementiDi[i]) Risultato(elemento).SetVisible(presenti[i]);
  }
  cdbMateriali[1].SetVisible(presenti[1]);
  cmbTipoDiFerro.SetVisible(presenti[2]);
}

void TensioniBalcone::Azzera() {
  for (FloatBox& risultato : cdOUT) {
    risultato.SetValue(0);
    risultato.SetWarning(false);
  }
}

bool TensioniBalcone::Mostra(const RisultatiBalcone& risultati) {
  for (std::size_t i = 1; i < risultati.size(); ++i) {
    Risultato(i).SetValue(risultati[i]);
    Risultato(i).SetShown(FormatPattern(risultati[i], "###0.0"));
    Risultato(i).SetWarning(std::fabs(risultati[i]) > Ammessa(i));
  }
  return !Supera(risultati);
}

double TensioniBalcone::Ammessa(std::size_t elemento) const {
  for (std::size_t i = 0; i < kElementiDi.size(); ++i) {
    if (kElementiDi[i][0] == elemento) return cdMaterialiS[i].Value();
    if (kElementiDi[i][1] == elemento) return cdMaterialiT[i].Value();
  }
  return std::numeric_limits<double>::infinity();  // the wall is held against nothing
}

bool TensioniBalcone::Supera(const RisultatiBalcone& risultati) const {
  for (std::size_t i = 1; i < risultati.size(); ++i)
    if (std::fabs(risultati[i]) > Ammessa(i)) return true;
  return false;
}

void TensioniBalcone::ChiediPietra(std::size_t pietra) {
  FrmVerPietre& form = stato_.memoria.The<PietreDelBalcone>().form[pietra];
  stato_.player.Show(form);
  if (form.Confermato()) {
    cdMaterialiS[pietra].SetValue(form.Sigma());
    cdMaterialiT[pietra].SetValue(form.Tau());
  }
  cdMaterialiS[pietra].Owner().MoveFocus(cdMaterialiS[pietra]);
}

void TensioniBalcone::ScegliAcciaio() {
  const Tensioni ammesse = TensioniAcciaio(cmbTipoDiFerro.ShownText());
  cdMaterialiS[2].SetValue(ammesse.sigma);
  cdMaterialiT[2].SetValue(ammesse.tau);
}

}  // namespace orm
