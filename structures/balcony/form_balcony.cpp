#include "structures/balcony/form_balcony.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "runtime/numbers.h"
#include "structures/balcony/defects.h"
#include "structures/balcony/statics.h"
#include "structures/message_boxes.h"

namespace orm {
namespace {

// The elements of the results, to tell where they fall short.
constexpr std::array<const char*, NumeroElementiBalcone> kElementi = {
    "", "σ lastra", "τ lastra", "σ mensole", "τ mensole", "muratura", "σ acciaio", "τ acciaio"};

std::string Domanda(Ribaltamento come) {
  return std::string("LA LASTRA POTREBBE ESSERE INSTABILE !\n") +
         (come == Ribaltamento::SbalziLaterali ? " CAUSA SBALZI LATERALI                  "
                                               : " CAUSA SPORTO LASTRA SU MENSOLE        ") +
         "\n           CONTINUARE COMUNQUE       ";
}

}  // namespace

FrmVerBalcone::FrmVerBalcone(RunState& stato)
    : FormRiprendibile("frmVER_BALCONE", "VERIFICA STABILITÁ BALCONE in PIETRA", stato) {
  SetContent(Column(
      {Row({ingressi.Contents(), Column({tensioni.Materiali(), tensioni.Risultati(lblEsito),
                                         ingressi.lblModuli, Label_NOTA, lblStatica, Lavagna})}),
       Buttons({ComCalcola, cmdSPIEGA, cmdSALVA, cmdAPRI, ComEsci})}));
  const auto cambiati = [this] {
    SegnaCambiati();
    Azzera();
  };
  ingressi.TieEvents(cambiati, [this] { SenzaRisultati(); });
  tensioni.TieEvents(cambiati);
  ComCalcola.onPress = [this] { Calcola(); };
  ComEsci.onPress = [this] { Close(); };
  Azzera();
}

void FrmVerBalcone::Azzera() {
  tensioni.Scegli(ingressi.Tipo());
  tensioni.Azzera();
  Label_NOTA.SetText("");
  lblStatica.SetText("");
  DisegnaBalcone(Lavagna, ingressi.Leggi());
}

bool FrmVerBalcone::Prosegue(Ribaltamento come) {
  return stato_.player.Ask({kAttenzioneVerifica, Domanda(come), MessageBox::Icon::Exclamation,
                            MessageBox::Buttons::YesNo}) == Answer::Yes;
}

void FrmVerBalcone::Calcola() {
  const DatiBalcone dati = ingressi.Leggi();
  Azzera();
  SenzaRisultati();
  if (const std::string difetto = DifettoBalcone(dati); !difetto.empty()) {
    stato_.player.Ask(AvvisoVerifica(difetto));
    return;
  }
  CateneBalcone perche;
  const RisultatiBalcone risultati = VerificaBalcone(
      dati, [this](Ribaltamento come) { return Prosegue(come); }, &perche);
  if (risultati[EsitoBalcone] == -1) {
    stato_.player.Ask(AvvisoVerifica(
        "LA LASTRA POTREBBE ESSERE INSTABILE !\n           VERIFICARE I DATI         "));
    return;
  }
  tensioni.Mostra(risultati);
  const bool entro = !tensioni.Supera(risultati);
  Calcolato(entro ? "TENSIONI ENTRO LE AMMISSIBILI" : "TENSIONI OLTRE LE AMMISSIBILI", entro,
            tensioni.Spiegate(risultati, std::move(perche)));
  tensioni.MostraLimiti();
  if (!entro) Label_NOTA.SetText("IL BALCONE NON RISULTA SICURO.");
  ConfrontaConStatica(dati, risultati);
}

// The figures stay those of the customary formulas; that they are too small is said.
void FrmVerBalcone::ConfrontaConStatica(const DatiBalcone& dati,
                                        const RisultatiBalcone& risultati) {
  const RisultatiBalcone rapporti = StaticaSuVerifica(dati);
  RisultatiBalcone statica = risultati;
  std::string aumenti;
  for (std::size_t i = 1; i < risultati.size(); ++i) {
    statica[i] = std::max(1.0, rapporti[i]) * risultati[i];
    const std::string percento = FormatPattern((rapporti[i] - 1) * 100, "0");
    if (rapporti[i] > 1 && percento != "0")
      aumenti += (aumenti.empty() ? "" : ", ") + std::string(kElementi[i]) + " +" + percento + " %";
  }
  if (aumenti.empty()) return;
  const bool supera = tensioni.Supera(statica) && !tensioni.Supera(risultati);
  lblStatica.SetStyle(supera ? Label::Style::Warning : Label::Style::Note);
  lblStatica.SetText("Valori in difetto: con gli stessi carichi la statica dà\n" + aumenti + "." +
                     (supera ? "\nCon questi aumenti il balcone non risulta sicuro." : ""));
}

void MostraVerBalcone(RunState& stato) { FrmVerBalcone(stato).Presenta(); }

}  // namespace orm
