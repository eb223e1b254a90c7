// The letter to the Order.
#include "shell/letter/letter.h"

#include "dialogs/message_boxes.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/report_printer.h"
#include "runtime/text.h"
#include "tariff/files/user_files.h"

namespace orm {
namespace {

constexpr int kColonnaIndirizzo = 30;
constexpr int kColonnaFirma = 58;
constexpr const char* kFirma = "IL  PROFESSIONISTA";

void StampaMittente(ReportPrinter& foglio, const DatiProfessionista& utente) {
  foglio.Line().Line();
  foglio.Line(TitoloDi(utente) + utente.Nome).Line();
  foglio.Line(utente.Indirizzo);
  foglio.Line(utente.Cap + " " + utente.Citta + " (" + utente.Provincia + ")");
  foglio.Line("Tel. : " + utente.Telefono + "  - Fax : " + utente.Fax);
  foglio.Line("E-mail : " + utente.Email);
  foglio.Line("C.F. : " + utente.CodiceFiscale + "  - Part. IVA : " + utente.PartitaIva);
}

void StampaDestinatario(ReportPrinter& foglio, const DatiProfessionista& utente,
                        const DatiLettera& lettera) {
  const std::size_t lettere = Characters(utente.Professione);
  const std::string plurale =
      Capitals(Left(utente.Professione, lettere > 0 ? lettere - 1 : 0)) + "I";
  foglio.Line().Line();
  foglio.Tab(kColonnaIndirizzo).Line("AL PRESIDENTE DELL'ORDINE DEGLI " + plurale);
  foglio.Tab(kColonnaIndirizzo).Line("      della PROVINCIA di " + lettera.OrdineDi);
  foglio.Line().Line();
}

void StampaRichiesta(ReportPrinter& foglio, const DatiProfessionista& utente,
                     const Intestazione& parcella) {
  foglio.Tab(4).Line("Il sottoscritto " + TitoloDi(utente) + utente.Nome + " ,");
  foglio.Line("iscritto presso codesto Albo al numero " + utente.NumeroIscrizione + ",");
  foglio.Line("chiede la liquidazione dell'allegata parcella relativa alla prestazione");
  foglio.Line("professionale riguardante :");
  foglio.Line(parcella.Oggetto);
  if (!parcella.Documenti.empty()) foglio.Line(parcella.Documenti);
  foglio.Line();
  foglio.Line("ed espletata per conto di ");
  foglio.Line(parcella.Committente);
  foglio.Line();
}

void StampaDichiarazioni(ReportPrinter& foglio, const DatiLettera& lettera) {
  if (lettera.RiferimentoParcella == "SI") {
    foglio.Line("La presente parcella ha riferimento con altra parcella già liquidata");
    foglio.Line("e precisamente la n. " + lettera.NumeroPrecedente + " del " +
                lettera.DataPrecedente);
  } else {
    foglio.Line("La presente parcella non ha riferimento con altra parcella già liquidata");
  }
  foglio.Line(".").Line();

  const std::string professione = lettera.StatoProfessionale == "Libero" ? "libero professionista"
                                  : lettera.StatoProfessionale == "Docente" ? "docente"
                                                                            : "dipendente";
  foglio.Line("Il sottoscritto dichiara di essere " + professione + ".");

  if (!lettera.DocumentiAllegati.empty())
    foglio.Line("Allega i seguenti documenti :").Line().Line(lettera.DocumentiAllegati).Line();
}

void StampaFirma(ReportPrinter& foglio, const DatiProfessionista& utente, const Date& oggi) {
  foglio.Tab(2).Line("Distinti saluti.").Line().Line();
  if (!utente.Citta.empty()) foglio.Line(TrimRight(utente.Citta) + ", li " + ShortDate(oggi));
  const std::string nome = TitoloDi(utente) + utente.Nome;
  const int L = static_cast<int>(Characters(nome));
  const int larghezza = static_cast<int>(Characters(kFirma));
  const int colonna = std::max(1, kColonnaFirma - L);  // a name longer than the line begins with it
  foglio.Tab(colonna + static_cast<int>(Int((L - larghezza) / 2.0))).Line(kFirma);
  foglio.Tab(colonna).Line(nome);
}

MessageBox AvvisoFileLetteraAssente() {
  return Avviso(
      "NON ESISTE IL FILE DEI DATI RELATIVO ALLA LETTERA DI TRASMISSIONE\n"
      "INSERIRE TALI DATI RICHIAMANDO L'APPOSITA                        \n"
      "OPZIONE DEL MENÚ UTILITÁ                                         ");
}

MessageBox AvvisoIntestazioneAssente() {
  return {kAttenzione,
          "NON ESISTE IL FILE DATI DI INTESTAZIONE PER LA PARCELLA RICHIESTA\n"
          "PROVVEDERE A FORNIRE I RELATIVI DATI\n"
          "\n"
          "RICHIAMANDO L'APPOSITA OPZIONE DEL MENÚ PARCELLE",
          MessageBox::Icon::Information, MessageBox::Buttons::Ok};
}

}  // namespace

DatiLettera LeggiLettera(const WorkFolder& folder) {
  DatiLettera dati = LeggiFile<DatiLettera>(folder, kFileLettera);
  if (dati.TipoLettera < 0 || dati.TipoLettera >= static_cast<int>(kTipiLettera.size()))
    throw RuntimeFailure("Il tipo di parcella deve essere fra 0 e 14.")
        .AtFile(kFileLettera)
        .AtField("TipoLettera");
  return dati;
}

void ScriviLettera(const WorkFolder& folder, const DatiLettera& dati) {
  ScriviFile(folder, kFileLettera, dati);
}

void STAMPALETTERA(RunState& stato) {
  const DatiProfessionista utente = LeggiDatiProfessionista(stato.folder);
  ReportPrinter foglio;
  StampaMittente(foglio, utente);

  const DatiLettera lettera = LeggiLettera(stato.folder);
  const std::string intestazione =
      std::string("INT_") + kTipiLettera[static_cast<std::size_t>(lettera.TipoLettera)].codice +
      (lettera.ValutaLettera == "LIRE" ? ".DAP" : "_E.DAP");
  if (!stato.folder.Exists(intestazione)) {
    // The letter goes no further, and is opened with its heading only.
    foglio.Save(stato.folder, kFileLetteraStampata);
    stato.player.Ask(AvvisoIntestazioneAssente());
    return;
  }
  const Intestazione parcella = LeggiIntestazione(stato.folder, intestazione);
  StampaDestinatario(foglio, utente, lettera);
  StampaRichiesta(foglio, utente, parcella);
  StampaDichiarazioni(foglio, lettera);
  StampaFirma(foglio, utente, stato.player.Today());
  foglio.Save(stato.folder, kFileLetteraStampata);
}

void VisualizzaLettera(RunState& stato) {
  if (!stato.folder.Exists(kFileUtente)) {
    stato.player.Ask(AvvisoFileUtenteAssente());
    return;
  }
  if (!stato.folder.Exists(kFileLettera)) {
    stato.player.Ask(AvvisoFileLetteraAssente());
    return;
  }
  STAMPALETTERA(stato);
  stato.player.StartProgram(stato.editors.EditorTesti, kFileLetteraStampata);
}

}  // namespace orm
