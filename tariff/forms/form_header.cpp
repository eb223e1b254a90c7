#include "tariff/forms/form_header.h"

#include "tariff/files/user_files.h"

namespace orm {

FrmGenIntestazione::FrmGenIntestazione(RunState& stato, std::string nomeFile)
    : Form("frmGEN_Intestazione",
           "                                          INTESTAZIONE PARCELLA") {
  SetContent(
      Column({Fields({txtCommittente, txtIncarico, txtDocumenti, txtNote}), Buttons({Command1})}));
  if (stato.folder.Exists(nomeFile)) {
    const Intestazione dati = LeggiIntestazione(stato.folder, nomeFile);
    txtCommittente.SetText(dati.Committente);
    txtIncarico.SetText(dati.Oggetto);
    txtDocumenti.SetText(dati.Documenti);
    txtNote.SetText(dati.Note);
  }
  Command1.onPress = [this, &stato, nomeFile = std::move(nomeFile)] {
    TryAndStay(stato.player, [&] {
      ScriviIntestazione(
          stato.folder, nomeFile,
          {txtCommittente.Text(), txtIncarico.Text(), txtDocumenti.Text(), txtNote.Text()});
      Esci(Uscita::Conferma);
    });
  };
}

}  // namespace orm
