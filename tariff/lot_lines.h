// What the notes with lots of works share: percentages as they are printed, the lines of a lot, the
// formula of a fee, the certificate, and the closing of a note whose fees contain their
// compensations.
#pragma once

#include <string>
#include <string_view>

#include "shell/state/run_state.h"

namespace orm {

// A percentage cut to what its text shows, "4,36916%"; fees are reckoned with the cut one. Of an
// amount of 0 it is 0, "0 %". One that is not needed has no text.
struct Percentuale {
  double valore = 0;
  std::string testo;
};

// The factor that adds the accessory compensations to a fee, and its text behind a formula.
struct Compensi {
  double Coefficiente = 1;
  std::string StringaCoefficiente;
};

// The amount that goes to the tables, which are in Lire.
double ImportoInLire(const RunState& stato, double importo);
// The whole part in Lire; in Euro the value as it is.
double IntInLire(const RunState& stato, double valore);

// Any percentage, cut to the decimals that its amount in Lire asks for.
Percentuale PercentualeTagliata(const RunState& stato, double lire, double valore);
// `importo` in the currency of the note. The number of decimals goes by the amount in Lire.
Percentuale PercentualeDaTabellaA(const RunState& stato, double importo, int periodo,
                                  std::string_view classe, std::string_view categoria);
Percentuale PercentualeDaTabellaNuova(const RunState& stato, double importo,
                                      std::string_view classe, std::string_view categoria);

// The compensations on the amount of the works, and their block on the report.
Compensi StampaCompensiAccessori(RunState& stato, double importo);

// Figures shown and not cut: "1.000.000", "1.000,50".
std::string TestoImporto(const RunState& stato, double importo);

// "3 - CLASSE/CATEGORIA    1/c", the start of a line.
std::string TitoloLotto(std::size_t numero, std::string_view classe, std::string_view categoria);
// One line: `voce` from `colonna`, the amount of works from column 48.
void StampaLavori(RunState& stato, int colonna, std::string_view voce, double importo);
// The works designed, as the list of amounts calls them: those of the original design have
// a minus, and are shown without it; nothing for 0.
void StampaProgettoSpecifica(RunState& stato, int colonna, double importo);
// One line: `voce` and the percentage, " su  " at `colonna`, its base from column 48.
void StampaPercentuale(RunState& stato, std::string_view voce, const Percentuale& percentuale,
                       double base, int colonna = 33);

inline constexpr std::string_view kVocePercentualeProgetto = " % Prog. (Tab. A) = ";
inline constexpr std::string_view kVocePercentualeDirezione = " % D.L.  (Tab. A) = ";

// Supervision is printed above this amount; a note "CONSUNTIVA" calls it otherwise.
inline constexpr double kDirezioneMinimaStampata = 3;
// And it is summed above this one.
inline constexpr double kDirezioneMinimaSommata = 2;
std::string_view VoceDirezioneSpecifica(std::string_view TipoParcella);
std::string_view VoceDirezioneOnorari(std::string_view TipoParcella);

// A fee and how it comes about: "`inizio`0,35 x 4,36916% x 1.000.000 x 1,25 =".
struct RigaFormula {
  std::string_view inizio = " ";
  double aliquota = 0;
  int decimali = 2;  // of the aliquot, zeros at the end dropped
  const Percentuale& percentuale;
  double importo = 0;
  std::string_view StringaCoefficiente;
};
// Prints it; `onorario` is cut to what is printed, and returned.
double StampaOnorario(RunState& stato, const RigaFormula& formula, double onorario);

// The certificate of regular execution by Table C on the sum of the supervision.
double StampaCertificato(RunState& stato, int periodo, double SommaDirezione,
                         const Compensi& compensi);

// A fee without its compensations. Without any amount of works there is no coefficient and nothing
// to divide: 0.
double SenzaCompensi(double onorario, const Compensi& compensi);

// The final account of a note whose fees come to `totale`; `NonConglobati` of them without
// compensations.
void ChiudiConCompensi(RunState& stato, double totale, const Compensi& compensi,
                       double NonConglobati = 0);

}  // namespace orm
