#include "tariff/config/price_index.h"

#include <algorithm>
#include <string>

#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

constexpr int kAnniMassimi = 21;
constexpr int kAnnoBase = 1993;

// The coefficient 1,0009, which links the index with tobacco to the one without across February
// 1992, has no part here: both months lie behind it.

const IndiciAnno& Anno(const std::vector<IndiciAnno>& indici, int anno) {
  const auto trovato = std::ranges::find(indici, anno, &IndiciAnno::anno);
  if (trovato == indici.end())
    throw RuntimeFailure("Manca la riga degli indici dell'anno " + NumberText(anno) + ".")
        .AtFile(kFileIndici)
        .AtField("anno");
  return *trovato;
}

// `mese` and `anno` become those of the index that comes back.
double IndicePubblicato(const std::vector<IndiciAnno>& indici, int& mese, int& anno) {
  for (; anno >= kAnnoBase; --anno, mese = 12) {
    const IndiciAnno& riga = Anno(indici, anno);
    for (; mese >= 1; --mese)
      if (const double indice = riga.mesi[static_cast<std::size_t>(mese - 1)]; indice != 0)
        return indice;
  }
  return 0;
}

}  // namespace

std::vector<IndiciAnno> CaricaIndennitaCfg(const WorkFolder& folder, std::string* nota) {
  DataReader file(folder, kFileIndici);
  std::string intestazione;
  const int n = file.Count("numero degli anni", kAnniMassimi);
  if (n == 0) file.Fail("numero degli anni", "Gli anni devono essere almeno uno.");
  file.Read(Field("nota", intestazione));
  if (nota != nullptr) *nota = intestazione;
  std::vector<IndiciAnno> indici;
  for (int i = 0; i < n; ++i) {
    IndiciAnno riga;
    file.Read(Field("anno", riga.anno));
    if (std::ranges::find(indici, riga.anno, &IndiciAnno::anno) != indici.end())
      file.Fail("anno", "L'anno " + NumberText(riga.anno) + " c'è due volte.");
    for (double& indice : riga.mesi) {
      file.Read(Field("indice", indice));
      if (indice < 0) file.Fail("indice", "Un indice non può essere negativo.");
    }
    indici.push_back(riga);
  }
  file.ExpectEnd();
  return indici;
}

Conto IndiciFoi::PercentualeRivalutazione(int mese, int anno, LetturaIndici* lettura) const {
  std::string nota;
  const std::vector<IndiciAnno> indici = CaricaIndennitaCfg(folder_, &nota);
  if (anno < kAnnoBase || mese < 1 || mese > 12)
    throw RuntimeFailure("La rivalutazione parte da gennaio 1993: " + NumberText(mese) + "/" +
                         NumberText(anno) + " non ha un indice.")
        .AtFile(kFileIndici);
  const double base = Anno(indici, kAnnoBase).mesi.front();
  if (base == 0)
    throw RuntimeFailure("Manca l'indice di gennaio 1993.").AtFile(kFileIndici).AtField("indice");
  const double indice = IndicePubblicato(indici, mese, anno);
  if (lettura != nullptr) *lettura = {mese, anno, std::move(nota)};
  return (Conto(indice) / base - 1) * 100;
}

std::string IndiciFoi::Obiezione(int mese, int anno) const {
  try {
    PercentualeRivalutazione(mese, anno);
    return "";
  } catch (const RuntimeFailure& failure) {
    return failure.Text();
  }
}

}  // namespace orm
