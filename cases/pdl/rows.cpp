// The fees of one row: design, variation reports, supervision, surveillance.
#include <cmath>

#include "cases/pdl/note.h"
#include "tariff/law/table_articles.h"

namespace orm {

double NotaPdl::StampaQuota(double aliquota, const QuotaImporto& quota) {
  const auto& [importo, P] = quota;
  return StampaOnorario({.aliquota = aliquota, .percentuale = P, .importo = TestoImporto(importo)},
                        importo * P.valore * aliquota / 100 * Coefficiente);
}

// The increase for a commission of a part of the services. Without its compensations and above the
// limit the text lacks a blank.
double NotaPdl::OnorarioArticolo18(double aliquota, const QuotaImporto& quota, bool oltreLimite) {
  const auto& [importo, P] = quota;
  const bool conCompensi = criteri.CompensiSuMaggiorazione != "NO";
  static const std::string quarto = " " + TestoQuota(kIncaricoParziale);
  const std::string_view inizio =
      std::string_view(quarto).substr(0, quarto.size() - (oltreLimite && !conCompensi ? 1 : 0));
  double onorario = kIncaricoParziale * aliquota * P.valore * importo / 100;
  if (conCompensi) onorario *= Coefficiente;
  onorario = StampaOnorario({.inizio = inizio,
                             .aliquota = aliquota,
                             .percentuale = P,
                             .importo = TestoImporto(importo),
                             .conCompensi = conCompensi},
                            onorario);
  SommaArticolo18 += onorario;
  return onorario;
}

double NotaPdl::OnorarioProgetto(const Conto& conto) {
  const RigaPdl& riga = conto.riga;
  if (riga.ImportoProgetto <= 0) return 0;
  uscita.Text("PROGETTAZIONE :  prestazioni ")
      .Line(riga.TipoPrestazione == "T"
                ? "complete"
                : TestoPrestazioni(conto.fatti, GruppoServiziPdl::Progetto));
  const double ImportoFee =
      riga.ImportoProgetto + riga.ImportoEspropri + conto.basi.EccedenzaLavori;
  const auto quote = QuoteDellImporto(conto.progetto, ImportoFee);
  double onorario = 0;
  for (const QuotaImporto& quota : quote) onorario += StampaQuota(conto.AliquotaProgetto, quota);
  if (d.IncaricoParziale != "SI") return onorario;
  StampaTitoloArticolo18();
  for (const QuotaImporto& quota : quote)
    onorario += OnorarioArticolo18(conto.AliquotaProgetto, quota, conto.progetto.divise);
  return onorario;
}

double NotaPdl::OnorarioPerizie(const Conto& conto) {
  if (conto.riga.FlagPerizie == "N") return 0;
  double onorario = 0;
  for (std::size_t j = 0; j < static_cast<std::size_t>(conto.riga.NumeroPerizie); ++j)
    onorario += OnorarioPerizia(conto, conto.riga.Perizie[j]);
  return onorario;
}

double NotaPdl::OnorarioPerizia(const Conto& conto, const PeriziaPdl& perizia) {
  uscita.Line(perizia.TipoPerizia.starts_with("1") ? "PERIZIA DI VARIANTE"
                                                   : "PERIZIA DI ASSESTAMENTO");
  const double ImportoPerizia = perizia.LavoriSuppletivi + perizia.EsproPerizia;
  const auto percentuali =
      PercentualiDellaBase(ImportoPerizia + perizia.LavoriVariati, conto.Periodo, conto.riga.Classe,
                           conto.riga.Categoria);
  const Aliquote fatti = ServiziFatti(perizia.TipoPrestazioneVariati, perizia.PrestazioniVariati,
                                      "PrestazioniVariati");
  double SommaDesign = 0, SommaFlag = 0;
  for (std::size_t i = 1; i <= 6; ++i) {
    SommaDesign += conto.aliquote[i];
    SommaFlag += fatti[i] * conto.aliquote[i];
  }
  double onorario = 0;
  if (ImportoPerizia != 0) {
    uscita.Tab(2).Line("per lavori suppletivi : prestazioni complete");
    onorario += OnorarioPerizia(SommaDesign, ImportoPerizia, percentuali);
  }
  if (perizia.LavoriVariati != 0) {
    const std::string& prestazioni = perizia.PrestazioniVariati;
    uscita.Tab(2).Line("per lavori variati : prestazioni " +
                       (prestazioni.empty() ? "complete" : prestazioni));
    onorario += OnorarioPerizia(SommaFlag, perizia.LavoriVariati, percentuali);
  }
  return onorario;
}

// Above the limit the report's whole decides, and each of its amounts is split.
double NotaPdl::OnorarioPerizia(double aliquota, double importo,
                                const PercentualiTabellaA& percentuali) {
  static const std::string inizio = " " + TestoQuota(kPerizie);
  double totale = 0;
  for (const auto& [parte, P] : QuoteDellImporto(percentuali, importo))
    totale += StampaOnorario(
        {.inizio = inizio, .aliquota = aliquota, .percentuale = P, .importo = TestoImporto(parte)},
        kPerizie * parte * P.valore * aliquota / 100 * Coefficiente);
  return totale;
}

std::vector<NotaPdl::VoceDirezione> NotaPdl::VociDirezione(const Conto& conto) const {
  if (criteri.AliquoteDirezioneLavori != "SEPARATE")
    return {{"DIREZIONE LAVORI : prestazioni " +
                 (conto.riga.TipoPrestazione == "T"
                      ? "complete"
                      : TestoPrestazioni(conto.fatti, GruppoServiziPdl::Direzione)),
             conto.AliquotaDirezione}};
  constexpr std::array<const char*, 4> titoli = {
      "DIREZIONE LAVORI       :", "PROVE DI OFFICINA      :", "ASSISTENZA AL COLLAUDO :",
      "LIQUIDAZIONE           :"};
  std::vector<VoceDirezione> voci;
  for (std::size_t i = 0; i < titoli.size(); ++i)
    if (const double aliquota = conto.fatti[i + 7] * conto.aliquote[i + 7]; aliquota != 0)
      voci.push_back({titoli[i], aliquota});
  return voci;
}

// Of the works supervised, those that the design of the row covers.
double NotaPdl::BaseArticolo18(const Conto& conto) const {
  const double progetto = std::fabs(conto.riga.ImportoProgetto);
  const double direzione = conto.riga.ImportoDirezione;
  if (progetto == 0) return direzione;
  return progetto <= conto.direzionePrima + direzione ? progetto - conto.direzionePrima : direzione;
}

double NotaPdl::OnorarioDirezione(const Conto& conto) {
  const double importo = conto.riga.ImportoDirezione;
  if (importo <= 0) return 0;
  const double base18 = BaseArticolo18(conto);
  double onorario = 0;
  for (const auto& [titolo, aliquota] : VociDirezione(conto)) {
    uscita.Line(titolo);
    for (const QuotaImporto& quota :
         QuoteProgressive(conto.direzione, importo, conto.direzionePrima))
      onorario += StampaQuota(aliquota, quota);
    if (d.IncaricoParziale != "SI" || base18 <= 0) continue;
    StampaTitoloArticolo18();
    onorario +=
        OnorarioArticolo18(aliquota, {base18, conto.direzione.entro}, conto.direzione.divise);
  }
  return onorario;
}

double NotaPdl::OnorarioSorveglianza(const Conto& conto) {
  const double aliquota = conto.aliquote[7];  // done or not
  const bool conCompensi = criteri.CompensiSuSorveglianza != "NO";
  uscita.Line("SORVEGLIANZA ( art. 17 )");
  static const std::string inizio = " " + TestoQuota(kSorveglianza);
  double totale = 0;
  for (const auto& [importo, P] :
       QuoteProgressive(conto.direzione, conto.riga.ImportoDirezione, conto.direzionePrima)) {
    double onorario = kSorveglianza * aliquota * importo * P.valore / 100;
    if (conCompensi) onorario *= Coefficiente;
    totale += StampaOnorario({.inizio = inizio,
                              .aliquota = aliquota,
                              .percentuale = P,
                              .importo = TestoImporto(importo),
                              .conCompensi = conCompensi},
                             onorario);
  }
  return totale;
}

}  // namespace orm
