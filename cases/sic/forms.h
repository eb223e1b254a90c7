// The dialogs of site safety: the amounts of a lot, its duties, and the conditions of a duty.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "cases/sic/data.h"
#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"
#include "tariff/law/site_safety.h"

namespace orm {

// frmSIC_Importi.
class FrmSicImporti : public Form {
 public:
  // `altriProgetto`, `altriEsecuzione`: what the note holds of each besides.
  FrmSicImporti(RunState& stato, std::string titolo, const LottoSic& lotto, double altriProgetto,
                double altriEsecuzione);

  double ImportoProgetto, ImportoEsecuzione;  // as given until "O.K." takes new ones

  Label lblClasse, lblCategoria, lblTariffa;
  Image Image1;
  Frame Frame1;
  ImportoBox importo1;
  Frame Frame2;
  ImportoBox importo2;
  Button Command1;
};

// frmSIC_Maggiorazioni and frmSIC_Incrementi: boxes to tick, one for each condition.
class FrmSicSpunte : public Form {
 public:
  // `segni`: "0", "1" ticked, "2" not available, for each condition.
  FrmSicSpunte(std::string nome, std::string riquadro, std::span<const CondizioneSic> condizioni,
               std::size_t caselle, std::string segni);

  std::string Segni;  // as given until "O.K." takes new ones
  double Percentuale() const { return SommaCondizioni(condizioni_, Segni); }

  Frame Frame1;
  std::vector<std::unique_ptr<CheckBox>> Check;
  Button Command1;

 private:
  void Confirm();
  std::span<const CondizioneSic> condizioni_;
};

// frmSIC_Prestazioni.
class FrmSicPrestazioni : public Form {
 public:
  FrmSicPrestazioni(Player& player, const VersioneSic& versione, std::string dove,
                    const LottoSic& lotto);

  // As given until "O.K." takes new ones.
  std::string StringaPrestazioni, StringaMaggiorazioni, StringaIncrementi;

  Label lblLotto;
  Frame Frame1;
  // A duty with its conditions; increments belong to the two coordinators alone.
  struct Riga {
    Riga(Form& form, std::size_t i);
    CheckBox Check;
    Button cmd_Maggiorazioni;
    TestoBox Txt_Maggiorazioni;
    std::unique_ptr<Button> cmd_Incrementi;
    std::unique_ptr<TestoBox> Txt_Incrementi;
  };
  std::vector<std::unique_ptr<Riga>> righe;
  Button Command1;

 private:
  void Tick(std::size_t i);
  void ShowRow(std::size_t i);
  void AskConditions(std::size_t i);
  void AskIncrements(std::size_t i);
  std::string Offered(std::size_t i) const;
  void Confirm();

  Player& player_;
  const VersioneSic& versione_;
  // What the rows hold before "O.K."
  std::string maggiorazioni_, incrementi_;
};

}  // namespace orm
