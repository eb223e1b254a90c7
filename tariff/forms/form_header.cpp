#include "tariff/forms/form_header.h"

#include "tariff/files/user_files.h"

namespace orm {

FrmGenIntestazione::FrmGenIntestazione(RunState& stato, std::string nomeFile)
    : Form("frmGEN_Intestazione", "                                          INTESTAZIONE PARCELLA",
           "intestazione"),
      file_(stato.player, stato.folder, std::move(nomeFile)) {
  SetContent(Column({Fields({txtCommittente, txtIncarico, txtDocumenti, txtNote, lblColonne}),
                     Buttons({Command1})}));
  const Intestazione dati =
      file_.Leggi(Intestazione(), [&] { return LeggiIntestazione(stato.folder, file_.Nome()); });
  txtCommittente.SetText(dati.Committente);
  txtIncarico.SetText(dati.Oggetto);
  txtDocumenti.SetText(dati.Documenti);
  txtNote.SetText(dati.Note);
  Command1.onPress = [this, &stato] {
    TryAndStay(stato.player, [&] {
      file_.Conserva();
      ScriviIntestazione(
          stato.folder, file_.Nome(),
          {txtCommittente.Text(), txtIncarico.Text(), txtDocumenti.Text(), txtNote.Text()});
      Esci(Uscita::Conferma);
    });
  };
}

}  // namespace orm
