// The note of site safety while it is reckoned and printed.
#pragma once

#include <span>
#include <vector>

#include "cases/sic/data.h"
#include "tariff/law/site_safety.h"
#include "tariff/parcella.h"

namespace orm {

// Where the data have the amounts.
inline constexpr std::string_view kCampoEseguito = "ESECUZIONE, IMPORTO LAVORI";

class NotaSic : public Parcella {
 public:
  NotaSic(Parcella parcella, const DatiSicurezza& dati);

  void StampaSpecifica();
  void CalcolaCompensi();
  void CalcolaPrestazioni();

 private:
  // A lot with what its group and its design and execution come to.
  struct Lotto {
    const LottoSic& dati;
    std::size_t numero;
    int periodo;
    std::size_t gruppo;
    double ImportoBase;  // the larger of the two amounts
  };
  struct Gruppo {
    Conto SommaProgetto, SommaEseguito;  // signed, as the list of amounts shows them
    double ProgettoGruppo = 0, EseguitoGruppo = 0;
    double BaseProgetto = 0, BaseEsecuzione = 0;
  };
  // A duty at work.
  struct Fase {
    std::size_t p;  // from 0
    const PrestazioneSic& prestazione;
    double Minimo;  // in the currency of the note
  };
  // What a lot's fee in a phase is made of.
  struct ContoLotto {
    PercentualiTabellaA percentuali;
    double importo = 0;
    double FattoreMaggiorazioni = 1;
    double FattoreIncrementi = 1;  // as it is printed
    double IncrementiContati = 1;  // as it enters the fee
  };
  struct Fattori {
    double maggiorazioni = 1, incrementi = 1;
  };
  // A fee is the sum of these, each cut by itself in Lire.
  struct Termine {
    QuotaImporto quota;
    Conto onorario;  // not cut
  };

  void CalcolaBasi();
  bool Impegnato(const Lotto& lotto, std::size_t p) const;
  // What the percentages of a group are taken on.
  double BaseDi(const Gruppo& gruppo, bool progetto) const;
  PercentualiTabellaA PercentualeDiLotto(const Lotto& lotto, bool progetto) const;
  Fattori FattoriDi(const Lotto& lotto, std::size_t p) const;
  Conto OnorarioFase(const Fase& fase);
  ContoLotto ContoDi(const Fase& fase, const Lotto& lotto) const;
  std::vector<Termine> Termini(const Fase& fase, const ContoLotto& conto) const;
  Conto Prodotto(const QuotaImporto& quota, double aliquota, double maggiorazioni,
                 double incrementi) const;
  Passaggio PassoAliquota(const Fase& fase) const;
  // How the percentages of the conditions that the data choose came about.
  static Passaggio PassoCondizioni(const char* quali, std::span<const CondizioneSic> condizioni,
                                   std::string_view segni);
  Passaggio PassoMaggiorazioni(const Lotto& lotto, std::size_t p) const;
  Passaggio PassoIncrementi(const Lotto& lotto, std::size_t p) const;
  Ragioni RagioniDi(const Fase& fase, const Lotto& lotto, const ContoLotto& conto) const;
  double Conteggio(const Fase& fase) const;
  Conto StampaLotti(const Fase& fase);
  Conto StampaLotto(const Fase& fase, const Lotto& lotto);
  std::string StampaFattori(const Fase& fase, const Lotto& lotto, const ContoLotto& conto);
  void StampaPercentualiDi(const Fase& fase, const Lotto& lotto, const ContoLotto& conto);

  // The least fee where it counts, printed; nothing where the reckoned fee stands.
  bool OnorarioMinimoFase(const Fase& fase, double& risultato);
  bool OnorarioMinimoEsecuzione(const Fase& fase, double& risultato);
  // `conteggio`: the reckoned fee, which comes to less.
  double StampaMinimo(const Fase& fase, double conteggio);
  double StampaMinimoInParte(const Fase& fase, double conteggio, bool ancora);
  Catena CatenaMinimo(const Fase& fase, double conteggio) const;
  double OnorarioSuProgetto(const Fase& fase) const;

  const DatiSicurezza& d;
  const VersioneSic& versione;
  std::vector<Lotto> lotti;
  std::vector<Gruppo> gruppi;
  Conto TotaleProgetto, TotaleEseguito;
};

}  // namespace orm
