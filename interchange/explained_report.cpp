#include "interchange/explained_report.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "cases/fee_case.h"
#include "interchange/interchange.h"
#include "runtime/failure.h"
#include "shell/personal/settings.h"
#include "tariff/files/case_files.h"
#include "tariff/files/user_files.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// The lines of a text, one blank between their words.
std::vector<std::string> RigheDi(std::string_view testo) {
  std::vector<std::string> righe(1);
  for (const char c : testo) {
    if (c == '\n') {
      righe.emplace_back();
    } else if (c == ' ' || c == '\r') {
      if (!righe.back().empty() && righe.back().back() != ' ') righe.back() += ' ';
    } else {
      righe.back() += c;
    }
  }
  for (std::string& riga : righe)
    if (riga.ends_with(' ')) riga.pop_back();
  return righe;
}

// Beyond this the lines between are no longer weighed against each other.
constexpr std::size_t kConfrontiMassimi = 4'000'000;

bool CiSonoIDati(const WorkFolder& folder, const NomiFile& nomi) {
  for (const std::string& file : {std::string(kFileUtente), nomi.FileInt, nomi.FileInp})
    if (!folder.Exists(file)) return false;
  return true;
}

// Whether something that the calculation reads was written after the report.
bool DatiPiuRecenti(const WorkFolder& folder, const std::string& report, const NomiFile& nomi) {
  std::error_code errore;
  const auto quando = [&](const std::string& nome) {
    return std::filesystem::last_write_time(folder.PathOf(nome), errore);
  };
  const auto delReport = quando(report);
  if (errore) return false;
  for (const std::string& nome : folder.Names()) {
    const bool letto = nome == nomi.FileInt || nome == nomi.FileInp || nome == kFileUtente ||
                       nome == kFileCriteri || nome.ends_with(".CFG");
    if (letto && quando(nome) > delReport && !errore) return true;
  }
  return false;
}

void Abbina(ReportSpiegato& esito, const std::vector<Spiegazione>& spiegazioni,
            const std::vector<std::string>& mostrato, const std::vector<std::string>& fatto) {
  const std::vector<int> righe = AllineaRighe(mostrato, fatto);
  std::map<std::size_t, const Spiegazione*> perRiga;
  for (const Spiegazione& spiegazione : spiegazioni) perRiga[spiegazione.riga] = &spiegazione;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const auto trovata = perRiga.find(static_cast<std::size_t>(righe[i] + 1));
    if (righe[i] < 0 || trovata == perRiga.end()) continue;
    Spiegazione spiegazione = *trovata->second;
    spiegazione.riga = i + 1;
    esito.righe.emplace(i + 1, std::move(spiegazione));
  }
}

}  // namespace

std::vector<int> AllineaRighe(const std::vector<std::string>& mostrato,
                              const std::vector<std::string>& fatto) {
  std::vector<int> righe(mostrato.size(), -1);
  std::size_t prima = 0, fineM = mostrato.size(), fineF = fatto.size();
  for (; prima < std::min(fineM, fineF) && mostrato[prima] == fatto[prima]; ++prima)
    righe[prima] = static_cast<int>(prima);
  while (fineM > prima && fineF > prima && mostrato[fineM - 1] == fatto[fineF - 1])
    righe[--fineM] = static_cast<int>(--fineF);

  // What lies between: the longest run of equal lines in the same order.
  const std::size_t m = fineM - prima, f = fineF - prima;
  if (m == 0 || f == 0 || m > kConfrontiMassimi / f) return righe;
  std::vector<int> uguali((m + 1) * (f + 1), 0);
  const auto posto = [f](std::size_t i, std::size_t j) { return i * (f + 1) + j; };
  for (std::size_t i = m; i-- > 0;)
    for (std::size_t j = f; j-- > 0;)
      uguali[posto(i, j)] = mostrato[prima + i] == fatto[prima + j]
                                ? uguali[posto(i + 1, j + 1)] + 1
                                : std::max(uguali[posto(i + 1, j)], uguali[posto(i, j + 1)]);
  for (std::size_t i = 0, j = 0; i < m && j < f;) {
    if (mostrato[prima + i] == fatto[prima + j])
      righe[prima + i++] = static_cast<int>(prima + j++);
    else if (uguali[posto(i + 1, j)] >= uguali[posto(i, j + 1)])
      ++i;
    else
      ++j;
  }
  return righe;
}

ReportSpiegato SpiegaReport(const WorkFolder& folder, const std::string& nome,
                            std::string_view mostrato) {
  using Esito = ReportSpiegato::Esito;
  ReportSpiegato esito;
  try {
    const auto di = NotaDelReport(nome);
    if (!di) return esito;
    const NomiFile nomi = NomiDiCaso(di->codice, di->lire);
    if (!CiSonoIDati(folder, nomi)) return esito;
    const Parcella nota = CalcolaDaCartella(folder, di->codice, di->lire, SystemDate(), true);
    const std::vector<Spiegazione>& spiegazioni = nota.spiegazioni.Righe();
    Abbina(esito, spiegazioni, RigheDi(mostrato), RigheDi(nota.uscita.Contents()));
    if (spiegazioni.empty()) {
      esito.esito = Esito::Inspiegato;
      return esito;
    }
    const std::size_t trovate = esito.righe.size();
    esito.esito = trovate == spiegazioni.size() ? Esito::Spiegato : Esito::InParte;
    if (trovate < spiegazioni.size() &&
        (DatiPiuRecenti(folder, nome, nomi) || trovate * 2 < spiegazioni.size())) {
      esito.esito = Esito::DatiCambiati;
      esito.righe.clear();
    }
  } catch (const RuntimeFailure& failure) {
    esito.esito = Esito::NonRiuscito;
    esito.motivo = failure.Text();
  }
  return esito;
}

}  // namespace orm
