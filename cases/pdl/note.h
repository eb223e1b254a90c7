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
  struct Conto {
    const RigaPdl& riga;
    int Periodo;
    const BasiLotto& basi;
    double direzionePrima;  // supervision of the lot's rows before this one
    PercentualiTabellaA progetto, direzione;
    Aliquote fatti{};     // 1 for each service done
    Aliquote aliquote{};  // Table B of the class
    double AliquotaProgetto = 0, AliquotaDirezione = 0;
  };
  // What a supervision is paid as: everything together, or each service apart.
  struct VoceDirezione {
    std::string titolo;
    double aliquota;
  };

  void CalcolaLotto(std::size_t primaRiga, const LottoARighe& lotto);
  Conto PreparaConto(const RigaPdl& riga, int Periodo, const BasiLotto& basi,
                     double direzionePrima) const;
  void CalcolaRiga(const Conto& conto, std::size_t numeroRiga);
  void StampaSeNonNullo(std::string_view voce, double importo);
  void StampaImportiRiga(const RigaPdl& riga);
  void StampaPercentuali(std::string_view voce, const PercentualiTabellaA& percentuali,
                         double base);

  double OnorarioProgetto(const Conto& conto);
  double OnorarioPerizie(const Conto& conto);
  double OnorarioPerizia(const Conto& conto, const PeriziaPdl& perizia);
  double OnorarioPerizia(double aliquota, double importo, const PercentualiTabellaA& percentuali);
  double OnorarioDirezione(const Conto& conto);
  std::vector<VoceDirezione> VociDirezione(const Conto& conto) const;
  double BaseArticolo18(const Conto& conto) const;
  double OnorarioSorveglianza(const Conto& conto);
  double StampaQuota(double aliquota, const QuotaImporto& quota);
  void StampaTitoloArticolo18() { uscita.Line("INCARICO PARZIALE ( art. 18 )"); }
  double OnorarioArticolo18(double aliquota, const QuotaImporto& quota, bool oltreLimite);

  const DatiPdl& d;
  double SommaDirezione = 0;
  double SommaArticolo18 = 0;
  double UltimaSorveglianza = 0;  // of the last row alone
  // Design with art. 18 and variations, supervision with art. 18, surveillance, accounting,
  // revision, certificate.
  std::array<double, 6> totali{};
};

}  // namespace orm
