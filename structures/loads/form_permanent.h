// frmSTRUTTURE_CarichiPermanenti: permanent loads of a floor or a roof, kg/mq, on seven panels.
#pragma once

#include <array>
#include <deque>

#include "structures/loads/load_form.h"
#include "structures/numbered_controls.h"

namespace orm {

// A panel, and its line in the list of all.
struct PannelloCarico {
  PannelloCarico(Form& sua, std::size_t suo, const char* come)
      : form(sua), numero(suo), nome(come) {
    cdCarico.SetReadOnly(true);
    cdRisultato.SetReadOnly(true);
    frmSpecificaCarichi.SetVisible(false);
  }

  Form& form;
  std::size_t numero;
  const char* nome;
  NumberLimits limiti = FinoA(999999999.99, "Kg/mq.");
  FloatBox cdCarico{form, NomeIndicizzato("cdCarico", numero), nome, limiti};
  Button cmdSpecifica{form, NomeIndicizzato("cmdSpecifica", numero), "Specifica..."};
  Frame frmSpecificaCarichi{form, NomeIndicizzato("frmSpecificaCarichi", numero), nome};
  FloatBox cdRisultato{form, NomeIndicizzato("cdRisultato", numero), "Carico", limiti};
  Button cmdAzzera{form, NomeIndicizzato("cmdAzzera", numero), "&Azzera"};
  Button Commando{form, NomeIndicizzato("Commando", numero), "&O.K.", Button::Role::Default};
};

class FrmStruttureCarichiPermanenti : public FormCarichi {
 public:
  FrmStruttureCarichiPermanenti();
  void OnOpen() override;
  void OnEscape() override;        // from an open panel back to the list
  double Totale() const override;  // the plain sum of the panels

  enum Pannello : std::size_t {
    Pavimentazione,
    Tramezzi,
    Neve,
    Impermeabilizzazione,
    Manto,
    Massetto,
    Soffitto
  };
  static constexpr std::array kPannelli = {
      "PAVIMENTAZIONE comprensiva di letto di malta o sottofondo",
      "TRAMEZZI",
      "NEVE",
      "IMPERMEABILIZZAZIONE",
      "MANTI DI COPERTURA",
      "MASSETTO PENDENZE",
      "SOFFITTO"};
  static constexpr const char* kKgMq = "Kg/mq.";

  // The list of the panels with their results; an open panel takes its place.
  Frame fraSovraccarichi{*this, "fraSovraccarichi", "SOVRACCARICHI RIPARTITI  [Kg/mq]"};
  std::deque<PannelloCarico> pannelli;
  FloatBox cdTotale{*this, "cdTotale", "TOTALE", FinoA(999999999.99, kKgMq)};
  Button cmdCalcola{*this, "cmdCalcola", "&CALCOLA"};
  Button cmdAzzera{*this, "cmdAzzera", "&Azzera"};

  // A choice for each panel but that of the screed.
  std::array<OptionGroup, 7> gruppi;
  SceltaCarico optPavimento{*this, "optPavimento", kVociPavimento, gruppi[Pavimentazione], kKgMq};
  SceltaCarico optImper{*this, "optImper", kVociImpermeabilizzazione, gruppi[Impermeabilizzazione],
                        kKgMq};
  SceltaCarico optManto{*this, "optManto", kVociManto, gruppi[Manto], kKgMq};
  SceltaCarico optSoffitto{*this, "optSoffitto", kVociSoffitto, gruppi[Soffitto], kKgMq};
  Schiera<OptionButton> optTramezzi{*this,
                                    "optTramezzi",
                                    0,
                                    {"Tramezzi di peso < 150 Kg/mq", "Altro tipo di carico"},
                                    gruppi[Tramezzi]};
  FloatBox cdAreaSolaio{*this, "cdAreaSolaio", "Area del solaio", FinoA(9999.99, "mq.")};
  FloatBox cdLunghezza{*this, "cdLunghezza", "Lunghezza Tramezzatura ", FinoA(9999.99, "ml.")};
  FloatBox cdAltezza{*this, "cdAltezza", "Altezza Tramezzo ", FinoA(99.99, "ml.")};
  FloatBox cdPesoTramezzo{*this, "cdPesoTramezzo", "Peso Tramezzo compreso doppio intonaco",
                          FinoA(9999.99, kKgMq)};
  FloatBox cdAltroTramezzo{*this, "cdAltroTramezzo", "", FinoA(99999.99, kKgMq)};
  Label lblEsempioTramezzi{*this, "lblEsempioTramezzi",
                           "Ad esempio tramezzo di forati da 8   : 110 Kg/mq.                    "
                           "tramezzo di forati da 12 : 130 Kg/mq",
                           Label::Style::Note};
  Label lblNotaTramezzi{*this, "lblNotaTramezzi",
                        "La ripartizione dei tramezzi è accettabile solo per peso a mq  inferiore "
                        "a 150 Kg/mq.",
                        Label::Style::Note};
  Schiera<OptionButton> optZona{
      *this, "optZona", 0, {kZoneNeve[0].nome, kZoneNeve[1].nome}, gruppi[Neve]};
  FloatBox cdQuota{*this, "cdQuota", "Altezza località sul livello del mare ",
                   FinoA(4999.99, "m.")};
  FloatBox cdInclinazione{*this, "cdInclinazione", "Inclinazione della falda", FinoA(90, "gradi")};
  Label lblNotaNeve{*this, "lblNotaNeve",
                    "Si ricorda che questo tipo di sovraccarico non va cumulato sulle medesime "
                    "superfici con i carichi accidentali prescritti dalle norme.",
                    Label::Style::Note};
  Label lblFavoreSicurezza{*this, "lblFavoreSicurezza",
                           "Naturalmente, a favore della sicurezza, occorre fra adottare il più "
                           "gravoso fra il carico da neve e quello accidentale.",
                           Label::Style::Note};
  FloatBox cdSpessore{*this, "cdSpessore", "Spessore cm.", FinoA(999.99, "")};

 private:
  Layout Elenco();
  Layout Specifica(std::size_t pannello);
  Layout Contenuto(std::size_t pannello);
  void TieEvents();
  void Apri(PannelloCarico& pannello);
  void Torna();
  void MostraElenco();
  void Azzera(std::size_t pannello);
  void Aggiorna();
  double Risultato(std::size_t pannello) const;

  PannelloCarico* aperto_ = nullptr;
};

// The dialog of this run.
FrmStruttureCarichiPermanenti& CarichiPermanenti(RunState& stato);

}  // namespace orm
