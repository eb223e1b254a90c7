// The note of site safety while it is reckoned and printed.
#pragma once

#include <vector>

#include "cases/sic/data.h"
#include "tariff/law/site_safety.h"
#include "tariff/parcella.h"

namespace orm {

// Where the data have the amounts.
inline constexpr std::string_view kCampoEseguito = "ESECUZIONE, IMPORTO LAVORI";
inline constexpr std::string_view kCampoBase =
    "IMPORTO LAVORI, il maggiore fra progetto ed eseguito";

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
  PercentualiTabellaA PercentualeDiLotto(const Lotto& lotto, bool progetto) const;
  Fattori FattoriDi(const Lotto& lotto, std::size_t p) const;
  double OnorarioFase(const Fase& fase);
  ContoLotto ContoDi(const Fase& fase, const Lotto& lotto) const;
  std::vector<Termine> Termini(const Fase& fase, const ContoLotto& conto) const;
  Conto Prodotto(const QuotaImporto& quota, double aliquota, double maggiorazioni,
                 double incrementi) const;
  Passaggio PassoAliquota(const Fase& fase) const;
  Ragioni RagioniDi(const Fase& fase, const ContoLotto& conto) const;
  double Conteggio(const Fase& fase) const;
  double StampaLotti(const Fase& fase);
  double StampaLotto(const Fase& fase, const Lotto& lotto);
  std::string StampaFattori(const Fase& fase, const ContoLotto& conto);
  void StampaPercentuali(const Lotto& lotto, const ContoLotto& conto);

  // The least fee where it counts, printed; nothing where the reckoned fee stands.
  bool OnorarioMinimoFase(const Fase& fase, double& risultato);
  bool OnorarioMinimoEsecuzione(const Fase& fase, double& risultato);
  double StampaMinimo(const Fase& fase);
  double StampaMinimoInParte(const Fase& fase, bool ancora);
  double OnorarioSuProgetto(const Fase& fase) const;

  const DatiSicurezza& d;
  const VersioneSic& versione;
  std::vector<Lotto> lotti;
  std::vector<Gruppo> gruppi;
  Conto TotaleProgetto, TotaleEseguito;
};

}  // namespace orm
