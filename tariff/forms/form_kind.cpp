#include "tariff/forms/form_kind.h"

#include <algorithm>

namespace orm {
namespace {

constexpr std::array<const char*, 4> kValues = {"NORMALE", "CONSUNTIVA", "INTERROTTA", "SCISSA"};

constexpr std::array<const char*, 4> kHelp = {
    "È L'OPZIONE DA USARE NELLA MAGGIOR PARTE DELLE SITUAZIONI (PARCELLA IN CORSO D'OPERA).\n"
    "OCCORRE NECESSARIAMENTE UTILIZZARLA NEL CASO DI RISOLUZIONE DEL CONTRATTO NEL CORSO \n"
    "DI ESECUZIONE DEI LAVORI PER DECISIONE DEL PROFESSIONISTA.\n"
    "SI PUÓ USARE ANCHE PER LA STIMA PREVENTIVA DEGLI ONORARI.\n"
    "IN QUESTO CASO SI NOTI CHE\n"
    "CHIEDENDO LA MAGGIORAZIONE PER INCARICO PARZIALE E DANDO NEL CONTEMPO SIA IMPORTI\n"
    "PER PROGETTAZIONE CHE PER DIREZIONE LAVORI SI OTTIENE L'IMPORTO TOTALE DEGLI ONORARI\n"
    "CHE IL COMMITTENTE ANDRÁ A SPENDERE SE SEPARA GLI INCARICHI DI PROGETTAZIONE E D.L.",
    "DA USARE PER IL CALCOLO DELL'ONORARIO A FINE LAVORI\n"
    "L'OPZIONE DEVE ESSERE ATTIVATA SEMPRE IN PRESENZA DI\n"
    "MAGGIOR LAVORI SENZA PERIZIA DI VARIANTE O DI MINOR\n"
    "LAVORI RISPETTO ALLA STIMA DEL PROGETTO ORIGINARIO o DI PERIZIA",
    "DA USARE PER IL CALCOLO DELL'ONORARIO NEL CASO\n"
    "DI RISOLUZIONE DEL CONTRATTO NEL CORSO DI ESECUZIONE\n"
    "DEI LAVORI PER DECISIONE DEL COMMITTENTE",
    "DA USARE PER IL CALCOLO DELL'ONORARIO NEI CASI IN CUI\n"
    "OCCORRE UTILIZZARE PERCENTUALI DISTINTE E SEPARATE\n"
    "PER LA PROGETTAZIONE E LA DIREZIONE DEI LAVORI"};

}  // namespace

FrmGenTipologia::FrmGenTipologia(Player& player, const std::string& tipoParcella)
    : Form("frmGEN_Tipologia", "TIPOLOGIA DI  PARCELLA", "tipo di parcella"),
      TipoParcella(tipoParcella) {
  SetContent(Column({Group(Frame1, {Row({Option[0], Help[0]}), Row({Option[1], Help[1]}),
                                    Row({Option[2], Help[2]}), Row({Option[3], Help[3]})}),
                     Buttons({OKbutton})}));
  const auto given = std::find(kValues.begin(), kValues.end(), tipoParcella);
  tipo.Choose(given == kValues.end() ? 0 : static_cast<int>(given - kValues.begin()));
  for (std::size_t i = 0; i < Help.size(); ++i)
    Help[i].onPress = [&player, i] {
      player.Ask(
          {"  INFORMAZIONE ", kHelp[i], MessageBox::Icon::Information, MessageBox::Buttons::Ok});
    };
  OKbutton.onPress = [this] {
    TipoParcella = kValues[static_cast<std::size_t>(std::max(tipo.Chosen(), 0))];
    Esci(Uscita::Conferma);
  };
}

bool ChiediTipologia(Player& player, std::string& TipoParcella, bool scissa) {
  FrmGenTipologia form(player, TipoParcella);
  form.Option[3].SetVisible(scissa);
  form.Help[3].SetVisible(scissa);
  player.Show(form);
  TipoParcella = form.TipoParcella;
  return form.Confermato();
}

}  // namespace orm
