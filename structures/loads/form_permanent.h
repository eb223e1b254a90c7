// frmSTRUTTURE_CarichiPermanenti: permanent loads of a floor or a roof, kg/mq, on seven panels.
#pragma once

#include <array>
#include <deque>

#include "structures/loads/load_form.h"

namespace orm {

// A panel, and its line in the list of all.
struct PannelloCarico {
  PannelloCarico(Form& form, std::size_t indice, const char* nome);
  FloatBox cdCarico;
  Button cmdSpecifica;
  Frame frmSpecificaCarichi;
  FloatBox cdRisultato;
  Button cmdAzzera, Commando;
};

class FrmStruttureCarichiPermanenti : public FrmCarichi {
 public:
  FrmStruttureCarichiPermanenti();
  void OnOpen() override;
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

  // The list of the panels with their results; an open panel takes its place.
  Frame fraSovraccarichi;
  std::deque<PannelloCarico> pannelli;
  FloatBox cdTotale;
  Button cmdCalcola, OKButton;

  // A choice for each panel but that of the screed.
  std::array<OptionGroup, 7> gruppi;
  SceltaCarico optPavimento, optImper, optManto, optSoffitto;
  std::array<OptionButton, 2> optTramezzi;
  FloatBox cdAreaSolaio, cdLunghezza, cdAltezza, cdPesoTramezzo, cdAltroTramezzo;
  Label lblEsempioTramezzi, lblNotaTramezzi;
  std::array<OptionButton, 2> optZona;
  FloatBox cdQuota, cdInclinazione;
  Label lblNotaNeve, lblFavoreSicurezza;
  FloatBox cdSpessore;

 private:
  Layout Elenco();
  Layout Specifica(std::size_t pannello);
  Layout Contenuto(std::size_t pannello);
  void TieEvents();
  void Apri(PannelloCarico& pannello);
  void MostraElenco();
  void Azzera(std::size_t pannello);
  void Aggiorna();
  double Risultato(std::size_t pannello) const;
};

// The dialog of this run.
FrmStruttureCarichiPermanenti& CarichiPermanenti(RunState& stato);

}  // namespace orm
