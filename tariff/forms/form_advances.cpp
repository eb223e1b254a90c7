#include "tariff/forms/form_advances.h"

#include "tariff/files/closing_line.h"
#include "tariff/forms/amount_limits.h"

namespace orm {

FrmGenAcconti::FrmGenAcconti(RunState& stato, DataWriter corpo)
    : Form("frmGEN_Acconti",
           "                               RAPPORTI CONVENUTI CON IL COMMITTENTE"),
      Frame1(*this, "Frame1", "Acconti ricevuti"),
      cdAccontiRicevuti(*this, "cdAccontiRicevuti", "", kAdvancesEuro),
      ciAccontiRicevuti(*this, "ciAccontiRicevuti", "", kAdvancesLire),
      lblValuta(*this, "lblValuta", stato.ModoLire ? "LIRE" : "EURO"),
      Image1(*this, "Image1", Image::Subject::Euro),
      Frame2(*this, "Frame2", "Riduzione"),
      optRiduzione2(*this, "optRiduzione2", "Ex Art. 4 comma 12bis L. 155/89 ( max 20 %)", tipo),
      optRiduzione1(*this, "optRiduzione1", "Concordata", tipo),
      cdPercentualeRiduzione(*this, "cdPercentualeRiduzione", "Percentuale di Riduzione ",
                             {.most = 100, .decimals = 2, .unit = "%"}),
      Frame3(*this, "Frame3", "Applicazione della riduzione su"),
      optApplicazione{{{*this, "optApplicazione(1)", "Onorari e Compensi Accessori", applicazione},
                       {*this, "optApplicazione(2)", "solo Onorari", applicazione},
                       {*this, "optApplicazione(3)", "solo Compensi Accessori", applicazione}}},
      OK(*this, "OK", "&O.K.", Button::Role::Default),
      stato_(stato),
      corpo_(std::move(corpo)) {
  SetContent(Column(
      {Group(Frame1, {Row({Fields({cdAccontiRicevuti, ciAccontiRicevuti}), lblValuta, Image1})}),
       Group(Frame2, {optRiduzione2, optRiduzione1, Fields({cdPercentualeRiduzione})}),
       Group(Frame3, {optApplicazione[0], optApplicazione[1], optApplicazione[2]}),
       Buttons({OK})}));
  cdAccontiRicevuti.SetVisible(!stato.ModoLire);
  ciAccontiRicevuti.SetVisible(stato.ModoLire);
  Image1.SetVisible(!stato.ModoLire);

  const Chiusura given = stato.chiusura;
  cdAccontiRicevuti.SetValue(given.Acconti);
  ciAccontiRicevuti.SetValue(given.Acconti);
  cdPercentualeRiduzione.SetValue(given.PercDiRiduzione);
  tipo.Choose(given.TipoRiduzione == "CONCORDATA" ? 1 : 0);
  applicazione.Choose(given.ApplicazioneRiduzione - 1);

  OK.onPress = [this] { Confirm(); };
}

void FrmGenAcconti::Confirm() {
  Chiusura taken = stato_.chiusura;
  taken.TipoRiduzione = optRiduzione1.Value() ? "CONCORDATA" : "";
  // A file with a code of its own shows no option, and keeps its code.
  if (applicazione.Chosen() >= 0)
    taken.ApplicazioneRiduzione = static_cast<std::int16_t>(applicazione.Chosen() + 1);
  taken.Acconti = stato_.ModoLire ? ciAccontiRicevuti.Value() : cdAccontiRicevuti.Value();
  taken.PercDiRiduzione = cdPercentualeRiduzione.Value();
  TryAndStay(stato_.player, [&] {
    ScriviParcella(stato_.folder, stato_.FileDatiAcconti, corpo_, taken);
    stato_.chiusura = taken;
    Close();
  });
}

}  // namespace orm
