// The five views of a designed truss-joist slab: input scheme, drawing of the bars, table of bars,
// shear and moments, stresses. One shows at a time.
#pragma once

#include <array>
#include <deque>
#include <optional>
#include <vector>

#include "dialogs/form.h"
#include "dialogs/lavagna.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

// A calculated value and, in the table of stresses, the allowed one.
struct RigaRisultato {
  RigaRisultato(Form& form, std::size_t indice, const char* etichetta, bool tensione);
  TestoBox cdRisultati;
  std::optional<TestoBox> cdVAmmessi;
};

class VisteSolaio {
 public:
  explicit VisteSolaio(Form& form);
  Layout Contents();
  void TieEvents();
  // No design: empty results.
  void Azzera();
  // A design that holds, with its drawing in front.
  void Mostra(const DatiSolaioT& dati, const RisultatiSolaioT& risultati);

  Frame fraVisualizza;
  OptionGroup gruppo;
  std::array<OptionButton, 5> optVisualizza;
  Frame fraDisegno;
  orm::Lavagna Lavagna;
  Frame fraFerri;
  std::array<TestoBox, 7> cdLunghezze;
  std::deque<Label> lblDiametri;  // of the same bars
  Frame fraSollecitazioni, fraTensioni;
  std::deque<Label> lblColonne;
  std::deque<RigaRisultato> righe;  // cdRisultati(1) to (17)

 private:
  Layout Tabella(std::size_t primaColonna, std::vector<Layout> linee);
  Layout TabellaTensioni(std::size_t primaColonna, const std::vector<int>& numeri);
  TestoBox& Calcolato(int numero) {
    return righe[static_cast<std::size_t>(numero) - 1].cdRisultati;
  }
  TestoBox& Ammesso(int numero) { return *righe[static_cast<std::size_t>(numero) - 1].cdVAmmessi; }
  void ScegliVista();
  void ScriviTensione(int numero, double valore, double ammessa);
  void ScriviAppoggio(const Appoggio& appoggio, const std::array<int, 4>& numeri);
  void ScriviFerri();

  bool progettato_ = false;
  DatiSolaioT dati_;
  RisultatiSolaioT risultati_;
};

}  // namespace orm
