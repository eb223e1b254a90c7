#include "cases/pdl/rules.h"

#include <cmath>

#include "runtime/failure.h"
#include "tariff/law/table_b.h"
#include "tariff/lot_lines.h"

namespace orm {
namespace {

// Place in the tariff, from 1: there is no j and no k.
std::size_t IndiceServizio(char lettera, const char* campo) {
  const int posto = lettera - 'a' + 1;
  const int indice = posto == 12 ? 10 : posto;
  if (indice < 1 || indice > 10)
    throw RuntimeFailure("La prestazione \"" + std::string(1, lettera) + "\" non esiste.")
        .AtField(campo);
  return static_cast<std::size_t>(indice);
}

}  // namespace

Conto SommaDi(double a, double b, const Conto& zero) {
  Conto somma = zero;
  for (const double addendo : {a, b})
    if (addendo != 0) somma += addendo;
  return somma;
}

BasiLotto BasiDelLotto(std::span<const RigaPdl> righe, std::string_view TipoParcella,
                       const Conto& zero) {
  BasiLotto basi{zero, zero, zero};
  Conto SommaEspropri = zero, SommaSuppletivi = zero, SommaDirezione = zero;
  for (const RigaPdl& r : righe) {
    basi.BaseProgetto += SommaDi(std::fabs(r.ImportoProgetto), r.ImportoEspropri, zero);
    basi.BaseDirezione += SommaDi(std::fabs(r.ImportoProgetto), r.ImportoSuppletivi, zero);
    if (r.ImportoEspropri != 0) SommaEspropri += r.ImportoEspropri;
    if (r.ImportoSuppletivi != 0) SommaSuppletivi += r.ImportoSuppletivi;
    if (r.ImportoDirezione > kDirezioneMinimaSommata) SommaDirezione += r.ImportoDirezione;
  }
  const bool menoLavori = SommaDirezione < basi.BaseDirezione;
  const bool piuLavori = SommaDirezione > basi.BaseDirezione;
  if (piuLavori && SommaSuppletivi == 0 && TipoParcella != "SCISSA") {
    basi.EccedenzaLavori = SommaDirezione - basi.BaseDirezione;
    basi.BaseProgetto = SommaEspropri == 0 ? SommaDirezione : SommaDirezione + SommaEspropri;
  }
  if (piuLavori || (menoLavori && TipoParcella == "CONSUNTIVA") || TipoParcella == "INTERROTTA" ||
      TipoParcella == "SCISSA")
    basi.BaseDirezione = SommaDirezione;
  return basi;
}

Aliquote ServiziFatti(std::string_view TipoPrestazione, std::string_view prestazioni,
                      const char* campo) {
  Aliquote fatti{};
  if (TipoPrestazione == "T") {
    fatti.fill(1);
    return fatti;
  }
  for (std::size_t i = 0; i < prestazioni.size(); i += 2)
    fatti[IndiceServizio(prestazioni[i], campo)] = 1;
  return fatti;
}

std::string TestoPrestazioni(const Aliquote& fatti, GruppoServiziPdl gruppo) {
  const bool progetto = gruppo == GruppoServiziPdl::Progetto;
  std::string testo;
  for (std::size_t i = progetto ? 1 : 7; i <= (progetto ? 6U : 10U); ++i)
    if (fatti[i] != 0)
      testo += (testo.empty() ? "" : "+") + std::string(1, kLettereTabellaB[i - 1]);
  return testo;
}

}  // namespace orm
