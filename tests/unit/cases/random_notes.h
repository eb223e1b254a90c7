// Random but valid data of the cases besides design and supervision.
#pragma once

#include "cases/agp/data.h"
#include "cases/coa/data.h"
#include "cases/cos/data.h"
#include "cases/geo/data.h"
#include "cases/inc/data.h"
#include "cases/pes/data.h"
#include "cases/ppe/data.h"
#include "cases/rim/data.h"
#include "cases/rpa/data.h"
#include "cases/sic/data.h"
#include "cases/stc/data.h"
#include "cases/sup/data.h"
#include "tariff/law/site_safety.h"
#include "tests/unit/cases/random_case.h"

namespace orm {

class CasoNote : public Caso {
 public:
  using Caso::Caso;

  DatiPpe Ppe() {
    const auto fino = [this](int n) { return static_cast<std::int16_t>(Uno(4) ? 0 : Fino(n)); };
    return {fino(20259), fino(32767), fino(32767), fino(14412), fino(1193)};
  }

  DatiCoa Coa() {
    return {.PeriodoCollaudo = static_cast<std::int16_t>(3 + Fino(3)),
            .ImportoCollaudo = ImportoONulla(5),
            .TipoCollaudo = static_cast<std::int16_t>(1 + Fino(2)),
            .MaggiorazioneCollaudo = static_cast<double>(Fino(31)),
            .NumeroFacciate = static_cast<std::int16_t>(Fino(400))};
  }

  DatiStc Stc() {
    const auto fino = [this](int n) { return Uno(4) ? 0 : Fino(Uno(2) ? n : 12000); };
    return {.Superficie = fino(99999999),
            .NumeroPartite = fino(99999),
            .NumeroMappali = fino(99999),
            .VolumeAbitazioni = fino(99999999),
            .SuperficieAgricola = fino(99999999),
            .AnnoPrestazione = static_cast<std::int16_t>(1993 + Fino(21)),
            .MesePrestazione = static_cast<std::int16_t>(1 + Fino(12)),
            .Maggiorazione = Uno(2) ? 0.25 : 0};
  }

  DatiAgp Agp() {
    DatiAgp d;
    d.TipoDiAggiornamento = Fra({"SEMPLICE AGGIORNAMENTO", "NUOVE ANALISI"});
    d.EsecutoreDellAggiornamento = Fra({"SI", "NO"});
    d.PeriodoTariffario = Fra({"1", "2", "3", "4", "5"});
    for (int n = Fino(21); n > 0; --n) {
      LottoAgp& l = d.Lotti.emplace_back();
      Classe(l.Classe, l.Categoria);
      l.Importo = Importo();
    }
    return d;
  }

  DatiInc Inc() {
    DatiInc d;
    d.PeriodoTariffario = Fra({"1", "2", "3", "4", "5"});
    d.CertificatoRegolareEsecuzione = Fra({"SI", "NO"});
    for (int n = Fino(21); n > 0; --n) {
      LottoInc& l = d.Lotti.emplace_back();
      Classe(l.Classe, l.Categoria);
      l.Importo = Importo();
      l.Prestazioni = Alcune({"g", "i", "l"});
    }
    return d;
  }

  DatiPes Pes() {
    DatiPes d;
    for (int n = Fino(21); n > 0; --n)
      d.Beni.push_back({"Bene", Importo(), (1 + Fino(300)) / 99.0});
    return d;
  }

  DatiRim Rim() {
    DatiRim d{Fra({"SI", "NO"}), Fra({"SI", "NO"}), Fra({"SI", "NO"}), {}};
    for (int n = Fino(21); n > 0; --n) {
      ElaboratoRim e{.TipoElaborato = static_cast<std::int16_t>(1 + Fino(6)),
                     .Quantita = (1 + Fino(99999)) / 8.0};
      e.Scala = static_cast<std::int16_t>(e.Pianta() ? 1 + Fino(6) : 0);
      e.Numero = static_cast<std::int16_t>(e.Sezione() ? 1 : 1 + Fino(5));
      d.Elaborati.push_back(e);
    }
    return d;
  }

  DatiSup Sup() {
    DatiSup d;
    for (int n = Fino(11); n > 0; --n) d.Attivita.push_back({"Attività", Fino(100001) / 100000.0});
    for (int n = Fino(21); n > 0; --n) {
      LottoSup& l = d.Lotti.emplace_back();
      Classe(l.Classe, l.Categoria);
      l.Importo = Importo();
    }
    return d;
  }

  DatiRpa Rpa() {
    DatiRpa d{Fino(99) / 8.0, Fino(99) / 4.0, 0, Fino(3) * 99999, Fino(99), {}};
    for (int n = Fino(21); n > 0; --n)
      d.Terreni.push_back({static_cast<std::int16_t>(1 + Fino(3)),
                           static_cast<std::int16_t>(1 + Fino(3)),
                           static_cast<std::int16_t>(1 + Fino(2)), (1 + Fino(999)) / 99.0});
    return d;
  }

  DatiCos Cos(bool conPeriodi) {
    DatiCos d;
    for (double& importo : d.ImportoCS) d.ImportoTotaleCS += importo = ImportoONulla(2);
    for (double& m : d.Maggiorazione) m = Uno(2) ? 0 : (Fino(20001) - 10000) / 100.0;
    d.RevisioneCalcoli = Fra({"SI", "NO"});
    RigaCos modello;
    Righe(d.Lotti, d.Righe, conPeriodi ? 5 : 0, [&](int periodo, bool nuovo) {
      if (nuovo) Classe(modello.Classe, modello.Categoria);
      modello.Periodo = periodo == 0 ? "" : std::string(1, static_cast<char>('0' + periodo));
      modello.ImportoVerificato = ImportoONulla(5);
      return modello;
    });
    return d;
  }

  DatiGeotecnici Geo() {
    DatiGeotecnici d;
    d.TipoDiParcella = Fra({"NORMALE", "CONSUNTIVA", "INTERROTTA", "SCISSA"});
    d.MaggiorazioneParziale = Fra({"SI", "NO"});
    d.CostoIndagini = ImportoONulla(2);
    RigaGeo modello;
    Righe(d.Gruppi, d.Righe, 5, [&](int periodo, bool nuovo) {
      if (nuovo) modello.Sottoclasse = Fra({"1", "2", "3", "4"});
      modello.Tariffa = std::string(1, static_cast<char>('0' + periodo));
      modello.ImportoProgetto = ConSegno();
      modello.ImportoDirezione = ConSegno();
      modello.TipoDiPrestazione = Fra({"T", "P"});
      modello.StringaDellePrestazioni =
          modello.TipoDiPrestazione == "T" ? "a+b+c+d+e+f" : Alcune({"a", "b", "c", "d", "e", "f"});
      return modello;
    });
    return d;
  }

  DatiSicurezza Sic(const VersioneSic& versione) {
    DatiSicurezza d;
    d.TipoDiParcella = Fra({"NORMALE", "CONSUNTIVA", "INTERROTTA"});
    for (int n = Fino(21); n > 0; --n) {
      LottoSic& l = d.Lotti.emplace_back();
      Classe(l.Classe, l.Categoria);
      l.Tariffa = versione.SC2 ? "6" : "5";
      l.ImportoProgetto = Uno(5) ? -Importo() : Importo();
      // Least fees go by the part of the works done: a thousand times the design has no column.
      l.ImportoEsecuzione = std::min(ImportoONulla(5), std::fabs(l.ImportoProgetto) * 100);
      l.StringaPrestazioni = Segni(5);
      l.StringaMaggiorazioni = Segni(5 * versione.maggiorazioni.size());
      l.StringaIncrementi = Segni(6);
      d.Gruppi.push_back({static_cast<std::int16_t>(d.Lotti.size()),
                          {static_cast<std::int16_t>(versione.periodo)}});
    }
    return d;
  }

 private:
  std::string Segni(std::size_t n) {
    std::string segni(n, '0');
    for (char& c : segni) c = Fra({'0', '1'});
    return segni;
  }

  // Lots of rows in rising periods; without periods a row for each lot.
  template <class Riga, class Nuova>
  void Righe(std::vector<LottoARighe>& lotti, std::vector<Riga>& righe, int periodi,
             Nuova&& nuova) {
    for (int n = Fino(5); n > 0 && righe.size() < 15; --n) {
      LottoARighe& lotto = lotti.emplace_back();
      for (int periodo = periodi == 0 ? 0 : 1; periodo <= periodi; ++periodo)
        if (periodi == 0 || Uno(2)) {
          righe.push_back(nuova(periodo, lotto.PeriodoDelLotto.empty()));
          lotto.PeriodoDelLotto.push_back(static_cast<std::int16_t>(periodo));
        }
      lotto.UltimaRiga = static_cast<std::int16_t>(righe.size());
    }
  }
};

}  // namespace orm
