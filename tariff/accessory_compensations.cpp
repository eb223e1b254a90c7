// Accessory compensations.
#include "tariff/accessory_compensations.h"

#include <algorithm>
#include <vector>

#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/table_compensations.h"
#include "tariff/money.h"
#include "tariff/percentages.h"
#include "tariff/report.h"

namespace orm {
namespace {

constexpr const char* kFileCompensi = "CAC.CFG";
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
  const auto fascia = std::ranges::find_if(kFasceCalabria, [importo](const FasciaCalabria& f) {
    return importo >= f.da && importo <= f.fino;
  });
  if (fascia == kFasceCalabria.end()) return;
  if (residenza == "FUORIREGIONE") P = fascia->fuoriRegione;
  if (residenza == "OLTRE100KM") P = fascia->oltre100Km;
  if (residenza == "ENTRO100KM") P = fascia->entro100Km;
}

double PercCompensi2001(double importo, const Compensi2001& tratto) {
  constexpr double calo = kCompensiMassimi2001 - kCompensiMinimi2001;
  if (importo <= tratto.fino) return kCompensiMassimi2001;
  if (importo > tratto.a) return kCompensiMinimi2001;
  if (importo < tratto.da) return 0;
  return kCompensiMassimi2001 - calo * (importo - tratto.da) / tratto.ampiezza;
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
  return PercCompensi2001(importo, kCompensi2001Lire);
}

double PercCompensiNuovaTariffaEuro(double importo) {
  return PercCompensi2001(importo, kCompensi2001Euro);
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
