// The data of the letter to the Order.
#include "shell/letter/form_letter.h"

#include "runtime/numbers.h"

namespace orm {

FrmGenLettera::FrmGenLettera(RunState& stato)
    : Form("frmGEN_Lettera", "LETTERA di TRASMISSIONE PARCELLA ALL'ORDINE"),
      stato_(stato),
      file_(stato.player, stato.folder, kFileLettera) {
  Regole();
  Mostra(file_.Leggi(DatiLettera(), [&] { return LeggiLettera(stato.folder); }));
  cmdOK.onPress = [this] { Conferma(); };
  SetContent(Disposizione());
}

std::vector<std::unique_ptr<OptionButton>> FrmGenLettera::Tipi() {
  std::vector<std::unique_ptr<OptionButton>> tipi;
  for (const TipoParcellaLettera& voce : kTipiLettera)
    tipi.push_back(std::make_unique<OptionButton>(
        *this, "Op_tipo(" + NumberText(static_cast<double>(tipi.size())) + ")", voce.didascalia,
        tipo));
  return tipi;
}

// Some choices propose the document that goes with them, in place of the text that stands there.
void FrmGenLettera::Regole() {
  cmbRiferimento.onChange = [this] {
    const bool riferimento = cmbRiferimento.ShownText() == "SI";
    frmParcellaPrecedente.SetVisible(riferimento);
    if (riferimento) Text1.SetText("Fotocopia parcella già liquidata");
  };
  Option2.onChange = [this] {
    if (Option2.Value()) Text1.SetText("Autorizzazione all'esercizio della libera professione");
  };
  Option3.onChange = [this] {
    if (Option3.Value()) Text1.SetText("Autorizzazione all'espletamento dell'atto professionale");
  };
}

// The text of the documents comes last, so that no proposal stands in its place.
void FrmGenLettera::Mostra(const DatiLettera& dati) {
  ctOrdine.SetText(dati.OrdineDi);
  valuta.Choose(dati.ValutaLettera == "LIRE" ? 0 : 1);
  tipo.Choose(dati.TipoLettera);
  cmbRiferimento.SetIndex(dati.RiferimentoParcella == "SI" ? 0 : 1);
  ctNumero.SetText(dati.NumeroPrecedente);
  ctData.SetText(dati.DataPrecedente);
  statoProfessionale.Choose(dati.StatoProfessionale == "Libero"    ? 0
                            : dati.StatoProfessionale == "Docente" ? 1
                                                                   : 2);
  Text1.SetText(dati.DocumentiAllegati);
}

Layout FrmGenLettera::Disposizione() {
  std::vector<Layout> prime, seconde;
  for (std::size_t i = 0; i < Op_tipo.size(); ++i)
    (i < 8 ? prime : seconde).emplace_back(*Op_tipo[i]);
  return Column(
      {Row({Fields({ctOrdine}), Group(fraValuta, {Row({optValuta1, optValuta2})})}),
       Group(fraParcella, {Row({Column(std::move(prime)), Column(std::move(seconde))})}),
       Row({Fields({cmbRiferimento}), Group(frmParcellaPrecedente, {Fields({ctNumero, ctData})})}),
       Group(frmStato, {Row({Option1, Option2, Option3})}), Fields({Text1}), Buttons({cmdOK})});
}

void FrmGenLettera::Conferma() {
  DatiLettera dati;
  dati.OrdineDi = ctOrdine.Text();
  dati.RiferimentoParcella = cmbRiferimento.ShownText();
  if (dati.RiferimentoParcella == "SI") {
    dati.NumeroPrecedente = ctNumero.Text();
    dati.DataPrecedente = ctData.Text();
  }
  dati.StatoProfessionale = Option1.Value() ? "Libero" : Option2.Value() ? "Docente" : "Dipendente";
  dati.TipoLettera = static_cast<std::int16_t>(tipo.Chosen());
  dati.ValutaLettera = optValuta1.Value() ? "LIRE" : "EURO";
  dati.DocumentiAllegati = Text1.Text();
  TryAndStay(stato_.player, [&] {
    file_.Conserva();
    ScriviLettera(stato_.folder, dati);
    Esci(Uscita::Conferma);
  });
}

}  // namespace orm
