#include "tariff/forms/form_pdl_period.h"

#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

TestiTariffe Testi() {
  TestiTariffe testi{
      "frmPDL_Tariffe", "DATA DI ESECUZIONE DELLA PRESTAZIONE", "PERIODO DI VALIDITA' DEL", {}};
  for (int i = 1; i <= 5; ++i)
    testi.periodi[static_cast<std::size_t>(i - 1)] = NomePeriodoTariffarioEsteso(i);
  return testi;
}

}  // namespace

FrmPdlTariffe::FrmPdlTariffe(Player& player, std::string dove, int ultimo,
                             const std::string& periodo, bool esiste)
    : FrmTariffe(player, Testi(), std::move(dove), ultimo, periodo, esiste) {}

}  // namespace orm
