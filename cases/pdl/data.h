// The data of a note of design and supervision and their file INP_PDL[_E].DAP.
//
// A lot is a class and category; under it stands one row for each tariff period. Rows of a lot are
// consecutive, and all lots share one list of rows.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "tariff/files/row_lots.h"

namespace orm {

inline constexpr int kLottiPdlMassimi = 20;
inline constexpr int kRighePdlMassime = 20;
inline constexpr int kPerizieMassime = 10;
inline constexpr int kPeriodiPdl = 5;

// Amounts are in the currency of the note.
struct PeriziaPdl {
  double LavoriSuppletivi = 0;
  double LavoriVariati = 0;
  double EsproPerizia = 0;
  std::string TipoPerizia = "1";             // starts with "1" of variation, "2" of settlement
  std::string TipoPrestazioneVariati = "T";  // "T" complete, "P" partial
  std::string PrestazioniVariati;
};

struct RigaPdl {
  std::string Classe, Categoria;
  std::string PeriodoTariffario;  // "1" to "5"
  double ImportoProgetto = 0;     // below 0: counts for the percentage, brings no fee
  double ImportoEspropri = 0;
  double ImportoSuppletivi = 0;    // additional works in the variations
  double ImportoEsproPerizie = 0;  // expropriations in the variations
  double ImportoDirezione = 0;
  std::string TipoPrestazione = "T";  // "T" complete, "P" partial
  std::string Prestazioni;            // with "P", "a+b+c"
  std::string FlagSorveglianza = "N", FlagContabilita = "N", FlagRevisione = "N", FlagPerizie = "N";
  double CoefficienteContabilita = 0;
  std::int16_t NumeroPerizie = kPerizieMassime;  // of a row that nobody confirmed yet
  std::array<PeriziaPdl, kPerizieMassime> Perizie;
};

struct DatiPdl {
  std::string TipoParcella = "NORMALE";  // "CONSUNTIVA", "INTERROTTA", "SCISSA"
  std::string IncaricoParziale = "NO";   // "SI": increase of art. 18
  std::string CertificatoRegolare = "NO";
  std::string PeriodoMassimo = "1";  // selects the table of the certificate
  std::vector<LottoARighe> Lotti;
  std::vector<RigaPdl> Righe;
};

template <class Archive>
void CampiRiga(Archive& file, RigaPdl& r) {
  file.Line(Field("Classe", r.Classe), Field("Categoria", r.Categoria),
            Field("PeriodoTariffario", r.PeriodoTariffario),
            MoneyField("ImportoProgetto", r.ImportoProgetto),
            MoneyField("ImportoEspropri", r.ImportoEspropri),
            MoneyField("ImportoSuppletivi", r.ImportoSuppletivi),
            MoneyField("ImportoEsproPerizie", r.ImportoEsproPerizie),
            MoneyField("ImportoDirezione", r.ImportoDirezione));
  file.Line(Field("TipoPrestazione", r.TipoPrestazione), Field("Prestazioni", r.Prestazioni));
  file.Line(Field("FlagSorveglianza", r.FlagSorveglianza),
            Field("FlagContabilita", r.FlagContabilita), Field("FlagRevisione", r.FlagRevisione),
            Field("FlagPerizie", r.FlagPerizie));
  file.Line(Field("CoefficienteContabilita", r.CoefficienteContabilita),
            CountField("NumeroPerizie", r.NumeroPerizie, kPerizieMassime));
  for (std::size_t j = 0; j < static_cast<std::size_t>(r.NumeroPerizie); ++j) {
    PeriziaPdl& p = r.Perizie[j];
    file.Line(MoneyField("LavoriSuppletivi", p.LavoriSuppletivi),
              MoneyField("LavoriVariati", p.LavoriVariati),
              MoneyField("EsproPerizia", p.EsproPerizia), Field("TipoPerizia", p.TipoPerizia),
              Field("TipoPrestazioneVariati", p.TipoPrestazioneVariati),
              Field("PrestazioniVariati", p.PrestazioniVariati));
  }
}

template <class Archive>
void Campi(Archive& file, DatiPdl& d) {
  auto NumeroLottiPdl = static_cast<std::int16_t>(d.Lotti.size());
  auto NumeroRighePdl = static_cast<std::int16_t>(d.Righe.size());
  file.Line(Field("TipoParcella", d.TipoParcella), Field("IncaricoParziale", d.IncaricoParziale),
            CountField("NumeroLottiPdl", NumeroLottiPdl, kLottiPdlMassimi),
            CountField("NumeroRighePdl", NumeroRighePdl, kRighePdlMassime));
  d.Lotti.resize(static_cast<std::size_t>(NumeroLottiPdl));
  d.Righe.resize(static_cast<std::size_t>(NumeroRighePdl));
  CampiLottiARighe(file, d.Lotti, d.Righe.size(),
                   {"PeriodiDelLotto", "UltimaRiga", "PeriodoDelLotto"});
  file.Line(Field("CertificatoRegolare", d.CertificatoRegolare),
            Field("PeriodoMassimo", d.PeriodoMassimo));
  for (RigaPdl& riga : d.Righe) CampiRiga(file, riga);
}

}  // namespace orm
