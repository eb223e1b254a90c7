// Accessory compensations.
#include "tariff/accessory_compensations.h"

#include <vector>

#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {
namespace {

constexpr int kScaglioniMassimi = 30;

struct Scaglione {
  double importo = 0, percentuale = 0;
};

// Amounts may stand still, which makes a leap, but not fall.
std::vector<Scaglione> LeggiScaglioni(const WorkFolder& folder) {
  DataReader file(folder, kFileCompensi);
  std::string RigaIgnorata;
  const int n = file.Count("numero degli scaglioni", kScaglioniMassimi);
  if (n == 0)
    throw RuntimeFailure("Gli scaglioni devono essere almeno uno.")
        .AtFile(kFileCompensi)
        .AtLine(1)
        .AtField("numero degli scaglioni");
  file.Read(Field("nota", RigaIgnorata));
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

// What the criterion of the Region Calabria gives for testing fees, by the residence of the tester.
void PercentualeCalabria(double importo, const std::string& residenza, double& P) {
  double fuoriRegione = P, oltre100Km = P, entro100Km = P;
  if (importo <= 1500000000)
    fuoriRegione = oltre100Km = entro100Km = 60;
  else if (importo >= 1500000001 && importo <= 3000000000)
    fuoriRegione = 60, oltre100Km = entro100Km = 45;
  else if (importo > 3000000000)
    fuoriRegione = 60, oltre100Km = 45, entro100Km = 30;
  if (residenza == "FUORIREGIONE") P = fuoriRegione;
  if (residenza == "OLTRE100KM") P = oltre100Km;
  if (residenza == "ENTRO100KM") P = entro100Km;
}

// A percentage and the coefficient that it makes, with the texts of both.
struct Compensi {
  double& Coefficiente;
  std::string& StringaCoefficiente;
  std::string percentuale;

  // Both are cut to their printed decimals, the coefficient to two more.
  void Tagliati(double P, int decimali) {
    percentuale = FormattaNumero(P, decimali);
    Coefficiente = P / 100 + 1;
    StringaCoefficiente = " x " + FormattaNumero(Coefficiente, decimali + 2);
  }

  // Both stand as plain numbers, with the decimal point; 0 % prints nothing.
  void ComeSono(double P) {
    Coefficiente = P / 100 + 1;
    const bool nulli = Coefficiente == 1;
    percentuale = nulli ? "" : NumberText(P);
    StringaCoefficiente = nulli ? "" : " x " + NumberText(Coefficiente);
  }
};

void StampaCompensi(RunState& stato, double importo, const std::string& percentuale,
                    bool conImporto) {
  ReportPrinter& stampa = stato.NumFileUscita;
  stampa.Line(kRigaCompensiAccessori);
  stampa.Text("Percentuale : " + percentuale + "%");
  if (conImporto) {
    const double lavori = stato.ModoLire ? importo : LireInEuro(importo);
    stampa.Text(" su ").Tab(48).Text(StringaImporto(FormattaCopia(lavori, stato.DecimaliValuta()),
                                                    TipoImporto::Lavori, stato.ModoLire));
  }
  stampa.EndLine();
}

}  // namespace

void PercCompensiAccessoriCfg(const WorkFolder& folder, double importo, double& percentuale) {
  const std::vector<Scaglione> scaglioni = LeggiScaglioni(folder);
  if (importo == 0) {
    percentuale = 0;
    return;
  }
  std::size_t i = 0;
  while (i < scaglioni.size() && importo > scaglioni[i].importo) ++i;
  if (i == 0) {
    percentuale = scaglioni.front().percentuale;
  } else if (i == scaglioni.size()) {
    percentuale = scaglioni.back().percentuale;
  } else {
    const Scaglione &sotto = scaglioni[i - 1], &sopra = scaglioni[i];
    percentuale = sotto.percentuale - (sotto.percentuale - sopra.percentuale) *
                                          (importo - sotto.importo) /
                                          (sopra.importo - sotto.importo);
  }
}

double PercCompensiNuovaTariffaLire(double importo) {
  if (importo <= 50000000) return 30;
  if (importo > 100000000000) return 15;
  if (importo < 50000001) return 0;
  return 30 - 15 * (importo - 50000001) / (100000000000 - 50000001);
}

double PercCompensiNuovaTariffaEuro(double importo) {
  if (importo <= 25822.84) return 30;
  if (importo > 51645689.91) return 15;
  if (importo < 25822.85) return 0;
  return 30 - 15 * (importo - 25822.85) / 51619867.06;
}

void CompensiAccessori(RunState& stato, double importo, ModoCompensi modo, double& Coefficiente,
                       std::string& StringaCoefficiente) {
  if (modo == ModoCompensi::Nessuno || importo == 0) {
    Coefficiente = modo == ModoCompensi::Nessuno ? 1 : 0;
    StringaCoefficiente.clear();
    return;
  }
  const Criteri& criteri = stato.criteri;
  const std::string& tipo = criteri.TipoPercentualeCompensi;
  Compensi compensi{Coefficiente, StringaCoefficiente, ""};
  int decimali = 0;
  DecimaliPercentuale(importo, decimali, criteri.DecimaliCompensi);
  double P = 0;
  if (tipo == "CALCOLATA") {
    PercCompensiAccessoriCfg(stato.folder, importo, P);
    compensi.Tagliati(P, decimali);
  } else if (tipo == "NUOVA TARIFFA") {
    compensi.Tagliati(PercCompensiNuovaTariffaLire(importo), decimali);
  } else if (tipo == "ASSEGNATA") {
    compensi.ComeSono(criteri.PercCompensiAssegnata);
  } else if (tipo == "CALABRIA") {
    PercentualeCalabria(importo, criteri.ResidenzaCollaudatore, P);
    compensi.ComeSono(P);
  }
  if (modo == ModoCompensi::Stampa && Coefficiente != 1)
    StampaCompensi(stato, importo, compensi.percentuale,
                   tipo == "CALCOLATA" || tipo == "NUOVA TARIFFA");
}

}  // namespace orm
