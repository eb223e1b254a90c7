// Panel of a designed truss-joist slab with five views: input scheme, drawing of the bars, table of
// bars, shear and moments, stresses. One shows at a time.
#pragma once

#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/form.h"
#include "dialogs/lavagna.h"
#include "structures/numbered_controls.h"
#include "structures/truss_slab/drawing.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

// A design that holds, with the data that it is of.
struct ProgettoSolaioT {
  DatiSolaioT dati;
  RisultatiSolaioT risultati;
};

class PannelloVisteSolaio {
  Form& form_;  // before the controls, which are built on it

 public:
  explicit PannelloVisteSolaio(Form& form);
  Layout Contents(Label& esito);
  // No design: empty results.
  void Azzera();
  // The design that was shown is one of other data.
  void SegnaCambiati();
  // Shear, moments and stresses of the design, each under its caption.
  std::vector<Spiegazione> Spiegate() const;
  // The control only chooses the view.
  bool EScelta(const Control& control) const;
  // A design, with its drawing in front.
  void Mostra(const ProgettoSolaioT& progetto);
  const ProgettoSolaioT& Progetto() const { return *progetto_; }  // that is shown

  // Values of the views, numbered as their captions stand here. Those that are held against a
  // limit have it beside them.
  enum Valore : std::size_t {
    Taglio = 1,
    MomentoSin,
    MomentoDex,
    MomentoMezzeria,
    SinClsPiena,
    SinClsTravetto,
    SinAcciaioPiena,
    SinAcciaioTravetto,
    DexAcciaioPiena,
    DexAcciaioTravetto,
    DexClsTravetto,
    Tangenziale,
    DexClsPiena,
    MezzeriaAcciaio,
    MezzeriaCls,
    ZonaPienaSin,
    ZonaPienaDex
  };
  static constexpr std::array kTensioni = {
      "INCASTRO SIN  : Cls inf. sez. piena           [Kg/cmq] ",
      "INCASTRO SIN  : Cls inf. travetto             [Kg/cmq] ",
      "INCASTRO SIN  : Acciaio sup. sez. piena [Kg/cmq] ",
      "INCASTRO SIN  : Acciaio sup. travetto     [Kg/cmq] ",
      "INCASTRO DEX  : Acciaio sup. sez. piena [Kg/cmq] ",
      "INCASTRO DEX  : Acciaio sup. travetto     [Kg/cmq] ",
      "INCASTRO DEX  : Cls inf.  travetto             [Kg/cmq] ",
      "Tensione tangenziale max  cls [Kg/cmq]",
      "INCASTRO DEX  : Cls inf. sez. piena           [Kg/cmq] ",
      "MEZZERIA     :  Tensione acciaio inf.      [Kg/cmq]",
      "MEZZERIA     :  Tensione cls sup.           [Kg/cmq]"};
  static TextOptions Figura(const char* unita = "") {
    return {.readOnly = true, .width = 7, .unit = unita, .figure = true};
  }

  Frame fraVisualizza{form_, "fraVisualizza", "VISUALIZZA RISULTATI"};
  OptionGroup gruppo;
  enum Vista { Schema, Disegno, Ferri, Sollecitazioni, Tensioni };
  Schiera<OptionButton> optVisualizza{
      form_,
      "optVisualizza",
      0,
      {"Schema input dati", "Disegno armature", "Tabella Ferri", "Sollecitazioni ", "Tensioni"},
      gruppo};
  Frame fraEsito{form_, "fraEsito", "ESITO"};
  Frame fraDisegno{form_, "fraDisegno", "DISEGNO SCHEMA ARMATURE"};
  orm::Lavagna Lavagna{form_, "Lavagna", kLarghezzaDisegno, kAltezzaDisegno, kPuntiDisegno};
  Frame fraFerri{form_, "fraFerri", "DISPOSIZIONE FERRI E LATERIZI"};
  Schiera<TestoBox> cdLunghezze{
      form_,
      "cdLunghezze",
      0,
      {"Ferro aggiuntivo in campata", "Ferro integrativo n.1 in campata",
       "Ferro integrativo n.2 in campata", "Moncone lungo superiore SIN",
       "Moncone lungo superiore DEX", "Moncone corto superiore SIN", "Moncone corto superiore DEX"},
      Figura("ml")};
  Schiera<Label> lblDiametri{form_, "lblDiametri", 0, std::vector<std::string>(7)};  // of the same
  Frame fraSollecitazioni{form_, "fraSollecitazioni", "SOLLECITAZIONI "};
  Schiera<TestoBox> cdSollecitazioni{
      form_,
      "cdRisultati",
      Taglio,
      {"Taglio max  [    Kg    ]", "Momento incastro SIN  [ Kg x m ]",
       "Momento incastro DEX  [ Kg x m ]", "Momento mezzeria  [ Kg x m ]"},
      Figura()};
  Frame fraTensioni{form_, "fraTensioni", "TENSIONI "};
  Schiera<TestoBox> cdTensioni{
      form_, "cdRisultati", SinClsPiena, {kTensioni.begin(), kTensioni.end()}, Figura()};
  Schiera<TestoBox> cdVAmmessi{
      form_, "cdVAmmessi", SinClsPiena, {kTensioni.begin(), kTensioni.end()}, Figura()};
  Schiera<TestoBox> cdZonePiene{form_,
                                "cdRisultati",
                                ZonaPienaSin,
                                {"Lunghezza zona piena a SIN", "Lunghezza zona piena a DEX"},
                                Figura("cm  < 50")};
  // Headings of the tables, one after the other.
  Schiera<Label> lblColonne{form_,
                            "lblColonne",
                            0,
                            {"", "LUNGHEZZA", "DIAMETRO", "", "LUNGHEZZA", "DIAMETRO", "",
                             "CALCOLATE", "", "AMMESSE", "CALCOLATE", "", "AMMESSE", "CALCOLATE"}};

 private:
  Layout Tabella(std::size_t primaColonna, std::vector<Layout> linee);
  Layout TabellaTensioni(std::size_t primaColonna, std::initializer_list<Valore> tensioni);
  void ScegliVista();
  void Scrivi(Valore tensione, double valore, double ammessa);
  void ScriviFerri(const RisultatiSolaioT& risultati);

  std::optional<ProgettoSolaioT> progetto_;
  bool cambiati_ = false;
};

}  // namespace orm
