// The note of design and supervision, block by block in the order of its report.
#include <algorithm>
#include <cmath>

#include "cases/pdl/note.h"
#include "cases/pdl/pdl.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/table_articles.h"

namespace orm {
namespace {

std::array<double, 5> ImportiDella(const RigaPdl& r) {
  return {r.ImportoProgetto, r.ImportoEspropri, r.ImportoSuppletivi, r.ImportoEsproPerizie,
          r.ImportoDirezione};
}

// The highest tariff period of the note as a number.
int PeriodoDelCertificato(const std::string& PeriodoMassimo) {
  const auto periodo = ParseNumber(PeriodoMassimo);
  if (!periodo)
    throw RuntimeFailure("Il periodo tariffario \"" + PeriodoMassimo + "\" non è un numero.")
        .AtField("PeriodoMassimo");
  return CheckedInt16(*periodo);
}

}  // namespace

void NotaPdl::StampaSeNonNullo(std::string_view voce, double importo, std::string_view campo) {
  if (importo != 0) StampaLavori(2, voce, importo, campo);
}

void NotaPdl::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (std::size_t i = 0; i < d.Righe.size(); ++i) {
    const RigaPdl& r = d.Righe[i];
    if (std::ranges::any_of(ImportiDella(r), [](double x) { return x != 0; }))
      uscita.Line(TitoloLotto(i + 1, r.Classe, r.Categoria));
    StampaProgettoSpecifica(2, r.ImportoProgetto, kCampoProgetto);
    StampaSeNonNullo(" - ESPROPRIAZIONI", r.ImportoEspropri, kCampoEspropri);
    StampaSeNonNullo(" - LAVORI SUPPLETIVI", r.ImportoSuppletivi, kCampoSuppletivi);
    StampaSeNonNullo(" - ESPROPRI IN PERIZIA", r.ImportoEsproPerizie, kCampoEsproPerizie);
    StampaDirezioneSpecifica(2, d.TipoParcella, r.ImportoDirezione, kCampoDirezione);
  }
}

void NotaPdl::CalcolaCompensi() {
  Conto SommaProgetto = Zero();
  SommaDirezione = Zero();
  for (const RigaPdl& r : d.Righe) {
    SommaProgetto += SommaDi(std::fabs(r.ImportoProgetto), r.ImportoSuppletivi, Zero());
    if (r.ImportoDirezione > kDirezioneMinimaSommata) SommaDirezione += r.ImportoDirezione;
  }
  CompensiSulMaggiore(SommaProgetto, SommaDirezione);
}

void NotaPdl::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  totali.fill(Zero());
  std::size_t righe = 0;
  for (const LottoARighe& lotto : d.Lotti) {
    CalcolaLotto(righe, lotto);
    righe += lotto.PeriodoDelLotto.size();
  }
}

void NotaPdl::CalcolaLotto(std::size_t primaRiga, const LottoARighe& lotto) {
  const auto righe = std::span(d.Righe).subspan(primaRiga, lotto.PeriodoDelLotto.size());
  const BasiLotto basi = BasiDelLotto(righe, d.TipoParcella, Zero());
  Conto direzionePrima = Zero();
  for (std::size_t j = 0; j < righe.size(); ++j) {
    CalcolaRiga(Prepara(righe[j], lotto.PeriodoDelLotto[j], basi, direzionePrima),
                primaRiga + j + 1);
    if (righe[j].ImportoDirezione > 0) direzionePrima += righe[j].ImportoDirezione;
  }
}

NotaPdl::RigaInCorso NotaPdl::Prepara(const RigaPdl& riga, int Periodo, const BasiLotto& basi,
                                      const Conto& direzionePrima) const {
  RigaInCorso conto{riga,
                    Periodo,
                    basi,
                    direzionePrima,
                    PercentualiDellaBase(basi.BaseProgetto, Periodo, riga.Classe, riga.Categoria),
                    PercentualiDellaBase(basi.BaseDirezione, Periodo, riga.Classe, riga.Categoria)};
  conto.AliquotaProgetto = conto.AliquotaDirezione = Zero();
  conto.fatti = ServiziFatti(riga.TipoPrestazione, riga.Prestazioni);
  TabellaBAliquote(riga.Classe, riga.Categoria, conto.fatti, conto.aliquote, conto.AliquotaProgetto,
                   conto.AliquotaDirezione);
  return conto;
}

void NotaPdl::CalcolaRiga(const RigaInCorso& conto, std::size_t numeroRiga) {
  const RigaPdl& riga = conto.riga;
  if (std::ranges::any_of(ImportiDella(riga), [](double x) { return x > 0; })) {
    uscita.Text(TitoloLotto(numeroRiga, riga.Classe, riga.Categoria))
        .Tab(32)
        .Line(NomePeriodoTariffario(conto.Periodo));
    StampaImportiRiga(riga);
    if (riga.ImportoProgetto > 0)
      StampaPercentuali(kVocePercentualeProgetto, conto.progetto, conto.basi.BaseProgetto, 33,
                        conto.basi.EccedenzaLavori == 0
                            ? "Lavori di progetto ed espropri del lotto"
                            : "Lavori diretti ed espropri del lotto, i primi in luogo di quelli di "
                              "progetto, che superano");
    if (riga.ImportoDirezione > 0)
      StampaPercentuali(kVocePercentualeDirezione, conto.direzione, conto.basi.BaseDirezione, 33,
                        "Lavori del lotto su cui si prende la percentuale della direzione");
  }
  // What comes to 0 is no term of the sum that a person reads.
  const auto aggiungi = [this](std::size_t voce, const Conto& importo) {
    if (importo != 0) totali[voce] += importo;
  };
  aggiungi(0, OnorarioProgetto(conto));
  aggiungi(0, OnorarioPerizie(conto));
  const Conto direzione = OnorarioDirezione(conto);
  aggiungi(1, direzione);
  const bool sorveglianza = direzione != 0 && riga.FlagSorveglianza != "N";
  UltimaSorveglianza = sorveglianza ? OnorarioSorveglianza(conto) : Conto();
  aggiungi(2, UltimaSorveglianza);
  if (direzione != 0 && riga.FlagContabilita != "N")
    contemp.push_back(
        {conto.Periodo, riga.CoefficienteContabilita, Zero() + riga.ImportoDirezione});
}

// A design that is left out shows its minus here.
void NotaPdl::StampaImportiRiga(const RigaPdl& r) {
  StampaSeNonNullo(" - Lavori di progetto", r.ImportoProgetto, kCampoProgetto);
  StampaSeNonNullo(" - Espropriazioni", r.ImportoEspropri, kCampoEspropri);
  StampaSeNonNullo(" - Lavori suppletivi", r.ImportoSuppletivi, kCampoSuppletivi);
  StampaSeNonNullo(" - Espropri in perizia", r.ImportoEsproPerizie, kCampoEsproPerizie);
  StampaDirezioneOnorari(d.TipoParcella, r.ImportoDirezione, kCampoDirezione);
}

void NotaPdl::CalcolaContabilita() { totali[3] = StampaContabilita(); }

// The last row alone decides.
void NotaPdl::CalcolaRevisione() {
  if (totali[3] == 0 || d.Righe.back().FlagRevisione != "S" || d.Righe.back().ImportoDirezione == 0)
    return;
  uscita.Line("CALCOLO COMPENSO REVISIONALE");
  const Conto compenso = Conto(kRevisionePrezzi) * kRevisionePrezziSu * totali[3].Valore();
  double stampato = IntInLire(compenso);
  StampaRigaOnorario(1,
                     " " + TestoQuota(kRevisionePrezzi) + TestoQuota(kRevisionePrezziSu) +
                         TestoImporto(totali[3]) + " =",
                     stampato);
  Spiega([&]() -> Catena {
    return {PassoOnorario("Revisione prezzi: 0,20 di 0,75 dell'onorario di contabilità", compenso)};
  });
  totali[4] = stampato;
}

void NotaPdl::CalcolaCertificato() {
  if (d.CertificatoRegolare != "SI" || SommaDirezione == 0) return;
  totali[5] = StampaCertificato(PeriodoDelCertificato(d.PeriodoMassimo), SommaDirezione);
}

void NotaPdl::Chiudi() {
  StampaRiepilogoPrestazioni("PD", totali);
  for (const Conto& parte : totali)
    if (parte != 0) TotaleGenerale += parte;
  Conto NonConglobati = Zero();
  if (SommaArticolo18 > 0 && criteri.CompensiSuMaggiorazione == "NO")
    NonConglobati += SommaArticolo18;
  if (UltimaSorveglianza > 0 && criteri.CompensiSuSorveglianza == "NO")
    NonConglobati += UltimaSorveglianza;
  ChiudiConCompensi(NonConglobati);
}

Parcella CalcoloPdl(Parcella parcella, const DatiPdl& dati) {
  NotaPdl nota(std::move(parcella), dati);
  nota.ApriParcella("Per le prestazioni sottoelencate relative a :");
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaLotti();
  nota.CalcolaContabilita();
  nota.CalcolaRevisione();
  nota.CalcolaCertificato();
  nota.Chiudi();
  return nota;
}

}  // namespace orm
