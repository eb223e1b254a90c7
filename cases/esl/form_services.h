// frmESL_PrestazioniBase and frmESL_PrestazioniIntegrative: the services of Tables B and B1.
#pragma once

#include <deque>
#include <span>

#include "cases/esl/data.h"
#include "dialogs/form.h"
#include "tariff/law/table_services_2001.h"

namespace orm {

// One dialog for a table. Each service has a check with its code as name.
class FrmEslPrestazioni : public Form {
 public:
  // As given when the form was left by its window.
  std::string StringaDellePrestazioni;

  Label lblLotto;
  std::deque<CheckBox> servizi;  // in the order of the table
  Frame fraPreliminare, fraDefinitivo, fraEsecutivo, fraDirezione;

 protected:
  FrmEslPrestazioni(std::string nome, std::string titolo, std::string dove, const LottoEsl& lotto,
                    std::string stringa, std::span<const ServizioEsl> tabella,
                    std::span<const char* const> didascalie);
  // The groups of services: preliminary and definitive design; executive design and supervision,
  // with what else belongs to supervision.
  std::vector<Layout> GruppiProgetto();
  Layout GruppiFinali(std::vector<Layout> ancoraDirezione);
  void Confirm();

 private:
  std::vector<Layout> ChecksOf(FaseEsl fase);
  std::string StringaScelta() const;
  std::span<const ServizioEsl> tabella_;
};

class FrmEslPrestazioniBase : public FrmEslPrestazioni {
 public:
  FrmEslPrestazioniBase(std::string dove, const LottoEsl& lotto);
  Button Command1;
};

class FrmEslPrestazioniIntegrative : public FrmEslPrestazioni {
 public:
  FrmEslPrestazioniIntegrative(std::string dove, const LottoEsl& lotto);
  std::int16_t NumeroAddetti;
  InterBox numeroaddetti;
  Button Command1;
};

}  // namespace orm
