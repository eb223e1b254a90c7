// The chain of dialogs of lots that hold rows: the heading of a lot, then its periods one by one, a
// row for each.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "tariff/files/row_lots.h"
#include "tariff/forms/lot_chain.h"

namespace orm {

struct LimitiCatena {
  std::size_t lotti, righe, periodiPerLotto;
  std::string nomeLotti = "LOTTI";
};

// The lots that the note had are gone through one by one; ending the periods of a lot drops its
// further rows, ending the lots those from there on. A row added to a lot moves the rows behind it,
// which keep their places: one that the note has no place for is refused where it is entered.
template <class Riga>
class CatenaRighe {
 public:
  CatenaRighe(std::vector<LottoARighe>& lottiDelCaso, std::vector<Riga>& righeDelCaso,
              LimitiCatena limitiDelCaso)
      : lotti(lottiDelCaso), righe(righeDelCaso), limiti(std::move(limitiDelCaso)) {
    Separa();
  }
  virtual ~CatenaRighe() = default;

  void Chiedi() {
    for (std::size_t i = 0;; ++i) {
      const PostoLotto posto{i + 1, vecchi.size()};
      const std::vector<Riga> sue = posto.Nuovo() ? std::vector<Riga>() : vecchi[i];
      Riga modello = sue.empty() ? Riga() : sue.front();
      if (!ChiediTestata(posto, RifiutoLotto(posto), modello)) return;
      ChiediPeriodi(posto, sue, modello);
    }
  }

 protected:
  // `rifiuto`: why there is no place for what is asked, shown instead of taking it; often empty.
  // False at the end of the lots.
  virtual bool ChiediTestata(const PostoLotto& posto, const std::string& rifiuto,
                             Riga& modello) = 0;
  // A row on its way through the dialogs. Its heading is that of `modello`, also where the row that
  // existed had another one.
  struct PostoRiga {
    const PostoLotto& lotto;
    const Riga& modello;
    const std::string rifiuto;
    int ultimo;  // the last period of the lot before it, 0 for none
    bool esiste;
  };
  // The period of a row, nothing at the end of the periods.
  virtual std::optional<std::int16_t> ChiediPeriodo(const PostoRiga& posto, const Riga& riga) = 0;
  // The rest of a row.
  virtual void ChiediRiga(const PostoRiga& posto, std::int16_t periodo, Riga& riga) = 0;

  // The rows of the note entered so far.
  const std::vector<Riga>& Fatte() const { return righe; }

 private:
  // The rows lot by lot. A lot without rows has no heading to show and is left out.
  void Separa() {
    auto riga = righe.begin();
    for (const LottoARighe& lotto : lotti) {
      const auto fine = riga + static_cast<std::ptrdiff_t>(lotto.PeriodoDelLotto.size());
      if (riga != fine) vecchi.emplace_back(riga, fine);
      riga = fine;
    }
    lotti.clear();
    righe.clear();
  }

  std::string RifiutoLotto(const PostoLotto& posto) const {
    if (posto.numero > limiti.lotti) return OltreIlMassimo(limiti.lotti, limiti.nomeLotti);
    return posto.Nuovo() && righe.size() >= limiti.righe ? RifiutoRiga() : "";
  }
  std::string RifiutoRiga() const {
    return OltreIlMassimo(limiti.righe, "RIGHE IN TUTTI I " + limiti.nomeLotti);
  }

  // How many rows the lots behind this one still have: a new row must leave them their place.
  std::size_t RigheDopo(const PostoLotto& posto) const {
    std::size_t somma = 0;
    for (std::size_t i = posto.numero; i < vecchi.size(); ++i) somma += vecchi[i].size();
    return somma;
  }

  void ChiediPeriodi(const PostoLotto& posto, const std::vector<Riga>& sue, const Riga& modello) {
    LottoARighe lotto;
    for (std::size_t j = 0; j < limiti.periodiPerLotto; ++j) {
      const bool esiste = j < sue.size();
      Riga riga = esiste ? sue[j] : Riga();
      const int ultimo = lotto.PeriodoDelLotto.empty() ? 0 : lotto.PeriodoDelLotto.back();
      const bool pieno = !esiste && righe.size() + RigheDopo(posto) >= limiti.righe;
      const PostoRiga qui{posto, modello, pieno ? RifiutoRiga() : "", ultimo, esiste};
      const auto periodo = ChiediPeriodo(qui, riga);
      if (!periodo) break;
      ChiediRiga(qui, *periodo, riga);
      righe.push_back(std::move(riga));
      lotto.PeriodoDelLotto.push_back(*periodo);
    }
    lotto.UltimaRiga = static_cast<std::int16_t>(righe.size());
    lotti.push_back(std::move(lotto));
  }

  std::vector<LottoARighe>& lotti;
  std::vector<Riga>& righe;
  const LimitiCatena limiti;
  std::vector<std::vector<Riga>> vecchi;
};

}  // namespace orm
