// The end of every fee note.
#include <span>
#include <string>
#include <string_view>

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/amount_in_words.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

constexpr int kDecimaliEuro = -2;
// Signatures are centred over a name that ends before this column.
constexpr int kFineFirma = 64;
constexpr int kColonnaParere = 15;

std::string Percento(double valore) { return FormattaCopia(valore, 2) + "% "; }

class ContoFinale {
 public:
  explicit ContoFinale(Parcella& parcella)
      : nota(parcella),
        stampa(nota.uscita),
        utente(nota.utente),
        criteri(nota.criteri),
        DecimaliValuta(nota.DecimaliValuta()),
        Titolo(TitoloDi(utente)),
        luogoEData(TrimRight(utente.Citta)) {
    if (!luogoEData.empty()) luogoEData += ", li " + ShortDate(nota.oggi);
  }

  void StampaTotali(double onorari, double compensi);
  void Riduci();
  void Detrai();
  void StampaNetto();
  void Firma();
  bool Negativo() const { return Totale < 0; }
  void CalcolaTassaParere();
  void StampaSpeseAggiuntive();
  void StampaParere();

 private:
  void Importo(double& valore) { nota.StampaImporto(valore, DecimaliValuta); }
  double Contributo(const std::string& spesa, const char* nome, double percentuale, double base);
  double BaseRiduzione() const;
  void StampaFirma(std::string_view ruolo, const std::string& nome);

  Parcella& nota;
  ReportPrinter& stampa;
  const DatiProfessionista& utente;
  const Criteri& criteri;
  int DecimaliValuta;
  std::string Titolo;
  std::string luogoEData;  // empty without a city
  double Onorari = 0, Compensi = 0, Totale = 0;
  double TassaParere = 0;
  std::string TestoTassa;
};

void ContoFinale::StampaTotali(double onorari, double compensi) {
  Onorari = nota.IntInLire(onorari);
  Compensi = nota.IntInLire(compensi);
  Totale = Onorari + Compensi;
  stampa.Line(kRigaTotali);
  stampa.Text("TOTALE (Onorari e Compensi)");
  Importo(Totale);
}

double ContoFinale::BaseRiduzione() const {
  switch (nota.chiusura.ApplicazioneRiduzione) {
    case 1:
      return Onorari + Compensi;
    case 2:
      return Onorari;
    case 3:
      return Compensi;
    default:
      return 0;
  }
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
  double Riduzione = BaseRiduzione() * patti.PercDiRiduzione / 100;
  Importo(Riduzione);
  Totale = Totale - Riduzione;
  stampa.Text("TOTALE RIDOTTO");
  Importo(Totale);
}

void ContoFinale::Detrai() {
  double Acconti = nota.chiusura.Acconti;
  if (Acconti == 0) return;
  stampa.Text("a detrarre ACCONTI");
  Importo(Acconti);
  Totale = Totale - Acconti;
}

// From here on the account is in Euro, a note in Lire too, though under its own symbol.
void ContoFinale::StampaNetto() {
  stampa.Text(kVoceNetto);
  Importo(Totale);
  DecimaliValuta = kDecimaliEuro;
  if (!nota.ModoLire) return;
  Totale = LireInEuro(Totale);
  const std::string testo = FormattaNumero(Totale, DecimaliValuta);
  const int inizio = static_cast<int>(kLarghezzaParcella - Characters(testo)) + 1;
  stampa.Text(kVoceNettoInEuro).Tab(inizio);
  nota.SegnaImporto(TipoImporto::Onorari, true);
  stampa.Line(testo);
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

void ContoFinale::CalcolaTassaParere() {
  TassaParere = criteri.QuotaPercentualeParere * Totale / 100 + criteri.QuotaFissaParere;
  TestoTassa = "Euro " + FormattaNumero(TassaParere, DecimaliValuta);
}

// A percentage of `base`, printed; 0 when the client does not owe it.
double ContoFinale::Contributo(const std::string& spesa, const char* nome, double percentuale,
                               double base) {
  if (spesa != "SI" || percentuale == 0) return 0;
  double contributo = percentuale * base / 100;
  stampa.Text(nome + Percento(percentuale));
  Importo(contributo);
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
                                Totale + ContributoInarcassa + ContributoInps);
  double tassa = 0;
  if (criteri.SpesaTassaParere == "SI") {
    stampa.Text("Tassa Rilascio Parere");
    Importo(TassaParere);
    tassa = TassaParere;
  }
  double onere = Totale + ContributoInarcassa + ContributoInps + Iva + tassa;
  stampa.Tab(6).Text("Totale onere finanziario Committente");
  Importo(onere);
  stampa.Line(riga);
}

void ContoFinale::StampaParere() {
  if (criteri.StampaParere != "SI") return;
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
           "Compensi (Onorari e Spese) : Euro " + testoTotale,
           "( Euro " + lettere + " )",
           std::string("Oltre 2% INARCASSA e I.V.A."),
           "Tassa Rilascio parere Ordine " + TestoTassa,
       })
    stampa.Tab(kColonnaParere).Line(riga);
  if (!luogoEData.empty()) stampa.Tab(17).Line(luogoEData);
  StampaFirma("IL  PRESIDENTE", criteri.PresidenteOrdine);
}

constexpr std::string_view kPrestazioniPd[] = {
    "Per PROGETTAZIONE   ",     "Per DIREZIONE LAVORI", "Per SORVEGLIANZA",
    "Per MISURE E CONTABILITÀ", "Per REVISIONE PREZZI", "Per CERTIFICATO REGOLARE ESECUZIONE"};
constexpr std::string_view kPrestazioniEl[] = {"Per PROGETTAZIONE   ", "Per DIREZIONE LAVORI",
                                               "Per MISURE E CONTABILITÀ",
                                               "Per CERTIFICATO REGOLARE ESECUZIONE"};
constexpr std::string_view kPrestazioniGeo[] = {"Per PROGETTAZIONE   ", "Per DIREZIONE LAVORI",
                                                "Per COMPENSI AGGIUNTIVI"};

std::span<const std::string_view> PrestazioniDi(std::string_view tipo) {
  if (tipo == "PD") return kPrestazioniPd;
  if (tipo == "EL") return kPrestazioniEl;
  if (tipo == "GEO") return kPrestazioniGeo;
  return {};
}

}  // namespace

void Parcella::StampaRiepilogoPrestazioni(std::string_view tipo, std::span<double> importi) {
  const auto prestazioni = PrestazioniDi(tipo);
  uscita.Line(kRigaRiepilogo);
  for (std::size_t i = 0; i < prestazioni.size() && i < importi.size(); ++i)
    if (importi[i] != 0) StampaRigaOnorario(1, std::string(prestazioni[i]), importi[i]);
}

void Parcella::ChiudiParcella(double onorari, double compensi) {
  ContoFinale conto(*this);
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

void Parcella::ChiudiConCompensi(double NonConglobati) {
  const double onorari = IntInLire(SenzaCompensi(TotaleGenerale - NonConglobati) + NonConglobati);
  ChiudiParcella(onorari, TotaleGenerale - onorari);
}

}  // namespace orm
