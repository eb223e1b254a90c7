#include "tariff/forms/form_advances.h"

#include "tariff/files/closing_line.h"

namespace orm {

FrmGenAcconti::FrmGenAcconti(RunState& stato, DataWriter corpo)
    : FormInput(stato, "frmGEN_Acconti",
                "                               RAPPORTI CONVENUTI CON IL COMMITTENTE", "accordi"),
      corpo_(std::move(corpo)) {
  SetContent(
      Column({Group(Frame1, {Row({AmountFields({acconti}), lblValuta, Image1})}),
              Group(Frame2, {optRiduzione2, optRiduzione1, Fields({cdPercentualeRiduzione})}),
              Group(Frame3, {optApplicazione[0], optApplicazione[1], optApplicazione[2]}),
              Buttons({OK})}));
  const Chiusura& data = stato.chiusura;
  acconti.SetValue(data.Acconti);
  cdPercentualeRiduzione.SetValue(data.PercDiRiduzione);
  tipo.Choose(data.TipoRiduzione == "CONCORDATA" ? 1 : 0);
  applicazione.Choose(data.ApplicazioneRiduzione - 1);
  // The law's 20 % count for its own option alone.
  optRiduzione2.onChange = [this] { SegnaMassimo(); };
  SegnaMassimo();
  OK.onPress = [this] { Conferma(); };
}

void FrmGenAcconti::SegnaMassimo() {
  cdPercentualeRiduzione.SetAdvised(optRiduzione2.Value() ? 20 : kSenzaMassimo);
}

void FrmGenAcconti::Conferma() {
  Chiusura presa = stato_.chiusura;
  presa.TipoRiduzione = optRiduzione1.Value() ? "CONCORDATA" : "";
  // A file with a code of its own shows no option, and keeps its code.
  if (applicazione.Chosen() >= 0)
    presa.ApplicazioneRiduzione = static_cast<std::int16_t>(applicazione.Chosen() + 1);
  presa.Acconti = acconti.Value();
  presa.PercDiRiduzione = cdPercentualeRiduzione.Value();
  TryAndStay(stato_.player, [&] {
    ScriviParcella(stato_.folder, stato_.FileDatiAcconti, corpo_, presa);
    stato_.chiusura = presa;
    Esci(Uscita::Conferma);
  });
}

}  // namespace orm
