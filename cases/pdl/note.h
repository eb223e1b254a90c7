// The note of design and supervision while it is reckoned and printed.
#pragma once

#include <array>

#include "cases/pdl/rules.h"
#include "tariff/parcella.h"

namespace orm {

class NotaPdl : public Parcella {
 public:
  NotaPdl(Parcella parcella, const DatiPdl& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaSpecifica();
  void CalcolaCompensi();
  void CalcolaLotti();
  void CalcolaContabilita();
  void CalcolaRevisione();
  void CalcolaCertificato();
  void Chiudi();

 private:
  // One row of a lot at work.
  struct RigaInCorso {
    const RigaPdl& riga;
    int Periodo;
    const BasiLotto& basi;
    Conto direzionePrima;  // supervision of the lot's rows before this one
    PercentualiTabellaA progetto, direzione;
    Aliquote fatti{};     // 1 for each service done
    Aliquote aliquote{};  // Table B of the class
    Conto AliquotaProgetto = {}, AliquotaDirezione = {};
  };
  // What a supervision is paid as: everything together, or each service apart.
  struct VoceDirezione {
    std::string titolo;
    Conto aliquota;
    std::size_t primo = 7, ultimo = 10;  // letters
  };

  // What the slices of an amount are paid for: `regola` and the step of the aliquots.
  struct Voce {
    const char* regola;
    const Conto& aliquota;
    Catena aliquote;
  };

  void CalcolaLotto(std::size_t primaRiga, const LottoARighe& lotto);
  RigaInCorso Prepara(const RigaPdl& riga, int Periodo, const BasiLotto& basi,
                      const Conto& direzionePrima) const;
  void CalcolaRiga(const RigaInCorso& conto, std::size_t numeroRiga);
  void StampaSeNonNullo(std::string_view voce, double importo, std::string_view campo);
  void StampaImportiRiga(const RigaPdl& riga);

  Conto OnorarioProgetto(const RigaInCorso& conto);
  Conto OnorarioPerizie(const RigaInCorso& conto);
  Conto OnorarioPerizia(const RigaInCorso& conto, const PeriziaPdl& perizia);
  Conto OnorarioPerizia(const Voce& voce, const Conto& importo,
                        const PercentualiTabellaA& percentuali);
  Conto OnorarioDirezione(const RigaInCorso& conto);
  std::vector<VoceDirezione> VociDirezione(const RigaInCorso& conto) const;
  Conto BaseArticolo18(const RigaInCorso& conto) const;
  Conto OnorarioSorveglianza(const RigaInCorso& conto);
  double StampaQuota(const Voce& voce, const QuotaImporto& quota);
  // The aliquots of the services done, by their letters; no step where nobody asks.
  Catena PassoAliquote(const RigaInCorso& conto, const Aliquote& fatti, std::size_t primo,
                       std::size_t ultimo, const Conto& aliquota) const;
  void StampaTitoloArticolo18() { uscita.Line("INCARICO PARZIALE ( art. 18 )"); }
  // `nota`: what a reader would not expect of the amount.
  double OnorarioArticolo18(const Voce& voce, const QuotaImporto& quota, bool oltreLimite,
                            const char* nota = nullptr);

  const DatiPdl& d;
  Conto SommaDirezione;
  Conto SommaArticolo18 = Zero();
  Conto UltimaSorveglianza;  // of the last row alone
  // Design with art. 18 and variations, supervision with art. 18, surveillance, accounting,
  // revision, certificate.
  std::array<Conto, 6> totali{};
};

}  // namespace orm
