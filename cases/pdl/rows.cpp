// The fees of one row: design, variation reports, supervision, surveillance.
#include <cmath>

#include "cases/pdl/note.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/table_b.h"

namespace orm {

Catena NotaPdl::PassoAliquote(const RigaInCorso& conto, const Aliquote& fatti, std::size_t primo,
                              std::size_t ultimo, const Conto& aliquota) const {
  Catena passi;
  if (!spiegazioni.Attive()) return passi;
  passi.push_back(
      InComune([fatti, primo, ultimo, aliquota, aliquote = conto.aliquote,
                classe = conto.riga.Classe, categoria = conto.riga.Categoria]() -> Catena {
        std::string nomi;
        for (std::size_t i = primo; i <= ultimo; ++i)
          if (fatti[i] * aliquote[i] != 0)
            nomi += (nomi.empty() ? "" : "; ") + std::string(1, kLettereTabellaB[i - 1]) + " - " +
                    kPrestazioniTabellaB[i - 1];
        return {{"Art. 19, Tabella B, " + ClasseInParole(classe, categoria) +
                     ", aliquote delle prestazioni " + nomi,
                 aliquota, aliquota.Valore()}};
      }));
  return passi;
}

double NotaPdl::StampaQuota(const Voce& voce, const QuotaImporto& quota) {
  const auto& [importo, P] = quota;
  return StampaOnorario(
      {.aliquota = voce.aliquota, .percentuale = P, .importo = TestoImporto(importo)},
      importo * P.valore * voce.aliquota / 100 * Coefficiente, [&]() -> Ragioni {
        return {voce.regola, voce.aliquote};
      });
}

// The increase for a commission of a part of the services. Without its compensations and above the
// limit the text lacks a blank.
double NotaPdl::OnorarioArticolo18(const Voce& voce, const QuotaImporto& quota, bool oltreLimite,
                                   const char* nota) {
  const auto& [importo, P] = quota;
  const bool conCompensi = criteri.CompensiSuMaggiorazione != "NO";
  static const std::string quarto = " " + TestoQuota(kIncaricoParziale);
  const std::string_view inizio =
      std::string_view(quarto).substr(0, quarto.size() - (oltreLimite && !conCompensi ? 1 : 0));
  Conto onorario = Conto(kIncaricoParziale) * voce.aliquota * P.valore * importo / 100;
  if (conCompensi) onorario *= Coefficiente;
  const double stampato = StampaOnorario(
      {.inizio = inizio,
       .aliquota = voce.aliquota,
       .percentuale = P,
       .importo = TestoImporto(importo),
       .conCompensi = conCompensi},
      onorario, [&]() -> Ragioni {
        return {conCompensi
                    ? "Art. 18, incarico parziale: un quarto dell'onorario delle prestazioni svolte"
                    : "Art. 18, incarico parziale: un quarto dell'onorario delle prestazioni "
                      "svolte, senza compensi accessori come dicono i criteri di calcolo",
                voce.aliquote,
                nota == nullptr ? std::vector<std::string>{} : std::vector<std::string>{nota}};
      });
  SommaArticolo18 += stampato;
  return stampato;
}

Conto NotaPdl::OnorarioProgetto(const RigaInCorso& conto) {
  const RigaPdl& riga = conto.riga;
  if (riga.ImportoProgetto <= 0) return 0;
  uscita.Text("PROGETTAZIONE :  prestazioni ")
      .Line(riga.TipoPrestazione == "T"
                ? "complete"
                : TestoPrestazioni(conto.fatti, GruppoServiziPdl::Progetto));
  Conto ImportoFee = SommaDi(riga.ImportoProgetto, riga.ImportoEspropri, Zero());
  if (conto.basi.EccedenzaLavori != 0) ImportoFee += conto.basi.EccedenzaLavori;
  const auto quote = QuoteDellImporto(conto.progetto, ImportoFee);
  const Voce voce{
      conto.basi.EccedenzaLavori == 0
          ? "Progettazione: lavori ed espropri della riga, percentuale e aliquote, per il "
            "coefficiente dei compensi"
          : "Progettazione: lavori ed espropri della riga, più ciò che i lavori diretti del lotto "
            "hanno oltre il progetto, percentuale e aliquote, per il coefficiente dei compensi",
      conto.AliquotaProgetto,
      PassoAliquote(conto, conto.fatti, 1, kServiziProgettoTabellaB, conto.AliquotaProgetto)};
  Conto onorario = Zero();
  for (const QuotaImporto& quota : quote) onorario += StampaQuota(voce, quota);
  if (d.IncaricoParziale != "SI") return onorario;
  StampaTitoloArticolo18();
  for (const QuotaImporto& quota : quote)
    onorario += OnorarioArticolo18(voce, quota, conto.progetto.divise);
  return onorario;
}

Conto NotaPdl::OnorarioPerizie(const RigaInCorso& conto) {
  if (conto.riga.FlagPerizie == "N") return 0;
  Conto onorario = Zero();
  for (std::size_t j = 0; j < static_cast<std::size_t>(conto.riga.NumeroPerizie); ++j)
    if (const Conto perizia = OnorarioPerizia(conto, conto.riga.Perizie[j]); perizia != 0)
      onorario += perizia;
  return onorario;
}

Conto NotaPdl::OnorarioPerizia(const RigaInCorso& conto, const PeriziaPdl& perizia) {
  uscita.Line(perizia.TipoPerizia.starts_with("1") ? "PERIZIA DI VARIANTE"
                                                   : "PERIZIA DI ASSESTAMENTO");
  const Conto ImportoPerizia = SommaDi(perizia.LavoriSuppletivi, perizia.EsproPerizia, Zero());
  const auto percentuali =
      PercentualiDellaBase(ImportoPerizia + perizia.LavoriVariati, conto.Periodo, conto.riga.Classe,
                           conto.riga.Categoria);
  const Aliquote fatti = ServiziFatti(perizia.TipoPrestazioneVariati, perizia.PrestazioniVariati,
                                      "PrestazioniVariati");
  const Aliquote tutti = ServiziFatti("T", "");
  Conto SommaDesign = Zero(), SommaFlag = Zero();
  for (std::size_t i = 1; i <= kServiziProgettoTabellaB; ++i) {
    if (conto.aliquote[i] != 0) SommaDesign += conto.aliquote[i];
    if (fatti[i] * conto.aliquote[i] != 0) SommaFlag += fatti[i] * conto.aliquote[i];
  }
  const auto voce = [&](const char* regola, const Aliquote& svolte, const Conto& aliquota) {
    return Voce{regola, aliquota,
                PassoAliquote(conto, svolte, 1, kServiziProgettoTabellaB, aliquota)};
  };
  Conto onorario = Zero();
  if (ImportoPerizia != 0) {
    uscita.Tab(2).Line("per lavori suppletivi : prestazioni complete");
    onorario += OnorarioPerizia(
        voce("Perizia, lavori suppletivi ed espropri: tre quarti dell'onorario di progetto", tutti,
             SommaDesign),
        ImportoPerizia, percentuali);
  }
  if (perizia.LavoriVariati != 0) {
    const std::string& prestazioni = perizia.PrestazioniVariati;
    uscita.Tab(2).Line("per lavori variati : prestazioni " +
                       (prestazioni.empty() ? "complete" : prestazioni));
    onorario +=
        OnorarioPerizia(voce("Perizia, lavori variati: tre quarti dell'onorario di progetto delle "
                             "prestazioni svolte",
                             fatti, SommaFlag),
                        perizia.LavoriVariati, percentuali);
  }
  return onorario;
}

// Above the limit the report's whole decides, and each of its amounts is split.
Conto NotaPdl::OnorarioPerizia(const Voce& voce, const Conto& importo,
                               const PercentualiTabellaA& percentuali) {
  static const std::string inizio = " " + TestoQuota(kPerizie);
  Conto totale = Zero();
  for (const QuotaImporto& quota : QuoteDellImporto(percentuali, importo)) {
    const auto& [parte, P] = quota;
    totale += StampaOnorario({.inizio = inizio,
                              .aliquota = voce.aliquota,
                              .percentuale = P,
                              .importo = TestoImporto(parte)},
                             kPerizie * parte * P.valore * voce.aliquota / 100 * Coefficiente,
                             [&]() -> Ragioni {
                               return {voce.regola, voce.aliquote};
                             });
  }
  return totale;
}

std::vector<NotaPdl::VoceDirezione> NotaPdl::VociDirezione(const RigaInCorso& conto) const {
  if (criteri.AliquoteDirezioneLavori != "SEPARATE")
    return {{"DIREZIONE LAVORI : prestazioni " +
                 (conto.riga.TipoPrestazione == "T"
                      ? "complete"
                      : TestoPrestazioni(conto.fatti, GruppoServiziPdl::Direzione)),
             conto.AliquotaDirezione, 7, 10}};
  constexpr std::array<const char*, 4> titoli = {
      "DIREZIONE LAVORI       :", "PROVE DI OFFICINA      :", "ASSISTENZA AL COLLAUDO :",
      "LIQUIDAZIONE           :"};
  std::vector<VoceDirezione> voci;
  for (std::size_t i = 0; i < titoli.size(); ++i)
    if (const double aliquota = conto.fatti[i + 7] * conto.aliquote[i + 7]; aliquota != 0)
      voci.push_back({titoli[i], aliquota, i + 7, i + 7});
  return voci;
}

// Of the works supervised, those that the design of the row covers.
Conto NotaPdl::BaseArticolo18(const RigaInCorso& conto) const {
  const double progetto = std::fabs(conto.riga.ImportoProgetto);
  const double direzione = conto.riga.ImportoDirezione, prima = conto.direzionePrima;
  if (progetto == 0 || progetto > prima + direzione) return direzione;
  return prima == 0 ? Conto(progetto) : progetto - conto.direzionePrima;
}

Conto NotaPdl::OnorarioDirezione(const RigaInCorso& conto) {
  const double importo = conto.riga.ImportoDirezione;
  if (importo <= 0) return 0;
  const Conto base18 = BaseArticolo18(conto);
  Conto onorario = Zero();
  for (const auto& [titolo, aliquota, primo, ultimo] : VociDirezione(conto)) {
    uscita.Line(titolo);
    const Voce voce{
        "Direzione dei lavori: lavori diretti, percentuale e aliquote, per il coefficiente dei "
        "compensi",
        aliquota, PassoAliquote(conto, conto.fatti, primo, ultimo, aliquota)};
    for (const QuotaImporto& quota :
         QuoteProgressive(conto.direzione, importo, conto.direzionePrima))
      onorario += StampaQuota(voce, quota);
    if (d.IncaricoParziale != "SI" || base18 <= 0) continue;
    StampaTitoloArticolo18();
    onorario += OnorarioArticolo18(voce, {base18, conto.direzione.entro}, conto.direzione.divise,
                                   base18 == importo ? nullptr
                                                     : "Riguarda i soli lavori diretti che il "
                                                       "progetto della riga copre");
  }
  return onorario;
}

Conto NotaPdl::OnorarioSorveglianza(const RigaInCorso& conto) {
  const double aliquota = conto.aliquote[7];  // done or not
  const bool conCompensi = criteri.CompensiSuSorveglianza != "NO";
  uscita.Line("SORVEGLIANZA ( art. 17 )");
  static const std::string inizio = " " + TestoQuota(kSorveglianza);
  Conto totale = Zero();
  for (const QuotaImporto& quota :
       QuoteProgressive(conto.direzione, conto.riga.ImportoDirezione, conto.direzionePrima)) {
    const auto& [importo, P] = quota;
    Conto onorario = Conto(kSorveglianza) * aliquota * importo * P.valore / 100;
    if (conCompensi) onorario *= Coefficiente;
    totale += StampaOnorario(
        {.inizio = inizio,
         .aliquota = aliquota,
         .percentuale = P,
         .importo = TestoImporto(importo),
         .conCompensi = conCompensi},
        onorario, [&]() -> Ragioni {
          Aliquote direzione{};
          direzione[7] = 1;
          return {conCompensi ? "Art. 17, sorveglianza: metà dell'aliquota g, sui lavori "
                                "diretti"
                              : "Art. 17, sorveglianza: metà dell'aliquota g, sui lavori "
                                "diretti, senza compensi accessori come dicono i criteri "
                                "di calcolo",
                  PassoAliquote(conto, direzione, 7, 7, aliquota)};
        });
  }
  return totale;
}

}  // namespace orm
