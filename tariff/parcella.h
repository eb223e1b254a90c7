// A fee note while it is reckoned and printed: what it is made with, its report, and the routines
// that all cases print it with.
//
// A case's own note derives from it, takes its data already read and prints itself on `uscita`. It
// sees no screen and no menu; a file that the user keeps is behind a reader that opens it when it
// is asked. Amounts are in the currency of the note where nothing else is said. What is printed is
// what is summed: "cut" means that the argument keeps the value that its text shows.
#pragma once

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/dates.h"
#include "runtime/explanation/conto.h"
#include "runtime/explanation/explanation.h"
#include "runtime/report_printer.h"
#include "tariff/accessory_compensations.h"
#include "tariff/closing_values.h"
#include "tariff/config/compensation_steps.h"
#include "tariff/criteria.h"
#include "tariff/law/accounting_fee.h"
#include "tariff/lot_lines.h"
#include "tariff/report.h"
#include "tariff/table_a_slices.h"
#include "tariff/user_data.h"

namespace orm {

class Parcella {
 public:
  // ---- what a note is made with
  bool ModoLire = false;       // Lire or Euro: the currency of every amount
  std::string CasoDiParcella;  // three letters
  Criteri criteri;
  Chiusura chiusura;
  DatiProfessionista utente;
  Intestazione intestazione;
  Date oggi;
  ScaglioniCompensi scaglioni;

  // ---- what comes of it
  ReportPrinter uscita;
  std::size_t progressivo = 0;  // of the last fee that stands under a number
  Conto TotaleGenerale;         // of the fees
  // The factor that adds the accessory compensations to a fee, and its text behind a formula,
  // " x 1,6", cut alike. Without any amount of works it is 0.
  double Coefficiente = 1;
  std::string StringaCoefficiente;
  std::vector<ImportoStampato> stampati;  // in the order of the report
  Catena CatenaCompensi;                  // how the coefficient came about, where that is asked
  std::vector<RigaContabilita> contemp;   // works whose accounting is still to be reckoned

  // ---- explanations: beside each line with figures, how they came about (explanations.cpp)
  Spiegazioni spiegazioni;
  // Explains the line just printed by the steps that `catena()` gives. Of the last one comes the
  // figure printed last: it gets its text and what the print has cut.
  template <class Fa>
  void Spiega(Fa&& catena) {
    if (spiegazioni.Attive()) SpiegaRiga(catena());
  }
  // The start of a sum, 0: where nobody asks how it came about it stays a number.
  Conto Zero() const { return spiegazioni.Attive() ? Conto() : Conto::Muto(); }
  // A figure of the data, by the words of its form; one that is money; a sum of several of these.
  Passaggio PassoDato(std::string_view campo, double valore, std::string unita = "") const;
  Passaggio PassoDatoImporto(std::string_view campo, const Conto& importo) const;
  // Explains the line just printed, which shows it bare.
  void SpiegaDato(std::string_view campo, double valore, std::string unita = "");
  // A rate of the law, in Lire, as the note has it.
  Passaggio PassoTariffa(std::string regola, double lire) const;
  // A sum in the currency of the note; one that is a number already, and one that in Lire is cut to
  // its whole part.
  Passaggio PassoImporto(std::string regola, const Conto& conto) const;
  Passaggio PassoOnorario(std::string regola, const Conto& conto) const;
  // An amount as it goes to the tables; no step in Lire.
  Catena CatenaInLire(double importo) const;
  // And on its way back.
  Catena CatenaInValuta(double lire) const;
  // What leads to a fee by `P`: the steps of `prima`, of the percentage and of the compensations,
  // and the product under `regola`, which is what the line shows.
  struct Ragioni {
    std::string regola;
    Catena prima = {};
    std::vector<std::string> note = {};
  };
  Catena CatenaOnorario(const Percentuale& P, const Conto& onorario, Ragioni ragioni,
                        bool conCompensi = true) const;

  // ---- money (report.cpp)
  // Decimals of money for FormattaNumero: none in Lire, two kept in Euro.
  int DecimaliValuta() const { return ModoLire ? 0 : -2; }
  const char* Valuta() const { return ModoLire ? "Lire" : "Euro"; }
  // The amount that goes to the tables, which are in Lire, and a figure of theirs on its way back.
  double ImportoInLire(double importo) const;
  double InValuta(double lire) const;
  // The whole part in Lire; in Euro the value as it is.
  double IntInLire(double valore) const;
  // "1.000.000", "1.000,50": shown and not cut.
  std::string TestoImporto(double importo) const;
  // Currency symbol and, right-justified behind it, a text of figures: a field of 16 characters for
  // amounts of works, of 14 for fees. "L. " is two characters longer than "€", so a Euro line ends
  // two columns before a line in Lire. A text too long for the field is a RuntimeFailure.
  std::string StringaImporto(std::string_view testo, TipoImporto tipo) const;

  // Tells that the amount printed next begins here. A note in Lire ends in Euro.
  void SegnaImporto(TipoImporto tipo, bool inEuro) {
    stampati.push_back({static_cast<std::uint32_t>(uscita.Contents().size()), tipo, inEuro});
  }
  // Ends a line with an amount in the currency of the note.
  void StampaCampo(std::string_view testo, TipoImporto tipo, bool inEuro);
  void StampaCampo(std::string_view testo, TipoImporto tipo) {
    StampaCampo(testo, tipo, !ModoLire);
  }

  // ---- the frame of the report (report.cpp)
  // The heading: title, client, professional, `frase` that names the work, texts of the header.
  void ApriParcella(std::string_view frase);
  // "3 -", of the next fee under a number.
  std::string Numero();
  // Ends a line with a fee from column 56, cut.
  void StampaImporto(double& valore) { StampaImporto(valore, DecimaliValuta()); }
  void StampaImporto(double& valore, int decimali) { ConcludiRiga(valore, decimali, true); }
  // One line: the label from column `tab`, the fee from column 56, cut. A label of 54 characters or
  // more loses its inner blanks, and keeps the loss; if it is too long even so, the fee follows it
  // after one blank.
  void StampaRigaOnorario(int tab, std::string& etichetta, double& valore);
  void StampaRigaOnorario(int tab, std::string&& etichetta, double& valore);
  // One line with a formula and the fee that it comes to, cut: from column 56, or after one blank
  // where the formula has 44 characters or more.
  void StampaFormula(std::string_view formula, double& valore);
  // One line with the text before `colonna`, or with its comma at `colonna`.
  void StampaAllineataVirgola(std::string_view testo, int colonna);

  // ---- accessory compensations (accessory_compensations.cpp)
  // Finds `Coefficiente` and its text by the amount of the works, in Lire in both modes.
  // `lavori`: how the amount came about, where that is asked.
  void CompensiAccessori(double lire, ModoCompensi modo = ModoCompensi::Stampa,
                         const Catena& lavori = {});
  // The same on a sum of works in the currency of the note, which `regola` words.
  void CompensiSuLavori(const Conto& importo, std::string_view regola);
  void CompensiSulMaggiore(const Conto& progetto, const Conto& direzione);
  // A fee without its compensations; where there is no coefficient nothing to divide: 0.
  double SenzaCompensi(double onorario) const;

  // ---- percentages, cut to what they print; fees are reckoned with the cut ones (lot_lines.cpp)
  // Any percentage, with the decimals that its amount in Lire asks for; `catena()` tells how it
  // came about, at once.
  Percentuale PercentualeTagliata(double lire, double valore) const;
  template <class Fa>
  Percentuale PercentualeTagliata(double lire, double valore, Fa&& catena) const {
    Percentuale p = PercentualeTagliata(lire, valore);
    if (spiegazioni.Attive())
      SpiegaTaglio(p, lire, valore, [passi = Catena(catena())] { return passi; });
    return p;
  }
  // By the tables, of an amount; of 0 they are 0, "0 %".
  Percentuale PercentualeDaTabellaA(double importo, int periodo, std::string_view classe,
                                    std::string_view categoria) const;
  Percentuale PercentualeDaTabellaNuova(double importo, std::string_view classe,
                                        std::string_view categoria) const;
  // By Table C, of an amount in Lire above 0.
  Percentuale PercentualeDaTabellaC(int periodo, double lire) const;

  // ---- amounts above the limit of Table A, in slices (table_a_slices.cpp)
  double LimiteTabellaA() const;
  // Of a base: above the limit there is one percentage for what lies within and one for the rest.
  PercentualiTabellaA PercentualiDellaBase(double base, int periodo, std::string_view classe,
                                           std::string_view categoria) const;
  // The base decides: where it is above the limit, the whole limit and what the amount has beyond
  // it, even less than nothing.
  std::vector<QuotaImporto> QuoteDellImporto(const PercentualiTabellaA& percentuali,
                                             const Conto& importo) const;
  // The same along the running sum of a lot's supervision, `prima` before this amount: what still
  // lies within the limit, and the rest.
  std::vector<QuotaImporto> QuoteProgressive(const PercentualiTabellaA& percentuali,
                                             const Conto& importo, const Conto& prima) const;

  // ---- the lines of a lot (lot_lines.cpp)
  // Ends a line with an amount of works from column 48, not cut.
  void StampaLavori(double importo);
  // One line with it: `voce` from `colonna`. `campo`: where the data have it.
  void StampaLavori(int colonna, std::string_view voce, double importo);
  void StampaLavori(int colonna, std::string_view voce, const Conto& importo,
                    std::string_view campo);
  // The list of amounts of lots that have no more than a class and one amount, each under `voce`,
  // and the compensations on their sum, which comes back.
  template <class Lotto>
  Conto StampaImporti(std::string_view voce, const std::vector<Lotto>& lotti) {
    uscita.Line(kRigaImporti);
    Conto somma = Zero();
    for (std::size_t i = 0; i < lotti.size(); ++i) {
      uscita.Line(TitoloLotto(i + 1, lotti[i].Classe, lotti[i].Categoria));
      StampaLavori(5, voce, lotti[i].Importo, "IMPORTO");
      somma += lotti[i].Importo;
    }
    CompensiSuLavori(somma, "Importo dei lavori: somma dei lotti");
    return somma;
  }
  // The works designed and supervised as the list of amounts calls them: a design with a minus is
  // the original one and shown without it; a design of 0 and a supervision of 3 or less are not
  // shown.
  // `campo`: where the data have them.
  void StampaProgettoSpecifica(int colonna, const Conto& importo, std::string_view campo);
  void StampaDirezioneSpecifica(int colonna, std::string_view TipoParcella, const Conto& importo,
                                std::string_view campo);
  // The works supervised above a fee, with the same threshold.
  void StampaDirezioneOnorari(std::string_view TipoParcella, double importo,
                              std::string_view campo);
  // One line: `voce` and the percentage, " su  " at `colonna`, its base from column 48, which
  // `regola` words.
  void StampaPercentuale(std::string_view voce, const Percentuale& percentuale, const Conto& base,
                         int colonna = 33,
                         std::string_view regola = "Importo su cui si prende la percentuale");
  // The same of a base that Table A may split in two lines.
  void StampaPercentuali(std::string_view voce, const PercentualiTabellaA& percentuali,
                         const Conto& base, int colonna = 33,
                         std::string_view regola = "Importo su cui si prende la percentuale");
  // One line with a fee and how it comes about. In Lire it is cut to its whole part; comes back as
  // printed.
  double StampaOnorario(const RigaFormula& formula, double onorario);
  // The same with its explanation: `ragioni()` gives what CatenaOnorario asks.
  template <class Fa>
  double StampaOnorario(const RigaFormula& formula, const Conto& onorario, Fa&& ragioni) {
    const double stampato = StampaOnorario(formula, onorario.Valore());
    Spiega([&] {
      Catena catena = CatenaOnorario(formula.percentuale, onorario, ragioni(), formula.conCompensi);
      AnnotaAliquota(formula, catena.back());
      return catena;
    });
    return stampato;
  }
  // A fee under its number and title, and how it comes about on the next line. In Lire it is cut to
  // its whole part; the sum of the fees grows by it as printed.
  void StampaVoce(std::string_view titolo, std::string formula, double onorario);
  // The same with its explanation, the steps that `catena()` gives.
  template <class Fa>
  void StampaVoce(std::string_view titolo, std::string formula, const Conto& onorario,
                  Fa&& catena) {
    StampaVoce(titolo, std::move(formula), onorario.Valore());
    Spiega(catena);
  }

  // ---- measuring and accounting (accounting_block.cpp)
  // Prints the bands and the totals of `contemp`, sorted by period and with the rows of one period
  // and coefficient taken together. `onorario` is neither cut nor rounded, `testo` shows it.
  void CalcoloMisureContabilita(Conto& onorario, std::string& testo);
  // The block and, under it, the line of the fee with its compensations, which comes back as
  // printed. Without rows nothing is printed.
  double StampaContabilita();

  // ---- the end of a note (lot_lines.cpp, final_account.cpp)
  // The certificate of regular execution by Table C on the sum of the supervision: its fee.
  double StampaCertificato(int periodo, const Conto& SommaDirezione);
  // The fees by kinds of service; those of 0 are left out, the others cut. `tipo` is "PD" (six),
  // "EL" (four) or "GEO" (three).
  void StampaRiepilogoPrestazioni(std::string_view tipo, std::span<Conto> importi);
  void StampaRiepilogoEsl(std::string_view tipo, std::span<Conto> importi) {
    StampaRiepilogoPrestazioni(tipo, importi);
  }
  // The final account from the sum of the fees and that of the compensations, with the closing
  // values and the criteria. A note in Lire is brought to Euro once, at its net amount, and goes on
  // in Euro from there. `prima`: what led to the two sums, where that is asked.
  void ChiudiParcella(const Conto& onorari, const Conto& compensi, const Catena& prima = {});
  // The same from `TotaleGenerale`, in which the fees contain their compensations, but
  // `NonConglobati` of it do not.
  void ChiudiConCompensi(const Conto& NonConglobati = {});

 private:
  // Every fee that is printed ends its line here: cut, from column 56 or after one blank.
  void ConcludiRiga(double& valore, int decimali, bool inColonna);
  // The figure printed last, for its explanation.
  struct Stampata {
    Taglio taglio;
    std::string testo;
  };
  void Ricorda(double prima, double dopo, int decimali, const std::string& testo) {
    if (spiegazioni.Attive()) stampata_ = {{TipoTaglio::Decimali, decimali, prima, dopo}, testo};
  }
  void SpiegaRiga(Catena catena);
  // Where the line shows fewer decimals of the aliquot than it is reckoned with.
  static void AnnotaAliquota(const RigaFormula& formula, Passaggio& onorario);
  // `catena` is asked when the explanation is read, and so keeps what it needs by value.
  void SpiegaTaglio(Percentuale& p, double lire, double valore,
                    std::function<Catena()> catena) const;

  Stampata stampata_;
};

}  // namespace orm
