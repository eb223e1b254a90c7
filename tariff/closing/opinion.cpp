// What the client owes besides the fees, and the opinion of the Order.
#include <initializer_list>

#include "tariff/closing/amount_in_words.h"
#include "tariff/closing/final_account.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {
namespace {

constexpr int kColonnaParere = 15;

// What is not 0, one behind the other.
Conto Addendi(std::initializer_list<double> importi) {
  Conto somma;
  for (const double importo : importi)
    if (importo != 0) somma += importo;
  return somma;
}

}  // namespace

void ContoFinale::CalcolaTassaParere() {
  contoTassa =
      (nota.Zero() + criteri.QuotaPercentualeParere) * Totale / 100 + criteri.QuotaFissaParere;
  TassaParere = contoTassa;
  TestoTassa = "Euro " + FormattaNumero(TassaParere, DecimaliValuta);
}

Passaggio ContoFinale::PassoTassa(double tagliata) const {
  Passaggio passo = Passo(
      "Tassa per il parere dell'Ordine: quota percentuale delle competenze e quota fissa, dai "
      "criteri di calcolo",
      contoTassa);
  passo.tagli = {{TipoTaglio::Decimali, DecimaliValuta, contoTassa, tagliata}};
  return passo;
}

// A percentage of `base`, printed; 0 when the client does not owe it.
double ContoFinale::Contributo(const std::string& spesa, const char* nome, double percentuale,
                               const Conto& base) {
  if (spesa != "SI" || percentuale == 0) return 0;
  const Conto prodotto = percentuale * base / 100;
  double contributo = prodotto;
  stampa.Text(nome + Percento(percentuale));
  Importo(contributo);
  nota.Spiega([&]() -> Catena {
    return {Passo(TrimRight(nome) + ", con la percentuale dei criteri di calcolo, " +
                      (base.Semplice() ? "sulle competenze" : "su competenze e contributi"),
                  prodotto)};
  });
  return contributo;
}

void ContoFinale::StampaSpeseAggiuntive() {
  if (criteri.StampaSpeseAggiuntive != "SI") return;
  const std::string riga(kLarghezzaParcella, '=');
  stampa.Line().Line().Line(riga).Line("ALTRE SPESE PER IL COMMITTENTE");
  const double ContributoInarcassa =
      Contributo(criteri.SpesaInarcassa, "Contributo INARCASSA ", criteri.PercInarcassa, Totale);
  const double ContributoInps =
      Contributo(criteri.SpesaInps, "Contributo INPS ", criteri.PercInps, Totale);
  const double Iva = Contributo(criteri.SpesaIva, "I.V.A. ", criteri.PercIva,
                                Addendi({Totale, ContributoInarcassa, ContributoInps}));
  double tassa = 0;
  if (criteri.SpesaTassaParere == "SI") {
    stampa.Text("Tassa Rilascio Parere");
    const double tagliata = TassaParere;
    Importo(TassaParere);
    nota.Spiega([&]() -> Catena { return {PassoTassa(tagliata)}; });
    tassa = TassaParere;
  }
  const Conto somma = Addendi({Totale, ContributoInarcassa, ContributoInps, Iva, tassa});
  double onere = somma;
  stampa.Tab(6).Text("Totale onere finanziario Committente");
  Importo(onere);
  Spiega("Competenze, contributi, I.V.A. e tassa a carico del committente", somma);
  stampa.Line(riga);
}

void ContoFinale::StampaParere() {
  if (criteri.StampaParere != "SI") return;
  const double intero = Totale;
  const std::string testoTotale = FormattaNumero(Totale, DecimaliValuta);
  std::string lettere;
  ImportoInLettere(lettere, Totale);
  stampa.Line().Line();
  for (const std::string& riga : {
           std::string(Titolo == "Dott. Ing. "
                           ? "      Il Consiglio dell'Ordine degli INGEGNERI              "
                           : "      Il Consiglio dell'Ordine degli ARCHITETTI             "),
           "          della Provincia di " + utente.Ordine,
           std::string("                 vista l'istanza del                        "),
           Titolo + utente.Nome,
           std::string("                     ESPRIME PARERE                         "),
           std::string("che i compensi richiesti, per le prestazioni espletate"),
           std::string("e riassunte nelle voci dichiarate dallo stesso profes_"),
           std::string("sionista sono  rispondenti  alla tariffa professionale "),
           std::string("ed ammontano a :"),
       })
    stampa.Tab(kColonnaParere).Line(riga);
  const auto riga = [this](const std::string& testo, auto&& passo) {
    stampa.Tab(kColonnaParere).Line(testo);
    nota.spiegazioni.Riga(stampa.Contents(), [&]() -> Catena { return {passo()}; });
  };
  const auto totale = [&](const char* regola) {
    return Passaggio{
        regola, "", intero, "Euro", {{TipoTaglio::Decimali, DecimaliValuta, intero, Totale}}};
  };
  riga("Compensi (Onorari e Spese) : Euro " + testoTotale, [&] {
    Passaggio passo = totale("Competenze della parcella in Euro");
    passo.cifra = testoTotale;
    return passo;
  });
  riga("( Euro " + lettere + " )", [&] {
    Passaggio passo = totale("Le stesse, in lettere");
    passo.cifra = lettere;
    return passo;
  });
  riga("Oltre 2% INARCASSA e I.V.A.", [] {
    return Passaggio{"Testo fisso del parere, qualunque contributo dicano i criteri di calcolo",
                     "",
                     2,
                     "%",
                     {},
                     {},
                     "2%"};
  });
  riga("Tassa Rilascio parere Ordine " + TestoTassa, [&] {
    Passaggio passo = PassoTassa(TassaParere);
    passo.note.clear();
    passo.cifra = TestoTassa.substr(TestoTassa.find(' ') + 1);
    return passo;
  });
  if (!luogoEData.empty()) stampa.Tab(17).Line(luogoEData);
  StampaFirma("IL  PRESIDENTE", criteri.PresidenteOrdine);
}

}  // namespace orm
