// The fee of geotechnical services, group by group and phase by phase.
#include <algorithm>
#include <array>

#include "cases/geo/config.h"
#include "cases/geo/data.h"
#include "cases/geo/geo.h"
#include "cases/geo/rules.h"
#include "runtime/explanation/steps.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/explanations.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/table_geotechnics.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

constexpr std::string_view kCampoProgettoGeo = "Importo a base d'asta dei Lavori di progetto",
                           kCampoDirezioneGeo = "Importo dei Lavori diretti",
                           kCampoIndagini = "COSTO INDAGINI E PROVE";

class NotaGeo : public Parcella {
 public:
  NotaGeo(Parcella parcella, const DatiGeotecnici& dati, const TariffaGeo& tariffaGeo);

  void StampaSpecifica();
  void CalcolaCompensi();
  void CalcolaGruppi();
  void CalcolaCompensoAggiuntivo();
  void Chiudi();

 private:
  // A phase of a row, or one service of it.
  struct Blocco {
    std::vector<const char*> titolo;
    std::string lettere;   // of a partial service; empty: not shown
    std::string prestate;  // of the services done
    Conto quota;
  };
  Percentuale PercentualeGeo(const RigaGeo& riga, int periodo, const Conto& importo) const;
  void CalcolaRiga(const GruppoGeo& gruppo, const RigaGeo& riga, int periodo);
  Blocco BloccoDi(const RigaGeo& riga, std::vector<const char*> titolo, std::size_t primo,
                  std::size_t ultimo) const;
  std::vector<Blocco> BlocchiDirezione(const RigaGeo& riga) const;
  Conto OnorarioBlocco(const Blocco& blocco, const Percentuale& P, double importo);
  double OnorarioArticolo18(const Blocco& blocco, const Percentuale& P, double importo);
  Catena CatenaQuote(const Blocco& blocco) const;

  const DatiGeotecnici& d;
  const TariffaGeo& tariffa;
  std::vector<GruppoGeo> gruppi;
  Conto totaleProgetto, totaleDirezione;
  double compensoAggiuntivo = 0;
};

NotaGeo::NotaGeo(Parcella parcella, const DatiGeotecnici& dati, const TariffaGeo& tariffaGeo)
    : Parcella(std::move(parcella)), d(dati), tariffa(tariffaGeo) {
  std::size_t riga = 0;
  for (const LottoARighe& gruppo : d.Gruppi) {
    gruppi.push_back(BasiDelGruppo(d, riga, gruppo.PeriodoDelLotto.size()));
    riga += gruppo.PeriodoDelLotto.size();
  }
}

void NotaGeo::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (const GruppoGeo& g : gruppi) {
    const std::string numeroGruppo = Numero();  // skipped with a group that prints nothing
    if (g.SommaProgetto == 0 && g.SommaDirezione == 0) continue;
    uscita.Line(numeroGruppo + " SOTTOCLASSE   " + d.Righe[g.primaRiga].Sottoclasse);
    StampaProgettoSpecifica(5, g.SommaProgetto, kCampoProgettoGeo);
    StampaDirezioneSpecifica(5, d.TipoDiParcella, g.SommaDirezione, kCampoDirezioneGeo);
  }
}

void NotaGeo::CalcolaCompensi() {
  Conto TotaleProgetto, TotaleDirezione;
  for (const GruppoGeo& g : gruppi) {
    TotaleProgetto += g.ProgettoGruppo;
    TotaleDirezione += g.DirezioneGruppo;
  }
  CompensiSulMaggiore(TotaleProgetto, TotaleDirezione);
}

Percentuale NotaGeo::PercentualeGeo(const RigaGeo& riga, int periodo, const Conto& importo) const {
  if (importo == 0) return {};
  if (periodo < 1 || periodo > static_cast<int>(kPeriodiGeo))
    throw RuntimeFailure("Il periodo tariffario " + NumberText(periodo) + " non esiste.")
        .AtField("TariffaDelGruppo");
  const double lire = ImportoInLire(importo);
  const TabelleGeo tabelle = tariffa.Periodo(periodo);
  Interpolazione lettura;
  const double valore = tabelle.Percentuale(IndiceSottoclasse(riga), lire, &lettura);
  return PercentualeTagliata(lire, valore, [&] {
    const auto posto = static_cast<std::size_t>(periodo - 1);
    Passaggio passo{"Prestazioni geotecniche, sottoclasse " + riga.Sottoclasse + ", tariffa " +
                        tariffa.testata.NomePeriodo[posto] + ", dalla " +
                        TabellaPersonale(kFileGeo, tariffa.testata.NotaPeriodo[posto]) + ". ",
                    "", valore, "%"};
    if (lettura.x0 == lettura.x1) {
      passo.regola +=
          "Fino al primo importo, L. " + CifraEsatta(lettura.x0) + ", vale quella del secondo";
    } else if (lettura.x > lettura.x1) {
      passo.regola += "Oltre l'ultimo importo, L. " + CifraEsatta(lettura.x1) +
                      ", la percentuale cala con la pendenza degli ultimi due" +
                      (valore == 0 ? ", e si ferma a 0" : "");
    } else if (lettura.y0 == lettura.y1) {
      passo.regola += "Fra L. " + CifraEsatta(lettura.x0) + " e L. " + CifraEsatta(lettura.x1) +
                      " la percentuale è una sola";
    } else {
      passo.regola += TraIPassi(lettura) + " si interpola in linea retta";
    }
    if (lettura.y0 != lettura.y1 && valore != 0) passo.conto = ContoInterpolazione(lettura);
    Catena catena = CatenaInLire(importo);
    catena.push_back(std::move(passo));
    return catena;
  });
}

void NotaGeo::CalcolaGruppi() {
  uscita.Line(kRigaOnorariCompensi);
  for (std::size_t i = 0; i < gruppi.size(); ++i)
    for (std::size_t j = 0; j < gruppi[i].righe; ++j)
      CalcolaRiga(gruppi[i], d.Righe[gruppi[i].primaRiga + j], d.Gruppi[i].PeriodoDelLotto[j]);
}

void NotaGeo::CalcolaRiga(const GruppoGeo& g, const RigaGeo& riga, int periodo) {
  const bool progetto = riga.ImportoProgetto > 0;
  const bool direzione = riga.ImportoDirezione > kDirezioneMinimaStampata;
  if (!progetto && !direzione) return;
  const Percentuale PProgetto = PercentualeGeo(riga, periodo, g.ProgettoGruppo);
  const Percentuale PDirezione = PercentualeGeo(riga, periodo, g.BaseDirezione);
  uscita.Line("SOTTOCLASSE " + riga.Sottoclasse + " ( tariffa " +
              tariffa.testata.NomePeriodo[static_cast<std::size_t>(periodo - 1)] + " )");
  if (progetto) StampaLavori(3, " - Lavori di progetto", riga.ImportoProgetto, kCampoProgettoGeo);
  StampaDirezioneOnorari(d.TipoDiParcella, riga.ImportoDirezione, kCampoDirezioneGeo);
  if (progetto)
    StampaPercentuale(" % Prog.  = ", PProgetto, g.ProgettoGruppo, 33,
                      g.SommaProgetto == g.ProgettoGruppo
                          ? "Lavori di progetto della sottoclasse"
                          : "Lavori di progetto della sottoclasse, presi senza il meno");
  if (direzione)
    StampaPercentuale(" % D.L.   = ", PDirezione, g.BaseDirezione, 33,
                      g.BaseDirezione == g.DirezioneGruppo
                          ? "Lavori diretti della sottoclasse"
                          : "Lavori di progetto della sottoclasse, che superano quelli diretti e "
                            "danno anche la percentuale della direzione");
  if (progetto)
    totaleProgetto +=
        OnorarioBlocco(BloccoDi(riga, {"PRESTAZIONI GEOTECNICHE IN FASE DI PROGETTAZIONE"}, 0,
                                kServiziProgettoGeo),
                       PProgetto, riga.ImportoProgetto);
  if (direzione)
    for (const Blocco& blocco : BlocchiDirezione(riga))
      totaleDirezione += OnorarioBlocco(blocco, PDirezione, riga.ImportoDirezione);
}

// The services from `primo` up to, but not with, `ultimo`.
NotaGeo::Blocco NotaGeo::BloccoDi(const RigaGeo& riga, std::vector<const char*> titolo,
                                  std::size_t primo, std::size_t ultimo) const {
  const auto& quote = kQuoteGeo[IndiceSottoclasse(riga)];
  const auto fatti = ServiziFattiGeo(riga);
  Blocco blocco{std::move(titolo), "", "", {}};
  for (std::size_t i = primo; i < ultimo; ++i) {
    if (!fatti[i]) continue;
    blocco.quota += quote[i];
    blocco.prestate += (blocco.prestate.empty() ? "" : "+") + std::string(1, kLettereGeo[i]);
  }
  if (riga.TipoDiPrestazione == "P") blocco.lettere = blocco.prestate;
  return blocco;
}

std::vector<NotaGeo::Blocco> NotaGeo::BlocchiDirezione(const RigaGeo& riga) const {
  if (criteri.AliquoteDirezioneLavori == "UNITE")
    return {BloccoDi(riga, {"PRESTAZIONI GEOTECNICHE IN FASE DI DIREZIONE LAVORI"},
                     kServiziProgettoGeo, 6)};
  return {
      BloccoDi(riga, {"CONSULENZA ED ASSISTENZA GEOTECNICA IN FASE", "DI REALIZZAZIONE DELL'OPERA"},
               4, 5),
      BloccoDi(riga, {"ASSISTENZA AL COLLAUDO E ALLE OPERAZIONI DI", "LIQUIDAZIONE LAVORI"}, 5, 6)};
}

Catena NotaGeo::CatenaQuote(const Blocco& blocco) const {
  std::string nomi;
  for (const char lettera : blocco.prestate)
    if (const auto posto = kLettereGeo.find(lettera); posto != std::string_view::npos)
      nomi += (nomi.empty() ? "" : "; ") + std::string(1, lettera) + " - " + kPrestazioniGeo[posto];
  return {{"Quote delle prestazioni geotecniche " + nomi, blocco.quota, blocco.quota.Valore()}};
}

Conto NotaGeo::OnorarioBlocco(const Blocco& blocco, const Percentuale& P, double importo) {
  if (blocco.quota == 0) return 0;
  for (const char* riga : blocco.titolo) uscita.Line(riga);
  if (!blocco.lettere.empty()) uscita.Line("  Prestazioni : " + blocco.lettere);
  const double onorario = StampaOnorario(
      {.inizio = "    ",
       .percentualePrima = true,
       .aliquota = blocco.quota,
       .decimali = 4,
       .percentuale = P,
       .importo = TestoImporto(importo)},
      Conto(importo) * blocco.quota * P.valore / 100 * Coefficiente, [&]() -> Ragioni {
        return {"Onorario: importo, quote e percentuale, per il coefficiente dei compensi",
                CatenaQuote(blocco)};
      });
  return Conto(onorario) + OnorarioArticolo18(blocco, P, importo);
}

// With compensations there is one cut, after the product with their coefficient.
double NotaGeo::OnorarioArticolo18(const Blocco& blocco, const Percentuale& P, double importo) {
  if (d.MaggiorazioneParziale != "SI") return 0;
  uscita.Line("INCARICO PARZIALE ( art. 18 )");
  const bool conglobato = criteri.CompensiSuMaggiorazione != "NO";
  const std::string inizio = " " + TestoQuota(kIncaricoParziale);
  Conto onorario = Conto(kIncaricoParziale) * P.valore * blocco.quota * importo / 100;
  if (conglobato) onorario *= Coefficiente;
  return StampaOnorario(
      {.inizio = inizio,
       .percentualePrima = true,
       .aliquota = blocco.quota,
       .decimali = 4,
       .percentuale = P,
       .importo = TestoImporto(importo),
       .conCompensi = conglobato},
      onorario, [&]() -> Ragioni {
        return {conglobato ? "Art. 18, incarico parziale: un quarto dell'onorario"
                           : "Art. 18, incarico parziale: un quarto dell'onorario, senza compensi "
                             "accessori come dicono i criteri di calcolo",
                CatenaQuote(blocco)};
      });
}

// It carries no compensations. The cost is no fee, so that it stands behind its words.
void NotaGeo::CalcolaCompensoAggiuntivo() {
  if (d.CostoIndagini == 0) return;
  const std::string costo = TestoImporto(d.CostoIndagini);
  uscita.Line("Compenso aggiuntivo per tenuta rapporti contabili")
      .Line("ed amministrativi con ditte e laboratori di prove")
      .Text("geotecniche per un costo complessivo di ");
  StampaCampo(costo, TipoImporto::Onorari);
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    return {Mostrato(PassoDato(kCampoIndagini, d.CostoIndagini), DecimaliValuta())};
  });
  const Conto compenso = Conto(kCompensoIndagini) * d.CostoIndagini;
  compensoAggiuntivo = IntInLire(compenso);
  StampaRigaOnorario(1, costo + " x " + FormattaCopia(kCompensoIndagini, -2) + " = ",
                     compensoAggiuntivo);
  Spiega([&]() -> Catena {
    return {
        PassoOnorario("Un decimo del costo delle indagini, senza compensi accessori", compenso)};
  });
}

void NotaGeo::Chiudi() {
  TotaleGenerale = totaleProgetto + totaleDirezione + compensoAggiuntivo;
  std::array<Conto, 3> importi = {totaleProgetto, totaleDirezione, compensoAggiuntivo};
  StampaRiepilogoPrestazioni("GEO", importi);
  ChiudiConCompensi(compensoAggiuntivo);
}

}  // namespace

Parcella CalcoloGEO(Parcella parcella, const DatiGeotecnici& dati, const TariffaGeo& tariffa) {
  NotaGeo nota(std::move(parcella), dati, tariffa);
  nota.ApriParcella("Per le prestazioni geotecniche sottoelencate relative a :");
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaGruppi();
  nota.CalcolaCompensoAggiuntivo();
  nota.Chiudi();
  return nota;
}

}  // namespace orm
