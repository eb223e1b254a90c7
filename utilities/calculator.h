// A calculator of the four operations with a tape, and the two conversions of currency.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orm {

class Calcolatrice {
 public:
  // Takes the number that stands in the display and the operation that comes next: '+', '-', 'x',
  // ':' or '='. Operations go from left to right. What is given back is the new display. A division
  // by 0 and a result of more than 15 digits are a RuntimeFailure, after which the reckoning goes
  // on as before the key.
  double Premi(double numero, char operazione);
  void Azzera();  // forgets the reckoning; the tape stays
  bool Azzerata() const { return totale_ == 0 && attesa_ == '='; }

  double LireInEuroSulNastro(double lire);
  double EuroInLireSulNastro(double euro);

  std::string Nastro() const;  // lines separated by "\n"
  // The number of a line of the tape, of a conversion its result; nothing beyond the last line.
  std::optional<double> SulNastro(std::size_t riga) const;
  void StrappaNastro() { nastro_.clear(); }

 private:
  double totale_ = 0;
  char attesa_ = '=';  // the operation that waits for its second number
  struct RigaNastro {
    std::string testo;
    double numero;
  };
  std::vector<RigaNastro> nastro_;
};

}  // namespace orm
