#include "tariff/forms/row_list.h"

#include "runtime/numbers.h"

namespace orm {
namespace {
std::string Intero(std::size_t numero) { return NumberText(static_cast<double>(numero)); }
}  // namespace

std::string ConNumero(const PostoRiga& posto, std::string_view cosa) {
  return std::string(cosa) + " n° " + Intero(posto.numero);
}

std::string Etichetta(const PostoRiga& posto, std::string_view cosa, std::string_view nuova) {
  return posto.Nuova() ? std::string(nuova) + " " + std::string(cosa) : ConNumero(posto, cosa);
}

std::string DoveSiamo(const PostoRiga& posto, const NomeRiga& riga) {
  return std::string(riga.nome) + " " + Intero(posto.numero) +
         (posto.Nuova() ? "" : " di " + Intero(posto.esistenti));
}

std::string Toglie(const PostoRiga& posto, const NomeRiga& riga) {
  if (posto.Nuova()) return "";
  if (posto.numero == posto.esistenti)
    return std::string("toglie ") + riga.una + " " + Intero(posto.numero);
  return std::string("toglie ") + riga.piu + " da " + Intero(posto.numero) + " a " +
         Intero(posto.esistenti);
}

std::string OltreIlMassimo(std::size_t massimo, std::string_view cose) {
  return "UNA PARCELLA PUÒ AVERE AL MASSIMO " + Intero(massimo) + " " + std::string(cose) + ".";
}

}  // namespace orm
