// How the figures of a note came about: what all its lines share.
#include "tariff/explanations.h"

#include <algorithm>
#include <cmath>

#include "runtime/numbers.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/percentages.h"

namespace orm {
namespace {

// A number that lies a hair below a whole one, beyond the digits that anybody sees.
bool MancaUnSoffio(double valore) {
  constexpr double kConDecimali = 1e14;  // up to here 15 digits show the first decimal
  if (std::fabs(valore) < kConDecimali && valore - Int(valore) < 0.9) return false;
  const auto visto = ParseNumber(NumberText(valore));
  return visto && Int(*visto) > Int(valore);
}

}  // namespace

bool Toglie(const Taglio& taglio) {
  return ParseNumber(NumberText(taglio.prima)).value_or(taglio.prima) != taglio.dopo;
}

void AnnotaTaglio(const Taglio& taglio, std::vector<std::string>& note) {
  if (taglio.tipo != TipoTaglio::Decimali) return;
  if (std::fabs(taglio.dopo) > std::fabs(taglio.prima) && Toglie(taglio))
    note.push_back("Una coda di nove è uno scarto del calcolo e vale l'unità che le manca");
  if (taglio.decimali != 0 && taglio.prima != 0 &&
      std::fabs(taglio.dopo) < 0.1 / std::pow(10, std::abs(taglio.decimali)))
    note.push_back("Tutte le cifre cadono, ma resta una coda che non è zero");
}

Passaggio Mostrato(Passaggio passo, int decimali, const std::string& dopo) {
  Taglio taglio{TipoTaglio::Decimali, decimali, passo.Valore().value_or(0), 0};
  taglio.dopo = taglio.prima;
  passo.cifra = FormattaNumero(taglio.dopo, decimali) + dopo;
  passo.tagli.push_back(taglio);
  return passo;
}

Passaggio Parcella::PassoDato(std::string_view campo, double valore, std::string unita) const {
  return {"Dai dati della parcella, \"" + std::string(campo) + "\"", "", valore, std::move(unita)};
}

Passaggio Parcella::PassoDatoImporto(std::string_view campo, const Conto& importo) const {
  return PassoImporto(std::string("Dai dati della parcella, ") +
                          (importo.Semplice() ? "\"" : "somma di \"") + std::string(campo) + "\"",
                      importo);
}

std::string CifraNuda(double valore) {
  std::string cifra = NumberText(valore);
  std::ranges::replace(cifra, '.', ',');
  return cifra;
}

void Parcella::SpiegaDato(std::string_view campo, double valore, std::string unita) {
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    Passaggio passo = PassoDato(campo, valore, std::move(unita));
    passo.cifra = CifraNuda(valore);
    return {std::move(passo)};
  });
}

Passaggio Parcella::PassoTariffa(std::string regola, double lire) const {
  Passaggio passo = PassoImporto(std::move(regola), InValuta(lire));
  if (ModoLire) return passo;
  const Conto cambio = Conto(lire) / kLirePerEuro;
  passo.regola += ", dalle Lire al cambio di 1.936,27";
  passo.conto = cambio;
  passo.risultato = cambio.Valore();
  passo.tagli = {{TipoTaglio::SullaCifra, 2, cambio.Valore(), InValuta(lire)}};
  return passo;
}

Passaggio Parcella::PassoImporto(std::string regola, const Conto& conto) const {
  return {std::move(regola), conto, conto.Valore(), Valuta()};
}

Passaggio Parcella::PassoOnorario(std::string regola, const Conto& conto) const {
  Passaggio passo = PassoImporto(std::move(regola), conto);
  if (!ModoLire) return passo;
  passo.tagli.push_back({TipoTaglio::ParteIntera, 0, conto.Valore(), Int(conto.Valore())});
  if (MancaUnSoffio(conto.Valore()))
    passo.Annota(
        "Il conto in numeri binari resta un soffio sotto l'intero che mostra, e la "
        "parte intera è quella che viene prima");
  return passo;
}

Catena Parcella::CatenaInLire(double importo) const {
  if (ModoLire || importo == 0) return {};
  const Conto conto = Conto(importo) * kLirePerEuro;
  return {{"Importo in Lire, al cambio fisso di 1.936,27 Lire per Euro (regolamento CE 2866/98)",
           conto,
           conto.Valore(),
           "Lire",
           {{TipoTaglio::SullaCifra, 0, conto.Valore(), ImportoInLire(importo)}}}};
}

Catena Parcella::CatenaInValuta(double lire) const {
  if (ModoLire) return {};
  const Conto conto = Conto(lire) / kLirePerEuro;
  return {{"Di nuovo in Euro, dalle Lire intere",
           conto,
           conto.Valore(),
           "Euro",
           {{TipoTaglio::SullaCifra, 2, conto.Valore(), InValuta(lire)}}}};
}

void Parcella::SpiegaTaglio(Percentuale& p, double lire, double valore,
                            std::function<Catena()> catena) const {
  Taglio taglio{TipoTaglio::Decimali, 0, valore, p.valore};
  DecimaliPercentuale(lire, taglio.decimali, criteri.DecimaliTabelle);
  const int criterio = criteri.DecimaliTabelle;
  p.catena.clear();
  p.catena.push_back(InComune(
      [taglio, criterio, catena = std::move(catena)] {
        Catena passi = catena();
        Passaggio& passo = passi.back();
        passo.tagli.push_back(taglio);
        if (Toglie(taglio)) passo.Annota(MotivoDecimali(taglio.decimali, criterio));
        AnnotaTaglio(taglio, passo.note);
        return passi;
      },
      p.testo));
}

Catena Parcella::CatenaOnorario(const Percentuale& P, const Conto& onorario, Ragioni ragioni,
                                bool conCompensi) const {
  Catena catena = std::move(ragioni.prima);
  catena.reserve(catena.size() + P.catena.size() + CatenaCompensi.size() + 1);
  catena.insert(catena.end(), P.catena.begin(), P.catena.end());
  if (conCompensi) catena.insert(catena.end(), CatenaCompensi.begin(), CatenaCompensi.end());
  for (Passaggio& passo : catena) passo.cifra.clear();  // those of other lines
  catena.push_back(PassoOnorario(std::move(ragioni.regola), onorario));
  for (std::string& nota : ragioni.note) catena.back().Annota(std::move(nota));
  if (onorario.Valore() < 0)
    catena.back().Annota("L'importo di questa parte è negativo, e l'onorario si detrae");
  return catena;
}

void Parcella::AnnotaAliquota(const RigaFormula& formula, Passaggio& onorario) {
  constexpr int kTutti = 10;
  // Most have no more decimals than are shown, or a tail too far behind them to be seen: no text is
  // made then.
  const double unita = std::pow(10, formula.decimali);
  const double vista = std::round(formula.aliquota * unita) / unita;
  const double coda = formula.aliquota - vista;
  if (formula.decimali > 0 && coda >= 0 && coda < 1e-11) return;
  const std::string mostrata = FormattaCopia(formula.aliquota, formula.decimali);
  const std::string intera = FormattaCopia(formula.aliquota, kTutti);
  if (mostrata != intera)
    onorario.Annota("La riga mostra l'aliquota " + intera + " come " + mostrata +
                    ", e il conto la prende intera");
}

void Parcella::SpiegaRiga(Catena catena) {
  Passaggio& ultimo = catena.back();
  ultimo.tagli.push_back(stampata_.taglio);
  AnnotaTaglio(stampata_.taglio, ultimo.note);
  ultimo.cifra = stampata_.testo;
  spiegazioni.Riga(uscita.Contents(), [&] { return std::move(catena); });
}

}  // namespace orm
