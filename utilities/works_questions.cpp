// The questions about the works.
#include "utilities/works_questions.h"

#include <utility>

#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

DomandeLavori::DomandeLavori(Form& owner, const RunState& stato) : form(owner) {
  std::vector<std::string> periodi;
  for (int periodo = 1; periodo <= kPeriodo2001; ++periodo)
    periodi.push_back(NomePeriodoTariffario(periodo));
  comPeriodo.SetItems(std::move(periodi));
  comPeriodo.SetIndex(kPeriodo1987 - 1);
  valuta.Choose(stato.ModoLire ? 0 : 1);
  MostraImporto();
}

void DomandeLavori::MostraImporto() {
  ciImporto.SetVisible(Lire());
  cdImporto.SetVisible(!Lire());
}

}  // namespace orm
