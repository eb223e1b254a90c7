// Explanations as JSON.
#include <nlohmann/json.hpp>

#include "runtime/explanation/explanation.h"

namespace orm {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersioneJson = 1;

const char* NomeTaglio(TipoTaglio tipo) {
  switch (tipo) {
    case TipoTaglio::ParteIntera:
      return "parte intera";
    case TipoTaglio::Decimali:
      return "decimali";
    case TipoTaglio::Arrotonda:
      return "arrotondamento";
    default:
      return "arrotondamento sulla cifra";
  }
}

Json JsonPasso(const Passaggio& passo) {
  Json json{{"regola", passo.regola}};
  if (!passo.conto.empty()) json["conto"] = passo.conto.Testo();
  if (passo.risultato) json["risultato"] = *passo.risultato;
  if (!passo.unita.empty()) json["unita"] = passo.unita;
  for (const Taglio& taglio : passo.tagli)
    json["tagli"].push_back({{"tipo", NomeTaglio(taglio.tipo)},
                             {"decimali", taglio.decimali},
                             {"resta", taglio.dopo},
                             {"cade", CadeNelTaglio(taglio)}});
  if (!passo.note.empty()) json["note"] = passo.note;
  if (!passo.cifra.empty()) json["cifra"] = passo.cifra;
  return json;
}

}  // namespace

std::string JsonSpiegazioni(const std::vector<Spiegazione>& righe) {
  Json json{{"versione", kVersioneJson}, {"righe", Json::array()}};
  for (const Spiegazione& spiegazione : righe) {
    Json riga{{"riga", spiegazione.riga},
              {"testo", spiegazione.testo},
              {"cifra", std::string(spiegazione.Cifra())},
              {"passaggi", Json::array()}};
    for (const Passaggio& passo : spiegazione.passi) riga["passaggi"].push_back(JsonPasso(passo));
    json["righe"].push_back(std::move(riga));
  }
  return json.dump(2) + "\n";
}

}  // namespace orm
