// From the files of a note to its JSON.
#include "cases/calculation_step.h"
#include "cases/fee_case.h"
#include "interchange/interchange.h"
#include "interchange/note_files.h"
#include "interchange/note_lines.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "runtime/version.h"
#include "shell/personal/settings.h"
#include "shell/quiet_player.h"
#include "tariff/files/case_files.h"
#include "tariff/files/user_files.h"

namespace orm {

std::vector<FileDiNota> FileDellaNota(const std::string& codice, bool lire) {
  const NomiFile nomi = NomiDiCaso(codice, lire);
  return {{"intestazione", nomi.FileInt, kCampi<Intestazione>, FormaCampi::Oggetto, true},
          {"professionista", kFileUtente, kCampi<DatiProfessionista>},
          {"criteri", kFileCriteri, kCampi<Criteri>},
          {"dati", nomi.FileInp, FindFeeCase(codice)->campi, FormaCampi::Linee, true}};
}

Parcella CalcolaDaCartella(const WorkFolder& folder, const std::string& codice, bool lire,
                           const Date& oggi, bool spiega) {
  const FeeCase* caso = FindFeeCase(codice);
  if (caso == nullptr) throw RuntimeFailure("Codice sconosciuto: " + codice);
  QuietPlayer nessuno(oggi);
  RunState stato(nessuno, folder);
  const NomiFile nomi = NomiDiCaso(codice, lire);
  stato.CasoDiParcella = codice;
  stato.ModoLire = lire;
  stato.memoria.The<SpiegazioniChieste>().si = spiega;
  stato.FileInt = nomi.FileInt;
  stato.FileInp = nomi.FileInp;
  LeggiCriteri(stato);
  return caso->calcolo(stato);
}

namespace {

// Criteria that nobody has kept are those that a calculation begins with.
std::vector<CampoLetto> CriteriUsuali() {
  Criteri criteri;
  FieldList elenco;
  Campi(elenco, criteri);
  return elenco.All();
}

void AggiungiFile(Json& nota, const WorkFolder& folder, const std::string& codice, bool lire) {
  Json originali;
  for (const FileDiNota& file : FileDellaNota(codice, lire)) {
    if (file.nome == kFileCriteri && !folder.Exists(file.nome)) {
      nota[file.chiave] = InJson(CriteriUsuali(), file.forma);
      continue;
    }
    const std::string bytes = folder.Read(file.nome);
    nota[file.chiave] = InJson(file.campi.Leggi(file.nome, bytes), file.forma);
    if (ComeScrittoDaNoi(file, bytes) != bytes) originali[file.nome] = FromWindows1252(bytes);
  }
  if (!originali.is_null()) nota["originali"] = originali;
}

void AggiungiRighe(Json& nota, const Parcella& parcella) {
  Json righe = Json::array(), totali = Json::object(), relazione = Json::array();
  for (const RigaConImporto& riga : RigheConImporto(parcella)) {
    const Json importo = NumeroInJson(ParseNumber(riga.importo).value_or(0));
    Json& voce = righe.emplace_back(Json::object());
    voce["riga"] = riga.riga;
    if (!riga.sezione.empty()) voce["sezione"] = riga.sezione;
    if (!riga.titolo.empty()) voce["titolo"] = riga.titolo;
    if (!riga.descrizione.empty()) voce["descrizione"] = riga.descrizione;
    voce["voce"] = riga.voce;
    voce["importo"] = importo;
    voce["valuta"] = CodiceValuta(riga.inEuro);
    voce["tipo"] = riga.tipo == TipoImporto::Lavori ? "lavori" : "onorari";
    if (const Spiegazione* perche = parcella.spiegazioni.Della(riga.riga))
      for (const Passaggio& passo : perche->passi) voce["regole"].push_back(passo.regola);
    if (riga.totale != nullptr) totali[riga.totale] = importo;
  }
  for (const std::string_view riga : RigheDellaRelazione(parcella)) relazione.push_back(riga);
  nota["righe"] = righe;
  nota["totali"] = totali;
  nota["relazione"] = relazione;
}

}  // namespace

std::string ComeScrittoDaNoi(const FileDiNota& file, const std::string& bytes) {
  const Json valore = InJson(file.campi.Leggi(file.nome, bytes), file.forma);
  CampiDaJson campi(valore, file.chiave, file.forma);
  DataWriter scrittura;
  file.campi.scrivi(campi, scrittura);
  return scrittura.Bytes();
}

std::string ParcellaInJson(const WorkFolder& folder, const std::string& codice, bool lire,
                           const Date& oggi) {
  const Parcella parcella = CalcolaDaCartella(folder, codice, lire, oggi, true);
  Json nota;
  nota["formato"] = kFormatoJson;
  nota["versione"] = kVersioneJson;
  nota["programma"] = kVersione;
  nota["caso"] = codice;
  nota["valuta"] = CodiceValuta(!lire);
  nota["data"] = Padded(oggi.year, 4) + "-" + Padded(oggi.month, 2) + "-" + Padded(oggi.day, 2);
  AggiungiFile(nota, folder, codice, lire);
  AggiungiRighe(nota, parcella);
  return nota.dump(1) + "\n";
}

}  // namespace orm
