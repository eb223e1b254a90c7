// The steps of the accessory compensations.
#include "tariff/config/compensation_steps.h"

#include <string>
#include <vector>

#include "runtime/data_file.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr int kScaglioniMassimi = 30;

struct Scaglione {
  double importo = 0, percentuale = 0;
};

// Amounts may stand still, which makes a leap, but not fall.
std::vector<Scaglione> LeggiScaglioni(const WorkFolder& folder, std::string& intestazione) {
  DataReader file(folder, kFileCompensi);
  std::string RigaIgnorata;
  const int n = file.Count("numero degli scaglioni", kScaglioniMassimi);
  if (n == 0)
    throw RuntimeFailure("Gli scaglioni devono essere almeno uno.")
        .AtFile(kFileCompensi)
        .AtLine(1)
        .AtField("numero degli scaglioni");
  file.Read(Field("nota", intestazione));
  std::vector<Scaglione> scaglioni(static_cast<std::size_t>(n));
  double precedente = 0;
  for (int riga = 2; Scaglione & s : scaglioni) {
    file.Line(Field("importo", s.importo), Field("percentuale", s.percentuale),
              Field("nota", RigaIgnorata));
    if (s.importo < precedente)
      throw RuntimeFailure("Gli importi degli scaglioni devono essere crescenti.")
          .AtFile(kFileCompensi)
          .AtLine(riga)
          .AtField("importo");
    precedente = s.importo;
    ++riga;
  }
  return scaglioni;
}

}  // namespace

double ScaglioniCompensi::PercCompensiAccessoriCfg(double importo, Interpolazione* lettura,
                                                   std::string* nota) const {
  std::string intestazione;
  const std::vector<Scaglione> scaglioni = LeggiScaglioni(folder_, intestazione);
  if (nota != nullptr) *nota = std::move(intestazione);
  if (importo == 0) return 0;
  std::size_t i = 0;
  while (i < scaglioni.size() && importo > scaglioni[i].importo) ++i;
  const bool fuori = i == 0 || i == scaglioni.size();
  const Scaglione& sopra = scaglioni[i == scaglioni.size() ? i - 1 : i];
  const Scaglione& sotto = fuori ? sopra : scaglioni[i - 1];
  if (lettura != nullptr)
    *lettura = {importo, sotto.importo, sopra.importo, sotto.percentuale, sopra.percentuale};
  if (fuori) return sopra.percentuale;
  return sotto.percentuale - (sotto.percentuale - sopra.percentuale) * (importo - sotto.importo) /
                                 (sopra.importo - sotto.importo);
}

}  // namespace orm
