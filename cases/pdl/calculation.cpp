// The note of design and supervision, block by block in the order of its report.
#include <algorithm>
#include <cmath>

#include "cases/pdl/note.h"
#include "cases/pdl/pdl.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/files/closing_line.h"
#include "tariff/final_account.h"
#include "tariff/law/table_articles.h"
#include "tariff/money.h"
#include "tariff/report.h"

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

void NotaPdl::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (std::size_t i = 0; i < d.Righe.size(); ++i) {
    const RigaPdl& r = d.Righe[i];
    const auto riga = [this](std::string_view voce, double importo) {
      if (importo != 0) StampaLavori(stato, 2, voce, importo);
    };
    if (std::ranges::any_of(ImportiDella(r), [](double x) { return x != 0; }))
      uscita.Line(TitoloLotto(i + 1, r.Classe, r.Categoria));
    riga(r.ImportoProgetto < 0 ? " - LAVORI PROGETTO ORIGINARIO" : " - LAVORI DI PROGETTO",
         std::fabs(r.ImportoProgetto));
    riga(" - ESPROPRIAZIONI", r.ImportoEspropri);
    riga(" - LAVORI SUPPLETIVI", r.ImportoSuppletivi);
    riga(" - ESPROPRI IN PERIZIA", r.ImportoEsproPerizie);
    if (r.ImportoDirezione > kDirezioneMinimaStampata)
      riga(VoceDirezioneSpecifica(d.TipoParcella), r.ImportoDirezione);
  }
}

void NotaPdl::CalcolaCompensi() {
  double SommaProgetto = 0;
  for (const RigaPdl& r : d.Righe) {
    SommaProgetto += std::fabs(r.ImportoProgetto) + r.ImportoSuppletivi;
    if (r.ImportoDirezione > kDirezioneMinimaSommata) SommaDirezione += r.ImportoDirezione;
  }
  compensi = StampaCompensiAccessori(stato, std::max(SommaProgetto, SommaDirezione));
}

void NotaPdl::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  std::size_t righe = 0;
  for (const LottoARighe& lotto : d.Lotti) {
    CalcolaLotto(righe, lotto);
    righe += lotto.PeriodoDelLotto.size();
  }
}

void NotaPdl::CalcolaLotto(std::size_t primaRiga, const LottoARighe& lotto) {
  const auto righe = std::span(d.Righe).subspan(primaRiga, lotto.PeriodoDelLotto.size());
  const BasiLotto basi = BasiDelLotto(righe, d.TipoParcella);
  double direzionePrima = 0;
  for (std::size_t j = 0; j < righe.size(); ++j) {
    CalcolaRiga(PreparaConto(righe[j], lotto.PeriodoDelLotto[j], basi, direzionePrima),
                primaRiga + j + 1);
    if (righe[j].ImportoDirezione > 0) direzionePrima += righe[j].ImportoDirezione;
  }
}

NotaPdl::Conto NotaPdl::PreparaConto(const RigaPdl& riga, int Periodo, const BasiLotto& basi,
                                     double direzionePrima) const {
  Conto conto{
      riga,
      Periodo,
      basi,
      direzionePrima,
      PercentualiDellaBase(stato, basi.BaseProgetto, Periodo, riga.Classe, riga.Categoria),
      PercentualiDellaBase(stato, basi.BaseDirezione, Periodo, riga.Classe, riga.Categoria)};
  conto.fatti = ServiziFatti(riga.TipoPrestazione, riga.Prestazioni);
  TabellaBAliquote(riga.Classe, riga.Categoria, conto.fatti, conto.aliquote, conto.AliquotaProgetto,
                   conto.AliquotaDirezione);
  return conto;
}

void NotaPdl::CalcolaRiga(const Conto& conto, std::size_t numero) {
  const RigaPdl& riga = conto.riga;
  if (std::ranges::any_of(ImportiDella(riga), [](double x) { return x > 0; })) {
    uscita.Text(TitoloLotto(numero, riga.Classe, riga.Categoria))
        .Tab(32)
        .Line(NomePeriodoTariffario(conto.Periodo));
    StampaImportiRiga(riga);
    if (riga.ImportoProgetto > 0)
      StampaPercentuali(kVocePercentualeProgetto, conto.progetto, conto.basi.BaseProgetto);
    if (riga.ImportoDirezione > 0)
      StampaPercentuali(kVocePercentualeDirezione, conto.direzione, conto.basi.BaseDirezione);
  }
  totali[0] += OnorarioProgetto(conto);
  totali[0] += OnorarioPerizie(conto);
  const double direzione = OnorarioDirezione(conto);
  totali[1] += direzione;
  const bool sorveglianza = direzione != 0 && riga.FlagSorveglianza != "N";
  UltimaSorveglianza = sorveglianza ? OnorarioSorveglianza(conto) : 0;
  totali[2] += UltimaSorveglianza;
  if (direzione != 0 && riga.FlagContabilita != "N")
    contemp.push_back({conto.Periodo, riga.CoefficienteContabilita, riga.ImportoDirezione});
}

// A design that is left out shows its minus here.
void NotaPdl::StampaImportiRiga(const RigaPdl& r) {
  const auto riga = [this](std::string_view voce, double importo) {
    if (importo != 0) StampaLavori(stato, 2, voce, importo);
  };
  riga(" - Lavori di progetto", r.ImportoProgetto);
  riga(" - Espropriazioni", r.ImportoEspropri);
  riga(" - Lavori suppletivi", r.ImportoSuppletivi);
  riga(" - Espropri in perizia", r.ImportoEsproPerizie);
  if (r.ImportoDirezione > kDirezioneMinimaStampata)
    StampaLavori(stato, 3, VoceDirezioneOnorari(d.TipoParcella), r.ImportoDirezione);
}

void NotaPdl::StampaPercentuali(std::string_view voce, const PercentualiTabellaA& percentuali,
                                double base) {
  for (const QuotaImporto& quota : QuoteDellImporto(percentuali, base, limite))
    StampaPercentuale(stato, voce, quota.percentuale, quota.importo);
}

void NotaPdl::CalcolaContabilita() { totali[3] = StampaContabilita(stato, contemp, compensi); }

// The last row alone decides.
void NotaPdl::CalcolaRevisione() {
  if (totali[3] == 0 || d.Righe.back().FlagRevisione != "S" || d.Righe.back().ImportoDirezione == 0)
    return;
  uscita.Line("CALCOLO COMPENSO REVISIONALE");
  totali[4] = IntInLire(stato, kRevisionePrezzi * kRevisionePrezziSu * totali[3]);
  StampaRigaOnorario(stato, 1,
                     " " + FormattaCopia(kRevisionePrezzi, -2) + " x " +
                         FormattaCopia(kRevisionePrezziSu, -2) + " x " +
                         TestoImporto(stato, totali[3]) + " =",
                     totali[4]);
}

void NotaPdl::CalcolaCertificato() {
  if (d.CertificatoRegolare != "SI" || SommaDirezione == 0) return;
  totali[5] =
      StampaCertificato(stato, PeriodoDelCertificato(d.PeriodoMassimo), SommaDirezione, compensi);
}

void NotaPdl::StampaRiepilogo() { StampaRiepilogoPrestazioni(stato, "PD", totali); }

void NotaPdl::Chiudi() {
  double totale = 0;
  for (const double parte : totali) totale += parte;
  double NonConglobati = 0;
  if (SommaArticolo18 > 0 && stato.criteri.CompensiSuMaggiorazione == "NO")
    NonConglobati += SommaArticolo18;
  if (UltimaSorveglianza > 0 && stato.criteri.CompensiSuSorveglianza == "NO")
    NonConglobati += UltimaSorveglianza;
  ChiudiConCompensi(stato, totale, compensi, NonConglobati);
}

void CalcoloPdl(RunState& stato) {
  DatiPdl dati;
  LeggiParcella(stato, dati);
  ApriParcella(stato, stato.FileInt, "Per le prestazioni sottoelencate relative a :");
  NotaPdl nota(stato, dati);
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaLotti();
  nota.CalcolaContabilita();
  nota.CalcolaRevisione();
  nota.CalcolaCertificato();
  nota.StampaRiepilogo();
  nota.Chiudi();
}

}  // namespace orm
