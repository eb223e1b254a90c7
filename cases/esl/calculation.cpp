// The fee of public works under D.M. 4-4-2001, lot by lot and phase by phase.
#include <algorithm>
#include <cmath>
#include <span>

#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/table_services_2001.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// Of accounting and certificate, which the decree of 2001 left alone.
constexpr int kPeriodo = kPeriodo1987;

std::size_t ColonnaTabelleB(std::string_view classe, std::string_view categoria) {
  if (const auto colonna = ColonnaTabelle2001(classe, categoria)) return *colonna;
  throw RuntimeFailure("La classe \"" + std::string(classe) + "\", categoria \"" +
                       std::string(categoria) + "\" non è nelle tabelle.");
}

std::string_view NomeFase(FaseEsl fase) {
  switch (fase) {
    case FaseEsl::Preliminare:
      return "PROGETTO PRELIMINARE";
    case FaseEsl::Definitivo:
      return "PROGETTO DEFINITIVO";
    case FaseEsl::Esecutivo:
      return "PROGETTO ESECUTIVO";
    default:
      return "DIREZIONE LAVORI";
  }
}

// A code counts wherever it stands in the string, small or capital: the choice of l1 is one of l
// too.
bool Contiene(std::string_view prestazioni, std::string_view codice) {
  return Capitals(prestazioni).find(Capitals(codice)) != std::string::npos;
}

// The services of one table that a lot takes in one phase.
struct GruppoServizi {
  Conto aliquota;
  std::string testo;  // "a+b"
};

GruppoServizi ServiziDi(std::span<const ServizioEsl> tabella, FaseEsl fase, std::size_t colonna,
                        const std::string& prestazioni, int NumeroAddetti) {
  GruppoServizi gruppo;
  for (const ServizioEsl& servizio : tabella) {
    if (servizio.fase != fase) continue;
    Conto aliquota = servizio.aliquote[colonna];
    if (servizio.codice == "l4") aliquota *= NumeroAddetti;
    if (Contiene(prestazioni, servizio.scelta)) gruppo.aliquota += aliquota;
    if (Contiene(prestazioni, servizio.codice))
      gruppo.testo += (gruppo.testo.empty() ? "" : "+") + std::string(servizio.codice);
  }
  return gruppo;
}

// " o1 -  Relazione di indagine geotecnica." of the dialogs as "o1 - Relazione di indagine
// geotecnica".
std::string NomeServizio(const ServizioEsl& servizio, std::string_view didascalia) {
  didascalia.remove_prefix(didascalia.find('-') + 1);
  didascalia.remove_prefix(std::min(didascalia.find_first_not_of(' '), didascalia.size()));
  if (didascalia.ends_with('.')) didascalia.remove_suffix(1);
  return std::string(servizio.codice) + " - " + std::string(didascalia);
}

// What those that count are called, and what a reader would not expect of them.
Passaggio PassoAliquote(const char* tabella, std::span<const ServizioEsl> servizi,
                        std::span<const char* const> didascalie, FaseEsl fase,
                        const LottoEsl& lotto, const std::string& prestazioni,
                        const Conto& aliquota) {
  constexpr double kDiecivolte = 0.15;
  std::string nomi;
  std::vector<std::string> note;
  for (std::size_t i = 0; i < servizi.size(); ++i) {
    const ServizioEsl& s = servizi[i];
    if (s.fase != fase) continue;
    const std::string codice(s.codice);
    const bool conta = Contiene(prestazioni, s.scelta);
    if (conta) nomi += (nomi.empty() ? "" : "; ") + NomeServizio(s, didascalie[i]);
    if (s.scelta != s.codice && conta != Contiene(prestazioni, codice))
      note.push_back(conta ? "La scelta di " + std::string(s.scelta) + " conta anche " + codice
                           : "La scelta di " + codice + " senza " + std::string(s.scelta) +
                                 " non conta");
    if (conta && s.codice == "l" && !Contiene("+" + prestazioni + "+", "+l+"))
      note.emplace_back("La scelta di l1 conta anche l");
    if (conta && s.codice.starts_with('o') &&
        s.aliquote[ColonnaTabelleB(lotto.Classe, lotto.Categoria)] == kDiecivolte)
      note.push_back("L'aliquota di " + codice + " in questa classe è proprio 0,15");
  }
  return {std::string("D.M. 4-4-2001, ") + tabella + ", " +
              ClasseInParole(lotto.Classe, lotto.Categoria) + ", aliquote delle prestazioni " +
              nomi,
          aliquota,
          aliquota.Valore(),
          "",
          {},
          std::move(note)};
}

class NotaEsl : public Parcella {
 public:
  NotaEsl(Parcella parcella, const DatiEsl& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaSpecifica();
  void CalcolaCompensi();
  void CalcolaLotti();
  void CalcolaContabilita();
  void CalcolaCertificato();
  void StampaRiepilogo();

 private:
  // What one side of a lot, design or supervision, is reckoned on.
  struct Lavori {
    const LottoEsl& lotto;
    double importo;
    Percentuale percentuale;
  };
  double BaseDirezione(const LottoEsl& lotto) const;
  void CalcolaLotto(std::size_t numeroLotto, const LottoEsl& lotto);
  void StampaImporti(std::size_t numeroLotto, const LottoEsl& lotto);
  Conto OnorarioProgetto(const Lavori& lavori);
  Conto OnorarioDirezione(const Lavori& lavori);
  Conto OnorarioFase(FaseEsl fase, const Lavori& lavori);

  const DatiEsl& d;
  Conto SommaDirezione;
  Conto TotaleProgetto, TotaleDirezione, TotaleContabilita, TotaleCertificato;
};

void NotaEsl::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (std::size_t i = 0; i < d.Lotti.size(); ++i) {
    const LottoEsl& lotto = d.Lotti[i];
    if (lotto.ImportoProgettazione != 0 || lotto.ImportoDirezioneLavori != 0)
      uscita.Line(TitoloLotto(i + 1, lotto.Classe, lotto.Categoria));
    StampaProgettoSpecifica(5, lotto.ImportoProgettazione, kCampoProgetto);
    StampaDirezioneSpecifica(5, d.TipoParcella, lotto.ImportoDirezioneLavori, kCampoDirezione);
  }
}

// In a note in progress supervision takes its percentage from the design, also where there is none.
double NotaEsl::BaseDirezione(const LottoEsl& lotto) const {
  return std::fabs(d.TipoParcella == "NORMALE" ? lotto.ImportoProgettazione
                                               : lotto.ImportoDirezioneLavori);
}

void NotaEsl::CalcolaCompensi() {
  Conto SommaProgetto;
  for (const LottoEsl& lotto : d.Lotti) {
    SommaProgetto += std::fabs(lotto.ImportoProgettazione);
    if (lotto.ImportoDirezioneLavori > kDirezioneMinimaSommata)
      SommaDirezione += lotto.ImportoDirezioneLavori;
  }
  CompensiSulMaggiore(SommaProgetto, SommaDirezione);
}

void NotaEsl::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  for (std::size_t i = 0; i < d.Lotti.size(); ++i) CalcolaLotto(i + 1, d.Lotti[i]);
}

void NotaEsl::CalcolaLotto(std::size_t numeroLotto, const LottoEsl& lotto) {
  const double baseProgetto = std::fabs(lotto.ImportoProgettazione);
  const double baseDirezione = BaseDirezione(lotto);
  const auto percentuale = [&](double base) {
    return PercentualeDaTabellaNuova(base, lotto.Classe, lotto.Categoria);
  };
  const Lavori progetto{lotto, lotto.ImportoProgettazione, percentuale(baseProgetto)};
  const Lavori direzione{lotto, lotto.ImportoDirezioneLavori, percentuale(baseDirezione)};

  StampaImporti(numeroLotto, lotto);
  if (progetto.importo > 0)
    StampaPercentuale(kVocePercentualeProgetto, progetto.percentuale, baseProgetto, 33,
                      "Lavori di progetto");
  if (direzione.importo > 0)
    StampaPercentuale(kVocePercentualeDirezione, direzione.percentuale, baseDirezione, 33,
                      d.TipoParcella == "NORMALE"
                          ? "Lavori di progetto, su cui una parcella in corso d'opera prende "
                            "anche la percentuale della direzione"
                          : "Lavori diretti");
  const Conto onorarioProgetto = OnorarioProgetto(progetto);
  const Conto onorarioDirezione = OnorarioDirezione(direzione);
  TotaleProgetto += onorarioProgetto;
  TotaleDirezione += onorarioDirezione;
  if (lotto.MisureContabilita != "NO")
    contemp.push_back({kPeriodo, lotto.CoefficienteContabilita, lotto.ImportoDirezioneLavori});
  TotaleGenerale += onorarioProgetto + onorarioDirezione;
}

void NotaEsl::StampaImporti(std::size_t numeroLotto, const LottoEsl& lotto) {
  if (lotto.ImportoProgettazione > 0 || lotto.ImportoDirezioneLavori > 0)
    uscita.Text(TitoloLotto(numeroLotto, lotto.Classe, lotto.Categoria))
        .Tab(32)
        .Line("Decreto 4-4-2001");
  if (lotto.ImportoProgettazione > 3)
    StampaLavori(3, " - Lavori di progetto", lotto.ImportoProgettazione, kCampoProgetto);
  StampaDirezioneOnorari(d.TipoParcella, lotto.ImportoDirezioneLavori, kCampoDirezione);
}

Conto NotaEsl::OnorarioProgetto(const Lavori& lavori) {
  if (lavori.importo <= 0) return 0;
  Conto onorario;
  for (const FaseEsl fase : {FaseEsl::Preliminare, FaseEsl::Definitivo, FaseEsl::Esecutivo})
    onorario += OnorarioFase(fase, lavori);
  return onorario;
}

Conto NotaEsl::OnorarioDirezione(const Lavori& lavori) {
  return lavori.importo < 3 ? Conto() : OnorarioFase(FaseEsl::Direzione, lavori);
}

// The base services, then the integrative ones. The name of the phase stands once above them; a
// group of share 0 prints nothing.
Conto NotaEsl::OnorarioFase(FaseEsl fase, const Lavori& lavori) {
  const LottoEsl& lotto = lavori.lotto;
  const std::size_t colonna = ColonnaTabelleB(lotto.Classe, lotto.Categoria);
  Conto totale;
  bool titolo = false;
  const auto gruppo = [&](std::string_view voce, std::span<const ServizioEsl> tabella,
                          std::span<const char* const> didascalie, const char* nome,
                          const std::string& prestazioni, int decimali,
                          const std::string& addetti) {
    const auto servizi = ServiziDi(tabella, fase, colonna, prestazioni, lotto.NumeroAddetti);
    if (servizi.aliquota == 0) return;
    if (!titolo) uscita.Line(NomeFase(fase));
    titolo = true;
    uscita.Text(voce).Text(servizi.testo).Line(addetti);
    if (!addetti.empty())
      spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
        Passaggio passo = PassoDato("Numero addetti", lotto.NumeroAddetti);
        passo.cifra = NumberText(lotto.NumeroAddetti);
        passo.note = {"Conta solo per la prestazione l4"};
        return {std::move(passo)};
      });
    totale += StampaOnorario(
        {.aliquota = servizi.aliquota,
         .decimali = decimali,
         .percentuale = lavori.percentuale,
         .importo = TestoImporto(lavori.importo)},
        Conto(lavori.importo) * lavori.percentuale.valore * servizi.aliquota / 100 * Coefficiente,
        [&]() -> Ragioni {
          return {"Onorario: importo, percentuale e aliquote, per il coefficiente dei compensi",
                  {PassoAliquote(nome, tabella, didascalie, fase, lotto, prestazioni,
                                 servizi.aliquota)}};
        });
  };
  const bool piuAddetti = fase == FaseEsl::Direzione && lotto.NumeroAddetti > 1;
  gruppo(" aliquote base : ", kTabellaBEsl, kDidascalieBase, "Tabella B", lotto.PrestazioniBase, 2,
         "");
  gruppo("aliquote integrative : ", kTabellaB1Esl, kDidascalieIntegrative, "Tabella B1",
         lotto.PrestazioniIntegrative, 3,
         piuAddetti ? "(x" + NumberText(lotto.NumeroAddetti) + ")" : "");
  return totale;
}

void NotaEsl::CalcolaContabilita() {
  TotaleContabilita = StampaContabilita();
  TotaleGenerale += TotaleContabilita;
}

void NotaEsl::CalcolaCertificato() {
  if (d.CertificatoRegolare != "SI" || SommaDirezione == 0) return;
  TotaleCertificato = StampaCertificato(kPeriodo, SommaDirezione);
  TotaleGenerale += TotaleCertificato;
}

void NotaEsl::StampaRiepilogo() {
  std::array<Conto, 4> importi = {TotaleProgetto, TotaleDirezione, TotaleContabilita,
                                  TotaleCertificato};
  StampaRiepilogoEsl("EL", importi);
}

}  // namespace

Parcella CalcoloEsl(Parcella parcella, const DatiEsl& dati) {
  NotaEsl nota(std::move(parcella), dati);
  nota.ApriParcella("Per le prestazioni sottoelencate relative a :");
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaLotti();
  nota.CalcolaContabilita();
  nota.CalcolaCertificato();
  nota.StampaRiepilogo();
  nota.ChiudiConCompensi();
  return nota;
}

}  // namespace orm
