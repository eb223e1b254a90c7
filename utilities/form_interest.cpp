// The dialog of interest on late payment.
#include "utilities/form_interest.h"

#include <utility>

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"
#include "utilities/interest.h"

namespace orm {
namespace {

constexpr Date kUltimoGiorno{2099, 12, 31};
constexpr long kGiorniProposti = 500;  // from the first date proposed to today

Date Dopo(const Date& data, long giorni) { return DateOfDay(DayNumber(data) + giorni); }

}  // namespace

void MostraInteressiMora(RunState& stato) {
  FrmUtiIntereMora form(stato, LeggiTabellaTus(stato.folder, stato.player.Today()));
  stato.player.Show(form);
}

FrmUtiIntereMora::FrmUtiIntereMora(RunState& stato, TabellaTus tabella)
    : Form("frmUTI_INTEREMORA", " INTERESSI DI MORA PER RITARDATO PAGAMENTO PARCELLA"),
      stato_(stato),
      DTPicker1(*this, "DTPicker1", "DATA INIZIO MORA", tabella.front().InizioPeriodo,
                kUltimoGiorno),
      DTPicker2(*this, "DTPicker2", "DATA FINE MORA", Dopo(tabella.front().InizioPeriodo, 1),
                kUltimoGiorno),
      tabella_(std::move(tabella)) {
  Option1.SetValue(true);
  DTPicker1.SetValue(Dopo(stato_.player.Today(), -kGiorniProposti));
  DTPicker2.SetValue(stato_.player.Today());

  for (Control* dato :
       std::initializer_list<Control*>{&casellainteri1, &DTPicker1, &DTPicker2, &Option1, &Option2})
    dato->onChange = [this] { SvuotaRisultati(); };
  Command1.onPress = [this] { TryAndStay(stato_.player, [this] { Calcola(); }); };
  Command2.onPress = [this] { Close(); };

  SetContent(Column({Fields({casellainteri1, DTPicker1, DTPicker2}),
                     Group(fraInteresse, {Row({Option1, Option2})}), Fields({Text3, Text4, Text5}),
                     Buttons({Command1, cmdSPIEGA, Command2})}));
}

void FrmUtiIntereMora::SvuotaRisultati() {
  for (TestoBox* risultato : {&Text3, &Text4, &Text5}) risultato->SetText("");
  cmdSPIEGA.Nessuna();
}

void FrmUtiIntereMora::Calcola() {
  if (DTPicker1.Value() > DTPicker2.Value()) {
    stato_.player.Ask({kAttenzione, "DATA NON ACCETTABILE : \nsuperiore a quella di fine mora",
                       MessageBox::Icon::Critical});
    MoveFocus(DTPicker1);
    return;
  }
  const InteressiMora esito =
      CalcolaInteressiMora(tabella_, casellainteri1.Value(), DTPicker1.Value(), DTPicker2.Value(),
                           Option1.Value() ? TipoInteresse::Semplice : TipoInteresse::Composto);
  Text3.SetText((esito.Giorni < 0 ? "" : " ") + NumberText(esito.Giorni));
  Text4.SetText(FormatPattern(esito.TassoMedio, kModelloTasso));
  Text5.SetText(FormatPattern(esito.Interessi, kModelloInteressi));
  cmdSPIEGA.Di(SpiegaInteressiMora(esito));
}

}  // namespace orm
