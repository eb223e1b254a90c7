#include "tariff/forms/form_question.h"

namespace orm {

FrmGenNuovoCaso::FrmGenNuovoCaso(const NotaArchiviata& nota)
    : Form("frmGEN_NuovoCaso", " ORM 2002 :  INTRODUZIONE DATI ", "variazione o nuova") {
  SetContent(
      Column({Group(fraArchivio, {Fields({txtCommittente, txtOggetto, txtGiorno, txtContenuto})}),
              Fields({Row({cmdVARIAZIONE, lblVariazione}), Row({cmdNuova, lblNuova})})}));
  txtCommittente.SetText(nota.committente);
  txtOggetto.SetText(nota.oggetto);
  txtGiorno.SetText(nota.giorno);
  txtContenuto.SetText(nota.contenuto);
  txtContenuto.SetVisible(!nota.contenuto.empty());
  const auto rispondi = [this](Inizio risposta) {
    Risposta = risposta;
    Esci(Uscita::Conferma);
  };
  cmdVARIAZIONE.onPress = [rispondi] { rispondi(Inizio::Variazione); };
  cmdNuova.onPress = [rispondi] { rispondi(Inizio::Nuova); };
}

FrmGenSiNo::FrmGenSiNo(std::string titolo, std::string passo, std::string domanda,
                       std::string avvertenza, const std::string& risposta)
    : Form("frmGEN_SiNo", std::move(titolo), std::move(passo)),
      Risposta(risposta == "SI" ? "SI" : "NO") {
  SetContent(Column({Label1, Row({OptionSI, OptionNO}), Avvertenza, Buttons({Command1})}));
  Label1.SetText(std::move(domanda));
  scelta.Choose(risposta == "SI" ? 0 : 1);
  Avvertenza.SetVisible(!avvertenza.empty());
  Avvertenza.SetText(std::move(avvertenza));
  Command1.onPress = [this] {
    Risposta = OptionSI.Value() ? "SI" : "NO";
    Esci(Uscita::Conferma);
  };
}

std::string ChiediSiNo(Player& player, std::string titolo, std::string passo, std::string domanda,
                       std::string avvertenza, const std::string& risposta) {
  FrmGenSiNo form(std::move(titolo), std::move(passo), std::move(domanda), std::move(avvertenza),
                  risposta);
  player.Show(form);
  return form.Risposta;
}

std::string ChiediCertificato(Player& player, std::string titolo, bool conDirezione,
                              const std::string& risposta) {
  if (!conDirezione) return "NO";
  return ChiediSiNo(player, std::move(titolo), "collaudo o certificato",
                    "COLLAUDO o CERTIFICATO REGOLARE ESECUZIONE ?", "", risposta);
}

}  // namespace orm
