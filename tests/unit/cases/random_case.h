// Random but valid notes of the cases with lots, for properties that hold whatever the figures.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "cases/esl/data.h"
#include "cases/pdl/data.h"
#include "tariff/criteria.h"

namespace orm {

class Caso {
 public:
  Caso(unsigned seme, bool modoLire) : motore_(seme), lire_(modoLire) {}

  int Fino(int n) { return static_cast<int>(motore_() % static_cast<unsigned>(n)); }
  bool Uno(int su) { return Fino(su) == 0; }
  template <class T>
  T Fra(std::initializer_list<T> scelte) {
    return *(scelte.begin() + Fino(static_cast<int>(scelte.size())));
  }
  // Of any size that a dialog takes, in the currency of the note.
  double Importo() {
    const double grandezza = std::pow(10.0, Fino(lire_ ? 10 : 7));
    const double importo = grandezza * (1 + Fino(899) / 100.0);
    return lire_ ? std::floor(importo) : std::floor(importo * 100) / 100;
  }
  double ImportoONulla(int su = 3) { return Uno(su) ? 0 : Importo(); }
  double ConSegno() { return Uno(5) ? -Importo() : ImportoONulla(5); }
  std::string Alcune(std::initializer_list<const char*> codici) {
    std::string testo;
    for (const char* codice : codici)
      if (Fino(2) != 0) testo += (testo.empty() ? "" : "+") + std::string(codice);
    return testo;
  }
  void Classe(std::string& classe, std::string& categoria) {
    classe = std::string(1, static_cast<char>('1' + Fino(9)));
    const std::string ultime = "gccc bc c";
    const char ultima = ultime[static_cast<std::size_t>(classe[0] - '1')];
    categoria =
        ultima == ' ' ? "" : std::string(1, static_cast<char>('a' + Fino(ultima - 'a' + 1)));
  }

  Criteri CriteriDiCalcolo() {
    Criteri c;
    c.TipoPercentualeCompensi = Fra({"CALCOLATA", "NUOVA TARIFFA", "ASSEGNATA"});
    c.PercCompensiAssegnata = Fino(61);
    c.AliquoteDirezioneLavori = Fra({"UNITE", "SEPARATE"});
    c.CompensiSuSorveglianza = Fra({"SI", "NO"});
    c.CompensiSuMaggiorazione = Fra({"SI", "NO"});
    return c;
  }

  DatiEsl Esl() {
    DatiEsl d;
    d.TipoParcella = Fra({"NORMALE", "CONSUNTIVA", "INTERROTTA", "SCISSA"});
    d.CertificatoRegolare = Fra({"SI", "NO"});
    int contabilita = 0;
    for (int n = Fino(21); n > 0; --n) {
      LottoEsl& l = d.Lotti.emplace_back();
      Classe(l.Classe, l.Categoria);
      l.ImportoProgettazione = ConSegno();
      l.ImportoDirezioneLavori = ConSegno();
      l.PrestazioniBase = Alcune({"a", "b", "c", "d", "e", "f", "g", "h", "i", "l", "l1"});
      l.PrestazioniIntegrative = Alcune({"m", "n", "o1", "o2", "o3", "o4", "o5", "p", "q", "r1",
                                         "r2", "r3", "r4", "s", "l2", "l3", "l4"});
      l.NumeroAddetti = static_cast<std::int16_t>(Fino(5));
      if (contabilita < 10 && Uno(2)) {
        ++contabilita;
        l.MisureContabilita = "SI";
        l.CoefficienteContabilita = Fra({0.7, 1.0, 1.1, 1.2, 1.4});
      }
    }
    return d;
  }

  DatiPdl Pdl() {
    DatiPdl d;
    d.TipoParcella = Fra({"NORMALE", "CONSUNTIVA", "INTERROTTA", "SCISSA"});
    d.IncaricoParziale = Fra({"SI", "NO"});
    d.CertificatoRegolare = Fra({"SI", "NO"});
    d.PeriodoMassimo = Fra({"1", "3", "5"});
    int contabilita = 0;
    for (int n = Fino(9); n > 0 && d.Righe.size() < 15; --n) {
      LottoARighe& lotto = d.Lotti.emplace_back();
      RigaPdl modello;
      Classe(modello.Classe, modello.Categoria);
      for (int periodo = 1; periodo <= 5; ++periodo)
        if (Uno(2)) {
          lotto.PeriodoDelLotto.push_back(static_cast<std::int16_t>(periodo));
          modello.PeriodoTariffario = std::string(1, static_cast<char>('0' + periodo));
          d.Righe.push_back(Riga(modello, contabilita));
        }
      lotto.UltimaRiga = static_cast<std::int16_t>(d.Righe.size());
    }
    return d;
  }

 private:
  RigaPdl Riga(RigaPdl r, int& contabilita) {
    r.ImportoProgetto = ConSegno();
    r.ImportoEspropri = ImportoONulla(2);
    r.ImportoSuppletivi = ImportoONulla(2);
    r.ImportoEsproPerizie = ImportoONulla(2);
    r.ImportoDirezione = ConSegno();
    r.TipoPrestazione = Fra({"T", "P"});
    if (r.TipoPrestazione == "P")
      r.Prestazioni = Alcune({"a", "b", "c", "d", "e", "f", "g", "h", "i", "l"});
    r.FlagSorveglianza = Fra({"S", "N"});
    r.FlagContabilita = contabilita < 10 ? Fra({"S", "N"}) : "N";
    if (r.FlagContabilita == "S") {
      ++contabilita;
      r.FlagRevisione = Fra({"S", "N"});
      r.CoefficienteContabilita = Fra({0.7, 1.0, 1.1});
    }
    r.FlagPerizie = Fra({"S", "N"});
    r.NumeroPerizie = static_cast<std::int16_t>(r.FlagPerizie == "S" ? Fino(4) : 0);
    for (PeriziaPdl& p : r.Perizie) {
      p.LavoriSuppletivi = ImportoONulla();
      p.LavoriVariati = ImportoONulla();
      p.EsproPerizia = ImportoONulla();
      p.TipoPrestazioneVariati = Fra({"T", "P"});
      if (p.TipoPrestazioneVariati == "P")
        p.PrestazioniVariati = Alcune({"a", "b", "c", "d", "e", "f"});
    }
    return r;
  }

  std::mt19937 motore_;
  bool lire_;
};

}  // namespace orm
