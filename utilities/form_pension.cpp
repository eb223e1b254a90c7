// The dialog of the INARCASSA pension.
#include "utilities/form_pension.h"

#include <string>

#include "dialogs/message_boxes.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm {

void FrmInaInPensione::Righe() {
  for (int i = 0; i < kAnniReddito; ++i) {
    const std::string anno = NumberText(kPrimoAnno + i), indice = "(" + NumberText(i) + ")";
    Label1.push_back(std::make_unique<Label>(*this, "Label1" + indice, anno));
    ciRedditi.push_back(std::make_unique<InterBox>(*this, "ciRedditi" + indice, "",
                                                   NumberLimits{.currency = "L."}));
    ciRedditi.back()->SetHint("Reddito professionale del " + anno);
  }
}

FrmInaInPensione::FrmInaInPensione(RunState& stato)
    : FormDiCalcolo("frmINA_INPENSIONE", "CALCOLO PENSIONE INARCASSA MATURATA NELL'ANNO 2001",
                    stato.player),
      stato_(stato) {
  lblPensioneMinima.SetStyle(Label::Style::Warning);
  lblPensioneMinima.SetVisible(false);
  ciPensioneAnnuale.SetReadOnly(true);
  Option1.SetValue(true);
  Option1.onChange = [this] {
    if (Option1.Value() && !torna_) Nuovo();
  };
  Option2.onChange = [this] {
    if (Option2.Value()) Archiviato();
  };
  cmdCALCOLOPENSIONE.onPress = [this] { CalcolaPensione(); };
  cmdARCHIVIA.onPress = [this] { TryAndStay(stato_.player, [this] { Archivia(); }); };
  Righe();
  SetContent(Disposizione());
}

Layout FrmInaInPensione::Disposizione() {
  // The years in two columns, so that the window is no tower with an empty half.
  const std::size_t meta = (ciRedditi.size() + 1) / 2;
  std::vector<Layout> prime{Row({Label2, Label3})}, ultime{Row({lblAnno, lblReddito})};
  for (std::size_t i = 0; i < ciRedditi.size(); ++i)
    (i < meta ? prime : ultime).push_back(Row({*Label1[i], *ciRedditi[i]}));
  return Column({Group(fraCaso, {Row({Option1, Option2})}),
                 Row({Column({Fields(std::move(prime))}), Column({Fields(std::move(ultime))})}),
                 Group(fraAnzianita, {Row({Label6, ciAnni, Label7, ciGiorni})}),
                 Row({Label4, ciPensioneAnnuale, lblPensioneMinima}), lblEsito,
                 Buttons({cmdCALCOLOPENSIONE, cmdSPIEGA, cmdARCHIVIA})});
}

RedditiAnnui FrmInaInPensione::Redditi() const {
  RedditiAnnui redditi{};
  for (std::size_t i = 0; i < redditi.size(); ++i) redditi[i] = ciRedditi[i]->Value();
  return redditi;
}

void FrmInaInPensione::MostraRedditi(const RedditiAnnui& redditi) {
  for (std::size_t i = 0; i < redditi.size(); ++i) ciRedditi[i]->SetValue(redditi[i]);
}

void FrmInaInPensione::SvuotaRisultato() {
  SenzaRisultati();
  ciPensioneAnnuale.SetValue(0);
  lblPensioneMinima.SetVisible(false);
}

void FrmInaInPensione::Nuovo() {
  MostraRedditi({});
  SvuotaRisultato();
}

void FrmInaInPensione::Archiviato() {
  FileRedditi dati{testata_, {}};
  try {
    if (stato_.folder.Exists(kFileRedditi)) dati = LeggiRedditi(stato_.folder);
  } catch (const RuntimeFailure& failure) {
    torna_ = true;
    Option1.SetValue(true);
    torna_ = false;
    stato_.player.Ask(FailureBox(failure));
    return;
  }
  SvuotaRisultato();
  testata_ = dati.testata;
  MostraRedditi(dati.redditi);
}

// The file keeps its first line, also where its incomes have not been asked for.
void FrmInaInPensione::Archivia() {
  if (stato_.folder.Exists(kFileRedditi)) testata_ = LeggiRedditi(stato_.folder).testata;
  ScriviRedditi(stato_.folder, {testata_, Redditi()});
  if (Option2.Value())
    Archiviato();
  else
    Option2.SetValue(true);
}

void FrmInaInPensione::CalcolaPensione() {
  SvuotaRisultato();
  const int Anni = static_cast<int>(ciAnni.Value());
  if (Anni <= 0) {
    stato_.player.Ask({kAttenzione,
                       "L'ANZIANITÁ NON È BEN DEFINITA\n\nIL CALCOLO NON SARÁ ESEGUITO",
                       MessageBox::Icon::Information});
    return;
  }
  Catena passi;
  PensioneDelReddito(RedditoMedio(Redditi(), Anni, &passi), Anni,
                     static_cast<int>(ciGiorni.Value()), Pensione_, &passi);
  const bool minima = !(Pensione_ > kPensioneMinima);
  ciPensioneAnnuale.SetValue(minima ? kPensioneMinima : Pensione_);
  lblPensioneMinima.SetVisible(minima);
  if (minima)
    passi.push_back({.regola = "La pensione non supera la minima, che la sostituisce",
                     .conto = "",
                     .risultato = kPensioneMinima,
                     .unita = "Lire"});
  passi.back().cifra = ciPensioneAnnuale.ShownText();
  Calcolato("PENSIONE CALCOLATA", true, {Risultato(Label4.Text(), std::move(passi))});
}

}  // namespace orm
