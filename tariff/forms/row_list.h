// The list of rows that a person goes through in windows, one row after the other: lots of a note,
// periods of a lot, and whatever else a case has several of.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/numbers.h"
#include "shell/state/run_state.h"

namespace orm {

// A row on its way through the dialogs.
struct PostoRiga {
  std::size_t numero = 1;     // from 1
  std::size_t esistenti = 0;  // rows that the list had before
  std::string rifiuto = {};   // why the note has no place for the row; empty when it has
  bool Nuova() const { return numero > esistenti; }
};

// How a list names its rows: "lotto", "il lotto", "i lotti".
struct NomeRiga {
  const char *nome, *una, *piu;
};
inline constexpr NomeRiga kLotto = {"lotto", "il lotto", "i lotti"};

// "LOTTO n° 2".
std::string ConNumero(const PostoRiga& posto, std::string_view cosa);
// The same, for a new row "NUOVO LOTTO".
std::string Etichetta(const PostoRiga& posto, std::string_view cosa,
                      std::string_view nuova = "NUOVO");
// "lotto 2 di 3"; a new one has no "di".
std::string DoveSiamo(const PostoRiga& posto, const NomeRiga& riga);
// What ending the list at the row takes away: "toglie i lotti da 2 a 20"; empty for nothing.
std::string Toglie(const PostoRiga& posto, const NomeRiga& riga);

// "UNA PARCELLA PUÒ AVERE AL MASSIMO 20 LOTTI."
std::string OltreIlMassimo(std::size_t massimo, std::string_view cose);

// The rows that the list had are gone through in turn, then new ones are asked, until `chiedi` says
// that the list ends there: the row on which it ends is dropped with those after it. `altre` are
// the other rows of the list: those entered so far, and those that it had and that are still to
// come.
//   std::string rifiuto(const PostoRiga&)   why there is no place for the row; empty: there is
//   bool chiedi(const PostoRiga&, Riga& riga, const std::vector<Riga>& altre)
//                                           shows its dialogs; false at the end of the list
template <class Riga, class Rifiuto, class Chiedi>
void ChiediElenco(RunState& stato, std::vector<Riga>& righe, Rifiuto&& rifiuto, Chiedi&& chiedi) {
  std::vector<Riga> altre = righe;
  const std::size_t esistenti = righe.size();
  for (righe.clear();;) {
    PostoRiga posto{righe.size() + 1, esistenti};
    posto.rifiuto = rifiuto(posto);
    const auto qui = altre.begin() + static_cast<std::ptrdiff_t>(righe.size());
    Riga riga = posto.Nuova() ? Riga() : *qui;
    if (!posto.Nuova()) altre.erase(qui);
    const Drafts::Subject parla(stato.player.DraftsOfRun(),
                                NumberText(static_cast<double>(posto.numero)));
    if (!chiedi(posto, riga, std::as_const(altre)))
      return stato.player.DraftsOfRun().SubjectDropped(!posto.Nuova());
    altre.insert(altre.begin() + static_cast<std::ptrdiff_t>(righe.size()), riga);
    righe.push_back(std::move(riga));
  }
}

// The refusal of one row too many: "LOTTI" are 20 at most.
inline auto AlMassimo(std::size_t massimo, std::string_view cose) {
  return [massimo, cose](const PostoRiga& posto) {
    return posto.numero > massimo ? OltreIlMassimo(massimo, cose) : std::string();
  };
}

}  // namespace orm
