#include "runtime/explanation/conto.h"

#include "runtime/explanation/explanation.h"

namespace orm {

std::string Somma::Testo() const {
  std::string testo = "0";
  for (std::size_t i = 0; i < quanti_; ++i)
    testo = i == 0 ? CifraEsatta(addendi_[0]) : ScriviConto("{} + {}", {testo, addendi_[i]});
  return testo;
}

std::string Conto::Testo() const {
  std::string testo;
  bool somma = false;  // what is written so far adds or subtracts
  for (std::size_t i = 0; i < quanti_; ++i) {
    const Passo& passo = passi_[i];
    const bool prodotto = passo.segno == 'x' || passo.segno == '/';
    if (prodotto && somma) testo = "(" + testo + ")";
    somma = i > 0 && !prodotto;
    Termine termine = passo.numero;
    if (passo.somma != nullptr && passo.somma->Addendi() > 1)
      termine = "(" + passo.somma->Testo() + ")";
    testo = i == 0 ? ScriviConto("{}", {termine})
                   : ScriviConto("{} " + std::string(1, passo.segno) + " {}", {testo, termine});
  }
  return testo;
}

}  // namespace orm
