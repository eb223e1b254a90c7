// The dialog of the INARCASSA pension.
#include "utilities/form_pension.h"

#include <string>

#include "runtime/numbers.h"

namespace orm {

void MostraPensioneInarcassa(RunState& run) {
  FrmInaInPensione form(run);
  run.player.Show(form);
}

std::vector<std::unique_ptr<InterBox>> FrmInaInPensione::Righe() {
  std::vector<std::unique_ptr<InterBox>> righe;
  for (int i = 0; i < kAnniReddito; ++i)
    righe.push_back(std::make_unique<InterBox>(*this, "ciRedditi(" + NumberText(i) + ")",
                                               NumberText(kPrimoAnno + i)));
  return righe;
}

FrmInaInPensione::FrmInaInPensione(RunState& run)
    : Form("frmINA_INPENSIONE", "CALCOLO PENSIONE INARCASSA MATURATA NELL'ANNO 2001"), run_(run) {
  lblPensioneMinima.SetStyle(Label::Style::Warning);
  lblPensioneMinima.SetVisible(false);
  ciPensioneAnnuale.SetReadOnly(true);
  Option1.SetValue(true);
  Option1.onChange = [this] {
    if (Option1.Value()) Nuovo();
  };
  Option2.onChange = [this] {
    if (Option2.Value()) Archiviato();
  };
  cmdCALCOLOPENSIONE.onPress = [this] { CalcolaPensione(); };
  cmdARCHIVIA.onPress = [this] { Archivia(); };
  SetContent(Disposizione());
}

Layout FrmInaInPensione::Disposizione() {
  std::vector<Layout> righe;
  for (const auto& reddito : ciRedditi) righe.emplace_back(*reddito);
  return Column({Group(fraCaso, {Row({Option1, Option2})}),
                 Row({Column({Row({Label2, Label3}),
                              Layout(Layout::Kind::Fields, nullptr, std::move(righe))}),
                      Column({Group(fraAnzianita, {Fields({ciAnni, ciGiorni})}),
                              Fields({ciPensioneAnnuale}), lblPensioneMinima})}),
                 Buttons({cmdARCHIVIA, cmdCALCOLOPENSIONE})});
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
  ciPensioneAnnuale.SetValue(0);
  lblPensioneMinima.SetVisible(false);
}

void FrmInaInPensione::Nuovo() {
  MostraRedditi({});
  SvuotaRisultato();
}

void FrmInaInPensione::Archiviato() {
  SvuotaRisultato();
  FileRedditi dati{testata_, {}};
  if (run_.folder.Exists(kFileRedditi)) dati = LeggiRedditi(run_.folder);
  testata_ = dati.testata;
  MostraRedditi(dati.redditi);
}

// The file gets its first line as held: empty as long as no file has been read.
void FrmInaInPensione::Archivia() {
  ScriviRedditi(run_.folder, {testata_, Redditi()});
  if (Option2.Value())
    Archiviato();
  else
    Option2.SetValue(true);
}

void FrmInaInPensione::CalcolaPensione() {
  SvuotaRisultato();
  const int Anni = static_cast<int>(ciAnni.Value());
  if (Anni <= 0) {
    run_.player.Ask({"  ATTENZIONE !! ",
                     "L'ANZIANITÁ NON È BEN DEFINITA\n\nIL CALCOLO NON SARÁ ESEGUITO",
                     MessageBox::Icon::Information});
    return;
  }
  PensioneDelReddito(RedditoMedio(Redditi(), Anni), Anni, static_cast<int>(ciGiorni.Value()),
                     Pensione_);
  const bool minima = !(Pensione_ > kPensioneMinima);
  ciPensioneAnnuale.SetValue(minima ? kPensioneMinima : Pensione_);
  lblPensioneMinima.SetVisible(minima);
}

}  // namespace orm
