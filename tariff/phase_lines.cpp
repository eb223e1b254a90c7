#include "tariff/phase_lines.h"

#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {

double StampaOnorarioFase(RunState& stato, const RigaFase& riga, double onorario) {
  std::string etichetta(riga.inizio);
  etichetta += riga.percentuale.testo + " x " + FormattaCopia(riga.aliquota, 4) + " x ";
  etichetta += riga.importo;
  etichetta += riga.fattori;
  etichetta += riga.StringaCoefficiente;
  StampaRigaOnorario(stato, 1, etichetta + " =", onorario);
  return onorario;
}

}  // namespace orm
