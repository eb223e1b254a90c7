// Reports of slabs and cantilevers: one layout of captions, values and units, and one file for each
// kind of element, which every run of the program begins anew and then goes on.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "runtime/report_printer.h"
#include "shell/state/run_state.h"

namespace orm {

inline constexpr int kColonnaValore = 34;
inline constexpr int kColonnaUnita = 42;
inline constexpr int kColonnaOltre = 49;
inline constexpr int kColonnaLimite = 50;
inline constexpr int kColonnaUnitaLimite = 70;

inline constexpr const char* kDueDecimali = "###0.00";
inline constexpr const char* kOltre = ">";  // before the limit that a value exceeds
inline constexpr const char* kAmmessa = "Ammessa : ";
inline constexpr const char* kAccettata = "Accettata : ";

// An empty line and "== TITOLO ==".
void StampaSezione(ReportPrinter& relazione, std::string_view titolo);

// A line of the element's data: the caption has its blanks up to the value, which the unit follows
// as it is written.
void StampaDato(ReportPrinter& relazione, std::string_view etichetta, std::string_view valore,
                std::string_view unita = {});

// Caption at column 1, value at 34 by its pattern, unit at 42. A value that is too long for its
// room begins before it.
void StampaValore(ReportPrinter& relazione, std::string_view etichetta, double valore,
                  std::string_view modello, std::string_view unita);

// The same and at column 50 `limite` ("Ammessa : ") with the allowed value, its unit at 70.
void StampaValoreConLimite(ReportPrinter& relazione, std::string_view etichetta, double valore,
                           std::string_view modello, std::string_view unita,
                           std::string_view limite, double ammesso);
// What the mark of a value beyond its limit means, where there is one.
void StampaValoriOltre(ReportPrinter& relazione, bool oltre);

// The report of one kind of element, known by its file. The number of elements that it holds
// belongs to the run of the program.
class RelazioneStrutturale {
 public:
  RelazioneStrutturale(RunState& stato, std::string file);
  // The number that the next element has, from 1 in every run.
  int Numero() const;
  // True when the next element goes behind others of this run, whose file is still there.
  bool Accodata() const;
  // Writes the element that `stampa` prints, alone when it is the first of the run, else behind
  // those before it, and opens the report. With an `avviso` the person is told before an element
  // goes behind others. A failure to write leaves file and number as they were.
  using StampaElemento = std::function<void(ReportPrinter& testo, bool primo, int numero)>;
  void Stampa(const StampaElemento& stampa, const char* avviso = nullptr);

 private:
  RunState& stato_;
  std::string file_;
};

}  // namespace orm
