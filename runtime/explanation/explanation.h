// How the figures of a report came about: for each line that carries one, the steps that led to it,
// written down by the calculation itself while it prints. Plain data and their texts, without any
// tariff.
//
// A sum is a text that anybody can do again, with a pocket calculator or with a program:
// - operators " + ", " - ", " x ", " / ", " ^ " and parentheses; "radq(...)" is the square root. ^
//   goes before x and /, these before + and -, each from left to right;
// - numbers are Italian (points between thousands, decimal comma) with all the digits that they
//   have; a minus right before a number, at the start of the sum or of a parenthesis, belongs to
//   it;
// - done in IEEE doubles it gives exactly the result that is stated, and the cuts of the result
//   give exactly the figure that is printed. So a sum holds no rounded intermediate: one is written
//   out in parentheses, or is the result of another step with all its digits, or what a cut left.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "runtime/explanation/conto.h"

namespace orm {

enum class TipoTaglio {
  ParteIntera,  // the greatest whole number that is not above
  Decimali,     // cut to decimals, as FormattaNumero takes them: > 0 at most, < 0 exactly, 0 none
  Arrotonda,    // to so many decimals, half away from zero, on the text of 15 digits
  SullaCifra,   // to so many decimals by the one digit that follows them
};

// A cut: what it found and what it left.
struct Taglio {
  TipoTaglio tipo = TipoTaglio::Decimali;
  int decimali = 0;
  double prima = 0, dopo = 0;
};

// A sum as a step has it: a text, or a Conto that becomes one when it is read. One that is a number
// alone is none.
class SommaScritta {
 public:
  SommaScritta() = default;
  SommaScritta(std::string testo) : testo_(std::move(testo)) {}
  SommaScritta(const char* testo) : testo_(testo) {}
  SommaScritta(const Conto& conto) : conto_(conto) {}

  bool empty() const { return testo_.empty() && conto_.Semplice(); }
  std::string Testo() const { return conto_.Semplice() ? testo_ : conto_.Testo(); }

 private:
  std::string testo_;
  Conto conto_;
};

class StessiPassaggi;

struct Passaggio {
  // What is done and under which rule, without a full stop at its end: "Art. 15, Tabella A, classe
  // I, categoria c, D.M. 11-6-1987: percentuale per interpolazione".
  std::string regola;
  SommaScritta conto = {};               // empty where the figure stands as it is found
  std::optional<double> risultato = {};  // before the cuts; nothing for a step of words alone
  std::string unita = {};                // behind the result: "%", "Lire"
  std::vector<Taglio> tagli = {};        // in their order
  std::vector<std::string> note =
      {};                  // an oddity that is meant, where a figure of the data is from
  std::string cifra = {};  // as the line prints it; empty for a step on the way to a figure
  // Steps that this one stands for, if it stands for any; its figure is that of their last one.
  std::shared_ptr<const StessiPassaggi> comuni = {};

  void Annota(std::string_view nota);
  // What the cuts have left of the result.
  std::optional<double> Valore() const {
    return tagli.empty() ? risultato : std::optional(tagli.back().dopo);
  }
};

using Catena = std::vector<Passaggio>;
Catena Unite(Catena prima, Catena poi);

// Steps that many lines have in common. They are made once, when the first of these lines is read,
// so `passi` keeps all that it needs by value.
class StessiPassaggi {
 public:
  explicit StessiPassaggi(std::function<Catena()> passi) : passi_(std::move(passi)) {}
  const Catena& Passi() const;

 private:
  mutable std::function<Catena()> passi_;
  mutable Catena fatti_;
};
Passaggio InComune(std::function<Catena()> passi, std::string cifra = {});
// With the steps themselves in place of one that stands for them; none of them has a figure but the
// last, if the one in their place had it.
Catena Svolta(const Catena& catena);

// A line of a report that carries figures. The last step with a figure is that of its main one.
struct Spiegazione {
  std::size_t riga = 0;  // of the report, from 1
  std::string testo;     // the line, one blank between its words
  Catena passi;

  std::string_view Cifra() const;  // the main figure
};

// The explanations of one report, in the order of its lines. Recording is off at first, and costs
// a test of a flag then: what makes the steps is not called.
class Spiegazioni {
 public:
  void Attiva() { attive_ = true; }
  bool Attive() const { return attive_; }

  // Explains the line that was printed last, ended or not, of `stampato`, all of the report so far;
  // `passi()` gives its steps. A line explained again has the steps of both.
  template <class Passi>
  void Riga(std::string_view stampato, Passi&& passi) {
    if (attive_) Aggiungi(stampato, passi());
  }

  const std::vector<Spiegazione>& Righe() const;
  // Of a line counted from 1; nullptr where it has none.
  const Spiegazione* Della(std::size_t riga) const;

 private:
  void Aggiungi(std::string_view stampato, Catena passi);

  bool attive_ = false;
  mutable std::vector<Spiegazione> righe_;
  mutable std::size_t svolte_ = 0;    // lines that have been read
  std::size_t letto_ = 0, fini_ = 0;  // bytes of the report looked at, line ends among them
};

// ---- texts of numbers and sums

// "1.234.567,25": as many digits as bring back the same double, never an exponent.
std::string CifraEsatta(double valore);
// With exactly so many decimals, rounded.
std::string CifraADecimali(double valore, int decimali);
// What a cut took away, with the decimals of what it found; negative where it added something.
std::string CadeNelTaglio(const Taglio& taglio);

// What takes a place in a sum: a number, or a text that is one.
using Termine = std::variant<double, std::string>;

// "{} x {} / 100" with its places filled. A number below 0 stands in parentheses, but for the first
// place of the sum.
std::string ScriviConto(std::string_view forma, std::initializer_list<Termine> termini);

// ---- explanations as texts

// For an expert's report: each line with its numbered steps, in paragraphs of one line.
std::string TestoSpiegazione(const Spiegazione& spiegazione);
std::string TestoSpiegazioni(const std::vector<Spiegazione>& righe);

// The same as JSON: {"versione": 1, "righe": [{"riga", "testo", "cifra", "passaggi": [{"regola",
// "conto", "risultato", "unita", "tagli": [{"tipo", "decimali", "resta", "cade"}], "note",
// "cifra"}]}]}. What a step lacks is left out.
std::string JsonSpiegazioni(const std::vector<Spiegazione>& righe);

}  // namespace orm
