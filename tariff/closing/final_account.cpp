// Totals, reduction, advances and signature.
#include "tariff/closing/final_account.h"

#include "runtime/numbers.h"
#include "tariff/explanations.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {
namespace {

constexpr int kDecimaliEuro = -2;
// Signatures are centred over a name that ends before this column.
constexpr int kFineFirma = 64;

}  // namespace

std::string Percento(double valore) { return FormattaCopia(valore, 2) + "% "; }

void ContoFinale::StampaTotali(const Conto& onorari, const Conto& compensi) {
  Onorari = nota.IntInLire(onorari);
  Compensi = nota.IntInLire(compensi);
  const Conto somma = nota.Zero() + Onorari + Compensi;
  Totale = somma;
  stampa.Line(kRigaTotali);
  stampa.Text("TOTALE (Onorari e Compensi)");
  Importo(Totale);
  nota.Spiega([&] {
    Catena catena = prima;
    if (prima.empty() || !onorari.Semplice())
      catena.push_back(nota.PassoOnorario("Onorari della parcella", onorari));
    catena.push_back(nota.PassoOnorario(prima.empty()
                                            ? "Compensi accessori, che questa parcella non ha"
                                            : "Compensi accessori della parcella",
                                        compensi));
    catena.push_back(nota.PassoImporto("Onorari e compensi", somma));
    return catena;
  });
}

Passaggio ContoFinale::Passo(std::string regola, const Conto& conto) const {
  Passaggio passo = nota.PassoImporto(std::move(regola), conto);
  if (nota.ModoLire && DecimaliValuta != 0) {
    passo.unita = "Euro";
    passo.Annota("La riga scrive L., ma la cifra è in Euro");
  }
  return passo;
}

Conto ContoFinale::BaseRiduzione() const {
  switch (nota.chiusura.ApplicazioneRiduzione) {
    case 1:
      return Conto(Onorari) + Compensi;
    case 2:
      return Onorari;
    case 3:
      return Compensi;
    default:
      return 0;
  }
}

Passaggio ContoFinale::PercentualeDiRiduzione() const {
  return nota.PassoDato("Percentuale di Riduzione", nota.chiusura.PercDiRiduzione, "%");
}

void ContoFinale::Riduci() {
  const Chiusura& patti = nota.chiusura;
  if (patti.PercDiRiduzione == 0) return;
  if (patti.TipoRiduzione.empty()) {
    stampa.Text("Rid. del " + Percento(patti.PercDiRiduzione) + "Art.4 comma 12bis L. 155/89");
  } else {
    stampa.Tab(3).Text("Riduzione concordata del").Bare(patti.PercDiRiduzione).Text("%");
  }
  if (patti.ApplicazioneRiduzione == 2) stampa.Text(" sugli Onorari");
  if (patti.ApplicazioneRiduzione == 3) stampa.Text(" sui Compensi");
  // The longest words leave the amount no place in their line.
  if (stampa.Column() > kColonnaImporto)
    nota.spiegazioni.Riga(stampa.Contents(),
                          [&]() -> Catena { return {Mostrato(PercentualeDiRiduzione(), 2, "%")}; });
  const Conto prodotto = BaseRiduzione() * patti.PercDiRiduzione / 100;
  double Riduzione = prodotto;
  Importo(Riduzione);
  nota.Spiega([&]() -> Catena {
    std::string regola = patti.TipoRiduzione.empty()
                             ? "Riduzione dell'art. 4, comma 12bis, L. 155/89, in percento "
                             : "Riduzione concordata, in percento ";
    regola += patti.ApplicazioneRiduzione == 2   ? "degli onorari"
              : patti.ApplicazioneRiduzione == 3 ? "dei compensi"
                                                 : "di onorari e compensi";
    return {PercentualeDiRiduzione(), nota.PassoImporto(std::move(regola), prodotto)};
  });
  const Conto ridotto = nota.Zero() + Totale - Riduzione;
  Totale = ridotto;
  stampa.Text("TOTALE RIDOTTO");
  Importo(Totale);
  Spiega("Totale meno la riduzione", ridotto);
}

void ContoFinale::Detrai() {
  double Acconti = nota.chiusura.Acconti;
  if (Acconti == 0) return;
  stampa.Text("a detrarre ACCONTI");
  Importo(Acconti);
  nota.Spiega([&]() -> Catena {
    return {nota.PassoDatoImporto("Acconti ricevuti", nota.chiusura.Acconti)};
  });
  netto = nota.Zero() + Totale - Acconti;
  Totale = netto;
}

// From here on the account is in Euro, a note in Lire too, though under its own symbol.
void ContoFinale::StampaNetto() {
  stampa.Text(kVoceNetto);
  if (nota.chiusura.Acconti == 0) netto = Totale;
  Importo(Totale);
  nota.Spiega([&]() -> Catena {
    std::string regola = "Competenze, il totale";
    if (nota.chiusura.PercDiRiduzione != 0) regola += " ridotto";
    if (nota.chiusura.Acconti != 0) regola += " meno gli acconti";
    return {nota.PassoImporto(std::move(regola), netto)};
  });
  DecimaliValuta = kDecimaliEuro;
  if (!nota.ModoLire) return;
  const Conto cambio = (nota.Zero() + Totale) / kLirePerEuro;
  const double euro = Totale = LireInEuro(Totale);
  const std::string testo = FormattaNumero(Totale, DecimaliValuta);
  const int inizio = static_cast<int>(kLarghezzaParcella - Characters(testo)) + 1;
  stampa.Text(kVoceNettoInEuro).Tab(inizio);
  nota.SegnaImporto(TipoImporto::Onorari, true);
  stampa.Line(testo);
  nota.spiegazioni.Riga(stampa.Contents(), [&]() -> Catena {
    return {{"In Euro, al cambio fisso di 1.936,27 Lire (regolamento CE 2866/98)",
             cambio.Testo(),
             cambio.Valore(),
             "Euro",
             {{TipoTaglio::SullaCifra, 2, cambio.Valore(), euro},
              {TipoTaglio::Decimali, DecimaliValuta, euro, Totale}},
             {"Da qui in poi il conto è in Euro"},
             testo}};
  });
}

void ContoFinale::StampaFirma(std::string_view ruolo, const std::string& nome) {
  const auto lunghezza = static_cast<int>(Characters(nome));
  const auto avanzo = lunghezza - static_cast<int>(Characters(ruolo));
  const int inizio = kFineFirma - lunghezza;
  stampa.Tab(inizio + static_cast<int>(Int(avanzo / 2.0))).Line(ruolo);
  stampa.Tab(inizio).Line(nome);
}

void ContoFinale::Firma() {
  stampa.Tab(kColonnaImporto).Line(std::string(17, '='));
  if (!luogoEData.empty()) stampa.Line(luogoEData);
  StampaFirma("IL  PROFESSIONISTA", Titolo + utente.Nome);
}

void Parcella::ChiudiParcella(const Conto& onorari, const Conto& compensi, const Catena& prima) {
  ContoFinale conto(*this, prima);
  conto.StampaTotali(onorari, compensi);
  conto.Riduci();
  conto.Detrai();
  conto.StampaNetto();
  conto.Firma();
  if (conto.Negativo()) return;
  conto.CalcolaTassaParere();
  conto.StampaSpeseAggiuntive();
  conto.StampaParere();
}

void Parcella::ChiudiConCompensi(const Conto& NonConglobati) {
  const double totale = TotaleGenerale;
  Conto senza = Zero();
  if (Coefficiente != 0)
    senza = NonConglobati == 0 ? (Zero() + totale) / Coefficiente
                               : (Zero() + totale - NonConglobati) / Coefficiente;
  if (NonConglobati != 0) senza += NonConglobati;
  const double onorari = IntInLire(senza);
  Catena prima;
  if (spiegazioni.Attive()) {
    const char* regola =
        Coefficiente == 1 ? "Onorari della parcella: tutta la somma, poiché il coefficiente è 1"
        : NonConglobati == 0
            ? "Onorari della parcella: la somma divisa per il coefficiente dei compensi"
            : "Onorari della parcella: la somma, senza ciò che non porta compensi, divisa per il "
              "loro coefficiente; il resto si riaggiunge";
    prima = {PassoImporto("Somma di tutti gli onorari, che contengono i compensi accessori",
                          TotaleGenerale),
             PassoOnorario(regola, senza)};
    if (Coefficiente == 0) prima.back().Annota("Il coefficiente è 0: non c'è nulla da dividere");
  }
  ChiudiParcella(onorari, Zero() + totale - onorari, prima);
}

}  // namespace orm
