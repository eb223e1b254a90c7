// The chain of dialogs of lots that hold rows: the heading of a lot, then its periods one by one, a
// row for each.
#pragma once

#include <optional>

#include "runtime/numbers.h"
#include "tariff/files/row_lots.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/form_period.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

struct LimitiCatena {
  std::size_t lotti, righe, periodiPerLotto;
  std::string nomeLotti = "LOTTI";
};

// The lots that the note had are gone through one by one; ending the periods of a lot drops its
// further rows, ending the lots those from there on. A row added to a lot moves the rows behind it,
// which keep their places: one that the note has no place for is refused where it is entered. The
// rows still to come count in whatever a note holds in all.
template <class Riga>
class CatenaRighe {
 public:
  CatenaRighe(RunState& run, std::vector<LottoARighe>& lottiDelCaso,
              std::vector<Riga>& righeDelCaso, LimitiCatena limitiDelCaso)
      : stato(run), lotti(lottiDelCaso), righe(righeDelCaso), limiti(std::move(limitiDelCaso)) {}
  virtual ~CatenaRighe() = default;

  void Chiedi() {
    std::vector<std::vector<Riga>> perLotto = Separa();
    ChiediElenco(
        stato, perLotto, [this](const PostoRiga& posto) { return RifiutoLotto(posto); },
        [this](const PostoRiga& posto, std::vector<Riga>& sue, const auto& altriLotti) {
          righeAltrui.clear();
          for (const std::vector<Riga>& righeDelLotto : altriLotti)
            righeAltrui.insert(righeAltrui.end(), righeDelLotto.begin(), righeDelLotto.end());
          Riga modello = sue.empty() ? Riga() : sue.front();
          if (!ChiediTestata(posto, modello)) return false;
          const PartOfWay qui(stato.player.place, Dove(posto, modello));
          ChiediPeriodi(posto, modello, sue);
          // A lot without rows is none.
          if (sue.empty()) stato.player.DraftsOfRun().SubjectDropped(!posto.Nuova());
          return true;
        });
  }

 protected:
  // The heading of a lot, into `modello`. False at the end of the lots.
  virtual bool ChiediTestata(const PostoRiga& lotto, Riga& modello) = 0;
  // Where the forms of a lot stand, whose heading is that of `modello`.
  virtual std::vector<std::string> Dove(const PostoRiga& lotto, const Riga& modello) const = 0;
  // What the row at `posto` of a lot starts from: the lot's heading is that of `modello`, also
  // where the row that existed had another one; `ultimo` is the last period before it, 0 for none;
  // `altreDelLotto` are its other rows.
  struct PostoPeriodo {
    const PostoRiga &lotto, &posto;
    const Riga& modello;
    int ultimo;
    const std::vector<Riga>& altreDelLotto;
  };
  // The period of a row, nothing at the end of the periods.
  virtual std::optional<std::int16_t> ChiediPeriodo(const PostoPeriodo& qui, const Riga& riga) = 0;
  // The name of a period.
  virtual std::string NomeDelPeriodo(std::int16_t periodo) const {
    return NomePeriodoTariffario(periodo);
  }
  // The rest of a row. `altreRighe`: the others of the note.
  virtual void ChiediRiga(const PostoPeriodo& qui, std::int16_t periodo, Riga& riga,
                          const std::vector<Riga>& altreRighe) = 0;

  RunState& stato;

 private:
  // The rows lot by lot. A lot without rows has no heading to show and is left out.
  std::vector<std::vector<Riga>> Separa() {
    std::vector<std::vector<Riga>> perLotto;
    auto riga = righe.begin();
    for (const LottoARighe& lotto : lotti) {
      const auto fine = riga + static_cast<std::ptrdiff_t>(lotto.PeriodoDelLotto.size());
      if (riga != fine) perLotto.emplace_back(riga, fine);
      riga = fine;
    }
    lotti.clear();
    righe.clear();
    return perLotto;
  }

  std::string RifiutoLotto(const PostoRiga& posto) const {
    if (posto.numero > limiti.lotti) return OltreIlMassimo(limiti.lotti, limiti.nomeLotti);
    return RifiutoRiga(posto, righe.size());
  }
  // Why a new row has no place beside those that the note has.
  std::string RifiutoRiga(const PostoRiga& posto, std::size_t quante) const {
    if (!posto.Nuova() || quante < limiti.righe) return "";
    return OltreIlMassimo(limiti.righe, "RIGHE IN TUTTI I " + limiti.nomeLotti);
  }

  void ChiediPeriodi(const PostoRiga& lotto, const Riga& modello, std::vector<Riga>& sue) {
    LottoARighe fatto;
    ChiediElenco(
        stato, sue,
        [this](const PostoRiga& posto) {
          return RifiutoRiga(posto, righeAltrui.size() + posto.numero - 1);
        },
        [&](const PostoRiga& posto, Riga& riga, const std::vector<Riga>& altreDelLotto) {
          const auto& periodi = fatto.PeriodoDelLotto;
          if (posto.numero > limiti.periodiPerLotto) return false;
          const PostoPeriodo qui{lotto, posto, modello, periodi.empty() ? 0 : periodi.back(),
                                 altreDelLotto};
          const auto periodo = ChiediPeriodo(qui, riga);
          if (!periodo) return false;
          std::vector<Riga> altreRighe = righeAltrui;
          altreRighe.insert(altreRighe.end(), altreDelLotto.begin(), altreDelLotto.end());
          const PartOfWay nelPeriodo(stato.player.place, {NomeDelPeriodo(*periodo)});
          ChiediRiga(qui, *periodo, riga, altreRighe);
          righe.push_back(riga);
          fatto.PeriodoDelLotto.push_back(*periodo);
          return true;
        });
    fatto.UltimaRiga = static_cast<std::int16_t>(righe.size());
    lotti.push_back(std::move(fatto));
  }

  std::vector<LottoARighe>& lotti;
  std::vector<Riga>& righe;
  const LimitiCatena limiti;
  std::vector<Riga> righeAltrui;  // rows of the other lots than the one at work
};

// The chain whose lots are classes of the tariff and whose rows are periods of it.
template <class Riga>
class CatenaClassi : public CatenaRighe<Riga> {
 public:
  // `periodoDellaRiga`: where a row keeps the code of its period.
  CatenaClassi(RunState& run, std::vector<LottoARighe>& lottiDelCaso,
               std::vector<Riga>& righeDelCaso, LimitiCatena limitiDelCaso,
               std::string Riga::*periodoDellaRiga)
      : CatenaRighe<Riga>(run, lottiDelCaso, righeDelCaso, std::move(limitiDelCaso)),
        Periodo(periodoDellaRiga) {}

 protected:
  using PostoPeriodo = typename CatenaRighe<Riga>::PostoPeriodo;
  using CatenaRighe<Riga>::stato;

  std::vector<std::string> Dove(const PostoRiga& lotto, const Riga& modello) const override {
    return DoveSiamo(lotto, modello.Classe, modello.Categoria);
  }

  bool ChiediTestata(const PostoRiga& lotto, Riga& modello) override {
    return ChiediClasse(stato, lotto, modello.Classe, modello.Categoria);
  }

  std::optional<std::int16_t> ChiediPeriodo(const PostoPeriodo& qui, const Riga& riga) override {
    return FrmTariffe(stato, TestiPdlTariffe(), qui.posto, qui.ultimo, riga.*Periodo)
        .ChiediPeriodo();
  }

  // Class, category and period of a row. 0: its lot has no periods.
  void Intesta(const PostoPeriodo& qui, std::int16_t periodo, Riga& riga) const {
    riga.Classe = qui.modello.Classe;
    riga.Categoria = qui.modello.Categoria;
    riga.*Periodo = periodo == 0 ? "" : NumberText(periodo);
  }

 private:
  std::string Riga::*const Periodo;
};

}  // namespace orm
