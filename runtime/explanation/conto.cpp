#include "runtime/explanation/conto.h"

#include <algorithm>

#include "runtime/explanation/explanation.h"

namespace orm {

void Conto::Scrive(char segno, double b) {
  if (b == 0 && (segno == '+' || segno == '-')) return;
  if (Nulla() && segno == '+') {
    *this = Conto(b);
    return;
  }
  Prepara(segno, 1);
  passi_[quanti_++] = {b, segno, 0, 0};
}

// Where there is no room for the terms of `b`, the number that they come to stands for them.
void Conto::Scrive(char segno, const Conto& b) {
  if (b.quanti_ <= 1 || b.quanti_ >= kPassi) return Scrive(segno, b.valore_);
  const Conto destra = b;  // b may be this
  if (Nulla() && segno == '+') {
    *this = destra;
    return;
  }
  Prepara(segno, destra.quanti_);
  Passo* nuovi = passi_.get() + quanti_;
  std::copy_n(destra.passi_.get(), destra.quanti_, nuovi);
  nuovi->segno = segno;
  quanti_ = static_cast<std::uint8_t>(quanti_ + destra.quanti_);
  if (!somma_ || destra.somma_) {
    ++nuovi->apre;
    ++passi_[quanti_ - 1].chiude;
  }
}

void Conto::Prepara(char segno, std::uint8_t posti) {
  if (quanti_ == 0) *this = Conto(0.0);
  if (quanti_ + posti > kPassi) *this = Conto(valore_);
  if (quanti_ + posti > posti_ || passi_.use_count() > 1) Allarga(posti);
  const bool fattore = segno == 'x' || segno == '/';
  if (fattore && somma_) {
    ++passi_[0].apre;
    ++passi_[quanti_ - 1].chiude;
  }
  somma_ = !fattore;
}

// Terms of its own, with places to spare.
void Conto::Allarga(std::uint8_t posti) {
  constexpr std::uint8_t kDiScorta = 12;
  posti_ = std::min<std::uint8_t>(kPassi, static_cast<std::uint8_t>(quanti_ + posti + kDiScorta));
  std::shared_ptr<Passo[]> nuovi = std::make_shared_for_overwrite<Passo[]>(posti_);
  if (quanti_ == 1)
    nuovi[0] = {valore_, ' ', 0, 0};
  else
    std::copy_n(passi_.get(), quanti_, nuovi.get());
  passi_ = std::move(nuovi);
}

std::string Conto::Testo() const {
  if (quanti_ == 0) return "0";
  if (quanti_ == 1) return CifraEsatta(valore_);
  std::string testo;
  for (std::size_t i = 0; i < quanti_; ++i) {
    const Passo& passo = passi_[static_cast<std::ptrdiff_t>(i)];
    if (i > 0) testo.append({' ', passo.segno, ' '});
    testo.append(passo.apre, '(');
    const bool chiuso = passo.numero < 0 && i > 0 && passo.apre == 0;
    testo += chiuso ? "(" + CifraEsatta(passo.numero) + ")" : CifraEsatta(passo.numero);
    testo.append(passo.chiude, ')');
  }
  return testo;
}

}  // namespace orm
