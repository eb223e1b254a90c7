#include "structures/truss_slab/form_truss_slab.h"

#include <string>

#include "dialogs/message_boxes.h"
#include "structures/structural_report.h"
#include "structures/truss_slab/report.h"

namespace orm {
namespace {

constexpr const char* kLuceNulla = "IL CALCOLO NON PUÓ ESSERE ESEGUITO PERCHÈ LA LUCE È ZERO";
constexpr const char* kCarichiNulli =
    "IL CALCOLO NON PUÓ ESSERE ESEGUITO PERCHÈ I CARICHI SONO ZERO";

std::string InMezzeria(const std::string& testo) {
  return "NON È POSSIBILE VERIFICARE IL SOLAIO !\nIN MEZZERIA LE TENSIONI " + testo +
         " SONO SUPERIORI A QUELLE AMMISSIBILI.\n         VARIARE I DATI E RIPROVARE.           ";
}

std::string AllAppoggio(const std::string& lato, const std::string& testo) {
  return "ALL'APPOGGIO DI " + lato + " LE TENSIONI NORMALI " + testo +
         " SONO SUPERIORI A QUELLE AMMISSIBILI.";
}

std::string Rifiuto(EsitoSolaioT esito) {
  switch (esito) {
    case EsitoSolaioT::SenzaMonconi:
      return "NON È POSSIBILE VERIFICARE IL SOLAIO !\n\n   MANCANO I MONCONI SUPERIORI.\n\n\n   "
             "VARIARE I DATI E RIPROVARE.";
    case EsitoSolaioT::MezzeriaCls:
      return InMezzeria("DEL CLS");
    case EsitoSolaioT::MezzeriaAcciaio:
      return InMezzeria("DELL'ACCIAIO");
    case EsitoSolaioT::SinistraCls:
      return AllAppoggio("SINISTRA", "DEL CLS");
    case EsitoSolaioT::SinistraAcciaio:
      return AllAppoggio("SINISTRA", "DELL'ACCIAIO");
    case EsitoSolaioT::DestraCls:
      return AllAppoggio("DESTRA", "DEL CLS");
    case EsitoSolaioT::DestraAcciaio:
      return AllAppoggio("DESTRA", "DELL'ACCIAIO");
    case EsitoSolaioT::ZonePieneMomenti:
      return "LUNGHEZZA ECCESSIVA DELLE ZONE PIENE PER RESISTENZA AI MOMENTI";
    case EsitoSolaioT::ZonePieneTaglio:
      return "LUNGHEZZA ECCESSIVA DELLE ZONE PIENE PER RESISTENZA AL TAGLIO";
    case EsitoSolaioT::Verificato:
      break;
  }
  return {};
}

}  // namespace

FrmVerSolaioTralic::FrmVerSolaioTralic(RunState& stato)
    : FormRiprendibile("frmVER_SOLAIO_TRALIC",
                       "PROGETTO SOLAI MONOCAMPATA A TRALICCIO E LATERIZIO MONOBLOCCO", stato) {
  SetContent(Column({ingressi.Contents(), viste.Contents(lblEsito),
                     Buttons({comCalcola, comSTAMPA, cmdSPIEGA, cmdSALVA, cmdAPRI, ComEsci})}));
  ingressi.TieEvents([this] { Azzera(); });
  SetFirstFocus(ingressi.cdLuce);
  comCalcola.onPress = [this] { Calcola(); };
  comSTAMPA.onPress = [this] { TryAndStay(stato_.player, [this] { Stampa(); }); };
  ComEsci.onPress = [this] { Close(); };
  Azzera();
}

void FrmVerSolaioTralic::Resume(const FormValues& values) {
  ingressi.Riprendi([&] { FormRiprendibile::Resume(values); });
}

void FrmVerSolaioTralic::Azzera() {
  viste.Azzera();
  comSTAMPA.SetEnabled(false);
}

void FrmVerSolaioTralic::Calcola() {
  if (!ingressi.AccettaLuce()) return;
  const DatiSolaioT dati = ingressi.Leggi();
  if (dati.luce == 0) {
    stato_.player.Ask(Avviso(kLuceNulla));
    return;
  }
  if (dati.pesoProprio + dati.permanente + dati.accidentale == 0) {
    stato_.player.Ask(Avviso(kCarichiNulli));
    return;
  }
  const RisultatiSolaioT risultati = ProgettaSolaioT(dati);
  if (risultati.esito != EsitoSolaioT::Verificato) {
    stato_.player.Ask(Avviso(Rifiuto(risultati.esito)));
    return;
  }
  ingressi.ScriviFerri(risultati);
  viste.Mostra({dati, risultati});
  Calcolato("SOLAIO VERIFICATO", true, viste.Spiegate());
  comSTAMPA.SetEnabled(true);
}

void FrmVerSolaioTralic::Stampa() {
  RelazioneStrutturale(stato_, kRelazioneSolaioT)
      .Stampa([this](ReportPrinter& testo, bool primo, int numero) {
        if (primo) StampaIntestazioneSolaioT(testo, LeggiProduttore(stato_.folder));
        StampaSolaioT(testo, numero, viste.Progetto().dati, viste.Progetto().risultati);
      });
}

void MostraSolaioTraliccio(RunState& stato) { FrmVerSolaioTralic(stato).Presenta(); }

}  // namespace orm
