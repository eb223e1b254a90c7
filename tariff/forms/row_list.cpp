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

std::string DoveSiamo(const PostoRiga& posto, std::string_view cosa) {
  return ConNumero(posto, cosa) + (posto.Nuova() ? "" : " di " + Intero(posto.esistenti));
}

std::string OltreIlMassimo(std::size_t massimo, std::string_view cose) {
  return "UNA PARCELLA PUÒ AVERE AL MASSIMO " + Intero(massimo) + " " + std::string(cose) + ".";
}

}  // namespace orm
