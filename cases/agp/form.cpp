#include "cases/agp/form.h"

namespace orm {
namespace {

constexpr const char* kAvvertenze =
    "Per il disposto dell'articolo 23-b si ha la maggiorazione per incarico parziale\n"
    "se l'aggiornamento viene eseguito da professionista non autore del progetto.\n"
    "\n"
    "Se, in ogni caso, non si desidera tale maggiorazione basta porre a SI l'opzione\n"
    "relativa all'aggiornamento eseguito dallo stesso progettista.";

}  // namespace

FrmAgpDatig::FrmAgpDatig(Player& player, DatiAgp& dati)
    : Form("frmAGP_Datig", "AGGIORNAMENTO  PREZZI : DATI GENERALI", "dati generali"), dati_(dati) {
  SetContent(Column({Group(Frame1, {Option1, Option2}), Group(Frame2, {Row({OptionSI, OptionNO})}),
                     Group(Frame3, {Decreti}), Buttons({cmdAvvertenze, Command1})}));
  metodo.Choose(dati.TipoDiAggiornamento == "SEMPLICE AGGIORNAMENTO" ? 0 : 1);
  progettista.Choose(dati.EsecutoreDellAggiornamento == "SI" ? 1 : 0);
  Decreti.Mostra(dati.PeriodoTariffario);
  cmdAvvertenze.onPress = [&player] {
    player.Ask({"AVVERTENZA", kAvvertenze, MessageBox::Icon::Information, MessageBox::Buttons::Ok});
  };
  Command1.onPress = [this] { Conferma(); };
}

// The answer is turned round: the designer himself takes no increase.
void FrmAgpDatig::Conferma() {
  dati_.TipoDiAggiornamento = Option1.Value() ? "SEMPLICE AGGIORNAMENTO" : "NUOVE ANALISI";
  dati_.EsecutoreDellAggiornamento = OptionSI.Value() ? "NO" : "SI";
  Decreti.Prendi(dati_.PeriodoTariffario);
  Esci(Uscita::Conferma);
}

}  // namespace orm
