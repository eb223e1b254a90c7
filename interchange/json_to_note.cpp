// From the JSON of a note to its files.
#include <algorithm>
#include <utility>

#include "cases/fee_case.h"
#include "interchange/interchange.h"
#include "interchange/json_text.h"
#include "interchange/note_files.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

std::string TestoDi(const Json& nota, const char* nome) {
  const auto trovato = nota.find(nome);
  if (trovato == nota.end()) throw RuntimeFailure("Manca questo campo.").AtField(nome);
  if (!trovato->is_string()) throw RuntimeFailure(AlPostoDi("di un testo", *trovato)).AtField(nome);
  return trovato->get<std::string>();
}

// Refuses what is none of our notes, or one of a program to come.
void EsigiFormato(const Json& nota) {
  if (!nota.is_object()) throw RuntimeFailure(AlPostoDi("di un oggetto", nota));
  if (const std::string formato = TestoDi(nota, "formato"); formato != kFormatoJson)
    throw RuntimeFailure("Il file non è una parcella di ORM2002: il suo formato è \"" +
                         Left(formato, 40) + "\".")
        .AtField("formato");
  if (const Json versione = nota.value("versione", Json()); versione != kVersioneJson)
    throw RuntimeFailure(AlPostoDi("della versione 1, che questo programma legge,", versione))
        .AtField("versione");
}

std::string CasoDi(const Json& nota) {
  const std::string codice = TestoDi(nota, "caso");
  if (FindFeeCase(codice) == nullptr)
    throw RuntimeFailure("Codice sconosciuto: " + Left(codice, 40)).AtField("caso");
  return codice;
}

bool InLire(const Json& nota) {
  const std::string valuta = TestoDi(nota, "valuta");
  if (valuta != "ITL" && valuta != "EUR")
    throw RuntimeFailure("La valuta è ITL o EUR, non \"" + Left(valuta, 40) + "\".")
        .AtField("valuta");
  return valuta == "ITL";
}

// The file that the fields make.
std::string DaiCampi(const FileDiNota& file, const Json& valore) {
  CampiDaJson campi(valore, file.chiave, file.forma);
  DataWriter scrittura;
  try {
    file.campi.scrivi(campi, scrittura);
    campi.EsigiFine();
  } catch (const RuntimeFailure& failure) {
    // Of the JSON's own checks the field is a place already; those of the case and of the encoding
    // know the field, and perhaps the line.
    if (failure.Field().starts_with(file.chiave)) throw;
    throw RuntimeFailure(failure.Reason()).AtField(campi.Posto(failure.Field(), failure.Line()));
  }
  return scrittura.Bytes();
}

// The user's own text of a file, as long as it says the same as the fields.
std::string ComeEra(const Json& nota, const FileDiNota& file, const std::string& bytes) {
  const auto originali = nota.find("originali");
  if (originali == nota.end() || !originali->is_object()) return bytes;
  const auto testo = originali->find(file.nome);
  if (testo == originali->end() || !testo->is_string()) return bytes;
  try {
    const std::string come = ToWindows1252(testo->get<std::string>());
    return ComeScrittoDaNoi(file, come) == bytes ? come : bytes;
  } catch (const RuntimeFailure&) {
    return bytes;  // it says nothing that can be read
  }
}

NotaDaJson NotaDelJson(std::string_view json) {
  const Json nota = LeggiJson(json);
  EsigiFormato(nota);
  const std::string codice = CasoDi(nota);
  NotaDaJson letta{{codice, InLire(nota)}, {}};
  for (const FileDiNota& file : FileDellaNota(codice, letta.nota.lire)) {
    const auto valore = nota.find(file.chiave);
    if (valore == nota.end() && !file.sempre) continue;
    if (valore == nota.end()) throw RuntimeFailure("Manca questo campo.").AtField(file.chiave);
    const std::string bytes = ComeEra(nota, file, DaiCampi(file, *valore));
    if (bytes.size() > WorkFolder::kLargestFile)
      throw RuntimeFailure("I dati sono troppi per un file.").AtField(file.chiave);
    letta.files.push_back({file.nome, bytes, file.sempre});
  }
  return letta;
}

}  // namespace

NotaDaJson LeggiNotaDaJson(const std::string& nomeJson, std::string_view json) {
  try {
    return NotaDelJson(json);
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(nomeJson);
  }
}

std::vector<std::string> ScriviDaJson(const WorkFolder& folder, const std::string& nomeJson,
                                      std::string_view json) {
  std::vector<std::string> nomi;
  for (const FileDaJson& file : LeggiNotaDaJson(nomeJson, json).files) {
    if (!folder.Exists(file.nome) || folder.Read(file.nome) != file.bytes)
      folder.Replace(file.nome, file.bytes);
    nomi.push_back(file.nome);
  }
  return nomi;
}

}  // namespace orm
