// frmGEN_Classe: class, category and, where the case has no amount dialog of its own, the amount of
// a lot.
#pragma once

#include "tariff/forms/amount_box.h"
#include "tariff/forms/input_form.h"

namespace orm {

// How a case words the dialog.
struct TestiClasse {
  std::string titolo = {};  // empty: "CLASSE E CATEGORIA per il LOTTO n° " and the number
  bool etichetta = false;   // a lot that exists is named "LOTTO n° 2" above its fields
  bool proposta = false;    // a new lot begins with class 1, category a; otherwise blank
};

class FrmGenClasse : public FormRiga {
 public:
  // Shows class ("1" to "9") and category ("a" to "g") where the lot exists, and takes them and the
  // amount when they are confirmed. An amount that is asked must not be 0.
  FrmGenClasse(RunState& stato, const PostoRiga& posto, std::string& Classe, std::string& Categoria,
               const TestiClasse& testi = {}, const ImportoChiesto& chiesto = {});

  Label Label1{*this, "Label1", "", Label::Style::Title};
  ComboBox comClasse{*this, "comClasse", "CLASSE"};
  Label lblClasse{*this, "lblClasse", "", Label::Style::Note};
  ComboBox comCategoria{*this, "comCategoria", "CATEGORIA"};
  Label lblCategoria{*this, "lblCategoria", "", Label::Style::Note};
  ImportoBox importo{*this, stato_, "Importo", "IMPORTO"};
  MarchioEuro Image1{*this, stato_};
  Button cmdCONFERMA{*this, "cmdCONFERMA", "&O.K", Button::Role::Default};
  Button cmdFINE{*this, "cmdFINE", "&FINE INPUT CLASSI E CATEGORIE"};

 private:
  void MostraCategorie();
  void Conferma();
  std::string &Classe_, &Categoria_;
  const bool chiedeImporto_;
};

// Class and category of a lot. False at the end of the lots.
bool ChiediClasse(RunState& stato, const PostoRiga& posto, std::string& Classe,
                  std::string& Categoria, const TestiClasse& testi = {});

// Class, category and amount of a lot which asks no more than that of the tariff.
template <class Lotto>
bool ChiediClasseEImporto(RunState& stato, const PostoRiga& posto, const std::vector<Lotto>& altri,
                          Lotto& lotto) {
  return FrmGenClasse(stato, posto, lotto.Classe, lotto.Categoria,
                      {.titolo = "IMPORTO DEI LAVORI RICADENTI NELLA CLASSE E CATEGORIA INDICATA",
                       .etichetta = true},
                      Chiesto(lotto, &Lotto::Importo, altri, {ConNumero(posto, "LOTTO")}))
      .Chiedi();
}

// The way to the forms of a lot: "lotto 2 di 3", "1/c".
std::vector<std::string> DoveSiamo(const PostoRiga& posto, std::string_view Classe,
                                   std::string_view Categoria);

}  // namespace orm
