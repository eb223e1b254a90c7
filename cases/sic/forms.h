// The dialogs of site safety: the amounts of a lot, its duties, and the conditions of a duty. What
// they show is taken when it is confirmed.
#pragma once

#include <array>
#include <deque>
#include <optional>

#include "cases/sic/data.h"
#include "tariff/forms/input_form.h"
#include "tariff/law/site_safety.h"

namespace orm {

// frmSIC_Importi.
class FrmSicImporti : public FormInput {
 public:
  // `altri`: the other lots of the note.
  FrmSicImporti(RunState& stato, const PostoRiga& posto, LottoSic& lotto,
                const std::vector<LottoSic>& altri);

  Label lblClasse{*this, "lblClasse"};
  Label lblCategoria{*this, "lblCategoria"};
  Label lblTariffa{*this, "lblTariffa"};
  MarchioEuro Image1{*this, stato_};
  Frame Frame1{*this, "Frame1", "PROGETTAZIONE"};
  Frame Frame2{*this, "Frame2", "ESECUZIONE"};
  std::array<ImportoBox, 2> importo{
      {{*this, stato_, "Importo1", "IMPORTO LAVORI ", kLavoriConSegno},
       {*this, stato_, "Importo2", "IMPORTO LAVORI "}}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

// frmSIC_Maggiorazioni and frmSIC_Incrementi: boxes to tick, one for each condition.
class FrmSicSpunte : public Form {
 public:
  // `segni`: "0", "1" ticked, "2" not available, for each condition.
  FrmSicSpunte(std::string nome, std::string passo, std::string riquadro,
               std::span<const CondizioneSic> condizioni, std::size_t caselle, std::string segni);

  std::string Segni;  // as given until "O.K." takes new ones

  Frame Frame1{*this, "Frame1"};
  std::deque<CheckBox> Check;
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
};

// frmSIC_Prestazioni.
class FrmSicPrestazioni : public Form {
 public:
  FrmSicPrestazioni(Player& player, const VersioneSic& versione, LottoSic& lotto);

  Frame Frame1{*this, "Frame1"};
  // A duty with its conditions; increments belong to the two coordinators alone.
  struct Riga {
    Riga(Form& form, std::size_t i);
    CheckBox Check;
    Button cmd_Maggiorazioni;
    TestoBox Txt_Maggiorazioni;
    std::optional<Button> cmd_Incrementi;
    std::optional<TestoBox> Txt_Incrementi;
  };
  std::deque<Riga> righe;
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  // The conditions of the duties belong to a draft as well.
  std::vector<std::string> Hidden() const override { return {maggiorazioni_, incrementi_}; }
  void SetHidden(const std::vector<std::string>& values) override;
  void Spunta(std::size_t i);
  void MostraRiga(std::size_t i);
  void ChiediMaggiorazioni(std::size_t i);
  void ChiediIncrementi(std::size_t i);
  std::string Offerti(std::size_t i) const;
  void Conferma();

  Player& player_;
  const VersioneSic& versione_;
  LottoSic& lotto_;
  // What the rows hold before "O.K."
  std::string maggiorazioni_, incrementi_;
};

}  // namespace orm
