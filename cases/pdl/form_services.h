// frmPDL_Prestazio: the services of Table B done in a row, or on the works that a report varies.
#pragma once

#include <array>

#include "cases/pdl/data.h"
#include "tariff/forms/service_boxes.h"

namespace orm {

class FrmPdlPrestazio : public Form {
 public:
  enum class Modo { Riga, Perizia };  // a variation report has services of design alone

  // Of works like those of `riga`: "T" or "P", and with "P" the letters; taken when they are
  // confirmed.
  FrmPdlPrestazio(std::string titolo, const RigaPdl& riga, std::string& tipo, std::string& stringa,
                  Modo modo);

  Frame Frame1{*this, "Frame1", "PRESTAZIONI"};
  OptionGroup scelta;
  OptionButton Option1{*this, "Option1", "COMPLETE", scelta};
  OptionButton Option2{*this, "Option2", "PARZIALI", scelta};
  Frame Frame2{*this, "Frame2", "PRESTAZIONI"};
  // Named by their letters.
  std::array<CheckBox, 10> servizi{{{*this, "a", "a   PROGETTO DI MASSIMA"},
                                    {*this, "b", "b   PREVENTIVO SOMMARIO"},
                                    {*this, "c", "c   PROGETTO ESECUTIVO"},
                                    {*this, "d", "d   PREVENTIVO PARTICOLAREGGIATO"},
                                    {*this, "e", "e   PARTICOLARI COSTRUTTIVI E DECORATIVI"},
                                    {*this, "f", "f   CAPITOLATI E CONTRATTI"},
                                    {*this, "g", "g   DIREZIONE LAVORI"},
                                    {*this, "h", "h   PROVE DI OFFICINA"},
                                    {*this, "i", "i   ASSISTENZA AL COLLAUDO"},
                                    {*this, "l", "l   LIQUIDAZIONE"}}};
  AliquoteServizi aliquote{*this};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
  std::string &tipo_, &stringa_;
};

}  // namespace orm
