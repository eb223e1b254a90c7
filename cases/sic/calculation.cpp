// The note of site safety: amounts, bases of the percentages, and the five duties in their order.
#include <algorithm>
#include <cmath>

#include "cases/sic/note.h"
#include "cases/sic/sic.h"

namespace orm {

NotaSic::NotaSic(Parcella parcella, const DatiSicurezza& dati)
    : Parcella(std::move(parcella)), d(dati), versione(VersioneDi(CasoDiParcella)) {
  std::size_t k = 0;
  for (std::size_t i = 0; i < d.Gruppi.size(); ++i)
    for (const int periodo : d.Gruppi[i].PeriodoDelLotto) {
      const LottoSic& lotto = d.Lotti[k++];
      lotti.push_back(
          {lotto, k, periodo, i, std::max(lotto.ImportoProgetto, lotto.ImportoEsecuzione)});
    }
  CalcolaBasi();
}

// In a note in progress works beyond the design take its place.
void NotaSic::CalcolaBasi() {
  gruppi.resize(d.Gruppi.size());
  for (const Lotto& lotto : lotti) {
    const double progetto = lotto.dati.ImportoProgetto, eseguito = lotto.dati.ImportoEsecuzione;
    Gruppo& g = gruppi[lotto.gruppo];
    g.SommaProgetto += progetto;
    g.SommaEseguito += eseguito;
    g.ProgettoGruppo += std::fabs(progetto);
    g.EseguitoGruppo += std::fabs(eseguito);
    TotaleProgetto += std::fabs(progetto);
    if (eseguito > kDirezioneMinimaSommata) TotaleEseguito += eseguito;
  }
  for (Gruppo& g : gruppi) {
    g.BaseProgetto = std::max(g.ProgettoGruppo, g.EseguitoGruppo);
    g.BaseEsecuzione = g.EseguitoGruppo;
    if (d.TipoDiParcella != "NORMALE") continue;
    g.BaseEsecuzione = g.BaseProgetto;
    g.ProgettoGruppo = g.BaseProgetto;
  }
}

void NotaSic::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (std::size_t i = 0, k = 0; i < gruppi.size(); k += d.Gruppi[i++].PeriodoDelLotto.size()) {
    const Gruppo& g = gruppi[i];
    if (g.SommaProgetto == 0 && g.SommaEseguito == 0) continue;
    uscita.Line(TitoloLotto(i + 1, d.Lotti[k].Classe, d.Lotti[k].Categoria));
    StampaProgettoSpecifica(5, g.SommaProgetto, kCampoProgetto);
    if (g.SommaEseguito > 0)
      StampaLavori(5, " - LAVORI ESEGUITI         ", g.SommaEseguito, kCampoEseguito);
  }
}

void NotaSic::CalcolaCompensi() { CompensiSulMaggiore(TotaleProgetto, TotaleEseguito); }

bool NotaSic::Impegnato(const Lotto& lotto, std::size_t p) const {
  return p < lotto.dati.StringaPrestazioni.size() && lotto.dati.StringaPrestazioni[p] == '1';
}

// A duty that no lot engages prints nothing.
void NotaSic::CalcolaPrestazioni() {
  uscita.Line(kRigaOnorariCompensi);
  for (std::size_t p = 0; p < kPrestazioniSic.size(); ++p) {
    if (std::ranges::none_of(lotti, [&](const Lotto& lotto) { return Impegnato(lotto, p); }))
      continue;
    const auto& prestazione = kPrestazioniSic[p];
    TotaleGenerale += OnorarioFase({p, prestazione, InValuta(prestazione.minimo)});
  }
}

Parcella CalcoloSIC(Parcella parcella, const DatiSicurezza& dati) {
  NotaSic nota(std::move(parcella), dati);
  nota.ApriParcella("Per le prestazioni previste dal D.Lgs 494/96 relative a :");
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaPrestazioni();
  nota.ChiudiConCompensi();
  return nota;
}

}  // namespace orm
