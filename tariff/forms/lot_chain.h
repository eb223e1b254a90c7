// What the chains of dialogs of the notes with lots share: class and category of the next lot,
// where in the note the person is, and the refusal of what the note has no place for.
#pragma once

#include <string>

#include "tariff/forms/form_class.h"

namespace orm {

// A lot on its way through the dialogs. `esistenti`: how many lots the note had before.
struct PostoLotto {
  std::size_t numero = 1;  // from 1
  std::size_t esistenti = 0;
  bool Nuovo() const { return numero > esistenti; }
};

// How a case words the class dialog.
struct TestiClasse {
  std::string titolo;      // empty: "CLASSE E CATEGORIA per il LOTTO n° " and the number
  bool etichetta = false;  // a lot that exists is named "LOTTO n° 2" above its fields
  bool proposta = false;   // a new lot begins with class 1, category a; otherwise blank
};

// Shows the class dialog for a lot, with its class and category where the lot exists. True when the
// person entered it; false at the end of the lots. Closing the window keeps a lot that exists as it
// is, and ends the input where a new one was asked.
bool ChiediClasse(RunState& stato, FrmGenClasse& form, const PostoLotto& posto, std::string& Classe,
                  std::string& Categoria, const TestiClasse& testi = {});

// "LOTTO n° 2 di 3"; a new one has no "di".
std::string DoveSiamo(const PostoLotto& posto, std::string_view cosa);
// "LOTTO n° 2 di 3   CLASSE/CATEGORIA 1/c".
std::string DoveSiamo(const PostoLotto& posto, std::string_view Classe, std::string_view Categoria);

// "UNA PARCELLA PUÒ AVERE AL MASSIMO 20 LOTTI."
std::string OltreIlMassimo(std::size_t massimo, std::string_view cose);

}  // namespace orm
