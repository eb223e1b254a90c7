#include "tariff/forms/lot_chain.h"

#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {
std::string Intero(std::size_t numero) { return NumberText(static_cast<double>(numero)); }
}  // namespace

bool ChiediClasse(RunState& stato, FrmGenClasse& form, const PostoLotto& posto, std::string& Classe,
                  std::string& Categoria, const TestiClasse& testi) {
  const std::string lotto = "LOTTO n° " + Intero(posto.numero);
  const bool senzaCategorie = SenzaCategorie(Classe);
  form.Label1.SetText(posto.Nuovo() ? "NUOVO LOTTO" : testi.etichetta ? lotto : "");
  form.SetTitle(testi.titolo.empty() ? "CLASSE E CATEGORIA per il " + lotto : testi.titolo);
  if (posto.Nuovo()) {
    form.SetClasse(testi.proposta ? "1" : "");
    form.SetCategoria(testi.proposta ? "a" : "");
  } else {
    form.SetClasse(Classe);
    form.SetCategoria(senzaCategorie ? "" : Categoria);
  }
  stato.player.Show(form);
  if (form.TipodiUscita == Form::Uscita::Fine) return false;
  if (!form.Confermato()) return !posto.Nuovo();
  Classe = form.Classe;
  Categoria = form.Categoria;
  return true;
}

std::string DoveSiamo(const PostoLotto& posto, std::string_view cosa) {
  return std::string(cosa) + " n° " + Intero(posto.numero) +
         (posto.Nuovo() ? "" : " di " + Intero(posto.esistenti));
}

std::string DoveSiamo(const PostoLotto& posto, std::string_view Classe,
                      std::string_view Categoria) {
  return DoveSiamo(posto, "LOTTO") + "   CLASSE/CATEGORIA " +
         StringaClasseCategoria(Classe, Categoria);
}

std::string OltreIlMassimo(std::size_t massimo, std::string_view cose) {
  return "UNA PARCELLA PUÒ AVERE AL MASSIMO " + Intero(massimo) + " " + std::string(cose) + ".";
}

}  // namespace orm
