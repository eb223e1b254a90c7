#include "runtime/explanation/conto.h"

#include "runtime/explanation/explanation.h"

namespace orm {

// Where there is no room for the terms of `b`, the number that they come to stands for them.
Conto& Conto::Fa(char segno, const Conto& b, double esito) {
  if (b.quanti_ <= 1 || b.quanti_ >= kPassi) return Fa(segno, b.valore_, esito);
  if (quanti_ == 0 && segno == '+') return *this = b;
  const Conto altro = b;  // b may be this
  Prepara(segno, altro.quanti_);
  for (std::size_t i = 0; i < altro.quanti_; ++i) passi_[quanti_ + i] = altro.passi_[i];
  passi_[quanti_].segno = segno;
  ++passi_[quanti_].apre;
  quanti_ += altro.quanti_;
  ++passi_[quanti_ - 1].chiude;
  valore_ = esito;
  return *this;
}

std::string Conto::Testo() const {
  if (quanti_ == 0) return "0";
  std::string testo;
  for (std::size_t i = 0; i < quanti_; ++i) {
    const Passo& passo = passi_[i];
    if (i > 0) testo.append({' ', passo.segno, ' '});
    testo.append(passo.apre, '(');
    const bool chiuso = passo.numero < 0 && i > 0 && passo.apre == 0;
    testo += chiuso ? "(" + CifraEsatta(passo.numero) + ")" : CifraEsatta(passo.numero);
    testo.append(passo.chiude, ')');
  }
  return testo;
}

}  // namespace orm
