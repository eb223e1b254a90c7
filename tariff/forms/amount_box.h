// An amount of money on a form: two fields on one place, whole in Lire and with decimals in Euro,
// of which the currency of the note shows one.
#pragma once

#include <cmath>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

// How long an amount may be that a person types: it ends where its own column ends. A fee that
// comes out too long for its column is a failure of the calculation, which names it.
struct LimitiImporto {
  NumberLimits lire, euro;
};

// Amounts of works: 16 characters in the column, thousands points included.
inline const LimitiImporto kLavori = {
    {.most = 999999999999.0, .decimals = 0, .currency = "L."},
    {.most = 999999999.99, .decimals = 2, .trailingZeros = true, .currency = "€"}};
// The same where a negative amount has a meaning of its own.
inline const LimitiImporto kLavoriConSegno = {
    {.least = -999999999999.0, .most = 999999999999.0, .decimals = 0, .currency = "L."},
    {.least = -999999999.99,
     .most = 999999999.99,
     .decimals = 2,
     .trailingZeros = true,
     .currency = "€"}};
// Advances: 14 characters in the column, and a net amount below zero takes one for its sign.
inline const LimitiImporto kAcconti = {
    {.most = 9999999999.0, .decimals = 0, .currency = "L."},
    {.most = 99999999.99, .decimals = 2, .trailingZeros = true, .currency = "€"}};

// How a refused sum is told: the row of the amount, "LOTTO n° 2", and what it is summed with.
struct Addendi {
  std::string riga = {};
  std::string_view altri = "GLI ALTRI LOTTI";
};

// What a field for an amount asks: the place of the amount in its row, and what the note's other
// rows hold of it, all counted without their sign. Without a place it asks nothing.
struct ImportoChiesto {
  double* posto = nullptr;
  double altri = 0;
  Addendi addendi = {};
};

template <class Riga>
double SommaSenzaSegno(const std::vector<Riga>& righe, double Riga::*importo) {
  double somma = 0;
  for (const Riga& riga : righe) somma += std::fabs(riga.*importo);
  return somma;
}

// An amount of `riga`, which is none of the note's other rows, `altre`.
template <class Riga>
ImportoChiesto Chiesto(Riga& riga, double Riga::*importo, const std::vector<Riga>& altre,
                       const Addendi& addendi) {
  return {&(riga.*importo), SommaSenzaSegno(altre, importo), addendi};
}

struct ImportoBox {
  // `nome` without its prefix: "Importo1" makes cdImporto1 and ciImporto1.
  ImportoBox(Form& form, const RunState& stato, const std::string& nome,
             const std::string& didascalia, const LimitiImporto& limiti = kLavori)
      : ImportoBox(form, stato, "cd" + nome, "ci" + nome, didascalia, limiti) {}
  ImportoBox(Form& form, const RunState& stato, std::string nomeEuro, std::string nomeLire,
             const std::string& didascalia, const LimitiImporto& limiti);

  double Value() const { return lire_ ? ci.Value() : cd.Value(); }
  void SetValue(double valore);
  void SetVisible(bool visibile);
  void SetCaption(const std::string& didascalia);

  // Shows the amount that is asked, or nothing at all. The form keeps it a draft until its
  // confirming button has seen that nothing stands against it, and takes it.
  void Chiedi(const ImportoChiesto& importo);
  // Why the sum with the others is too great for the report; empty when it is not.
  std::string Eccesso(double altri) const;
  std::string Eccesso() const { return Eccesso(chiesto_.altri); }
  void Prendi() const;

  FloatBox cd;
  InterBox ci;

 private:
  bool lire_;
  ImportoChiesto chiesto_;
};

// The fields of amounts, one below the other.
Layout AmountFields(std::initializer_list<std::reference_wrapper<ImportoBox>> importi);

// The Euro mark, on the forms with amounts of a note in Euro.
struct MarchioEuro : Image {
  MarchioEuro(Form& form, const RunState& stato) : Image(form, "Image1", Subject::Euro) {
    SetVisible(!stato.ModoLire);
  }
};

}  // namespace orm
