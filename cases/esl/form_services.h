// frmESL_PrestazioniBase and frmESL_PrestazioniIntegrative: the services of Tables B and B1.
#pragma once

#include <deque>
#include <span>

#include "cases/esl/data.h"
#include "dialogs/form.h"
#include "tariff/forms/service_boxes.h"
#include "tariff/law/table_services_2001.h"

namespace orm {

// One dialog for a table. Each service has a check with its code as name.
class FrmEslPrestazioni : public Form {
 public:
  std::deque<CheckBox> servizi;  // in the order of the table
  Frame fraPreliminare{*this, "fraPreliminare", "PROGETTO PRELIMINARE"};
  Frame fraDefinitivo{*this, "fraDefinitivo", "PROGETTO DEFINITIVO"};
  Frame fraEsecutivo{*this, "fraEsecutivo", "PROGETTO ESECUTIVO"};
  Frame fraDirezione{*this, "fraDirezione", "DIREZIONE DEI LAVORI"};
  AliquoteServizi aliquote{*this};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 protected:
  // `stringa`: the services of the lot by their codes, "a+b+f"; taken when they are confirmed.
  FrmEslPrestazioni(std::string nome, std::string titolo, std::string passo, const LottoEsl& lotto,
                    std::string& stringa, std::span<const ServizioEsl> tabella,
                    std::span<const char* const> didascalie);
  // The groups of services: preliminary and definitive design; executive design and supervision,
  // with what else belongs to supervision.
  std::vector<Layout> GruppiProgetto();
  Layout GruppiFinali(std::vector<Layout> ancoraDirezione);
  void Conferma();

  NumberBox* addetti_ = nullptr;  // how often l4 counts

 private:
  std::vector<Layout> ChecksOf(FaseEsl fase);
  CheckBox& Casella(std::string_view codice);
  const std::optional<std::size_t> colonna_;
  std::string& stringa_;
  std::span<const ServizioEsl> tabella_;
};

class FrmEslPrestazioniBase : public FrmEslPrestazioni {
 public:
  explicit FrmEslPrestazioniBase(LottoEsl& lotto);
};

class FrmEslPrestazioniIntegrative : public FrmEslPrestazioni {
 public:
  explicit FrmEslPrestazioniIntegrative(LottoEsl& lotto);

  // A fee with more staff than this would not fit its column where a small design gives the
  // greatest works their percentage.
  InterBox numeroaddetti{*this, "numeroaddetti", "Numero addetti", {.most = 15, .decimals = 0}};
};

}  // namespace orm
