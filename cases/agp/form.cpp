#include "cases/agp/form.h"

#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

constexpr const char* kAvvertenze =
    "Per il disposto dell'articolo 23-b si ha la maggiorazione per incarico parziale\n"
    "se l'aggiornamento viene eseguito da professionista non autore del progetto.\n"
    "\n"
    "Se, in ogni caso, non si desidera tale maggiorazione basta porre a SI l'opzione\n"
    "relativa all'aggiornamento eseguito dallo stesso progettista.";

std::vector<std::string> NomiDeiDecreti() {
  std::vector<std::string> nomi;
  for (int periodo = 1; periodo <= kPeriodo1987; ++periodo)
    nomi.push_back(NomePeriodoTariffarioEsteso(periodo));
  return nomi;
}

}  // namespace

FrmAgpDatig::FrmAgpDatig(Player& player, const DatiAgp& dati)
    : Form("frmAGP_Datig", "AGGIORNAMENTO  PREZZI : DATI GENERALI"),
      TipoDiAggiornamento(dati.TipoDiAggiornamento),
      EsecutoreDellAggiornamento(dati.EsecutoreDellAggiornamento),
      PeriodoTariffario(dati.PeriodoTariffario),
      Frame1(*this, "Frame1", "AGGIORNAMENTO ESEGUITO IN BASE A"),
      Option1(*this, "Option1", "SEMPLICI VARIAZIONI PERCENTUALI DEI PRIMITIVI PREZZI", metodo),
      Option2(*this, "Option2", "NUOVE ANALISI PREZZI", metodo),
      Frame2(*this, "Frame2", "AGGIORNAMENTO ESEGUITO DALLO STESSO PROGETTISTA"),
      OptionSI(*this, "OptionSI", "SI", progettista),
      OptionNO(*this, "OptionNO", "NO", progettista),
      Frame3(*this, "Frame3", "PRESTAZIONE ESEGUITA NEL PERIODO DI VALIDITA' DEL"),
      Decreti(*this, "Decreti", "", NomiDeiDecreti()),
      cmdAvvertenze(*this, "cmdAvvertenze", "Avvertenze"),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({Group(Frame1, {Option1, Option2}), Group(Frame2, {Row({OptionSI, OptionNO})}),
                     Group(Frame3, {Decreti}), Buttons({cmdAvvertenze, Command1})}));
  metodo.Choose(TipoDiAggiornamento == "SEMPLICE AGGIORNAMENTO" ? 0 : 1);
  progettista.Choose(EsecutoreDellAggiornamento == "SI" ? 1 : 0);
  Decreti.SetIndex(PeriodoTariffario.size() == 1 ? PeriodoTariffario[0] - '1' : -1);
  cmdAvvertenze.onPress = [&player] {
    player.Ask({"AVVERTENZA", kAvvertenze, MessageBox::Icon::Information, MessageBox::Buttons::Ok});
  };
  Command1.onPress = [this] { Confirm(); };
}

// The answer is turned round: the designer himself takes no increase.
void FrmAgpDatig::Confirm() {
  TipoDiAggiornamento = Option1.Value() ? "SEMPLICE AGGIORNAMENTO" : "NUOVE ANALISI";
  EsecutoreDellAggiornamento = OptionSI.Value() ? "NO" : "SI";
  if (Decreti.Index() >= 0)
    PeriodoTariffario = std::string(1, static_cast<char>('1' + Decreti.Index()));
  Esci(Uscita::Conferma);
}

}  // namespace orm
