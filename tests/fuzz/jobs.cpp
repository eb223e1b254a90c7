// What the desk reads of others: archives, and reports that a person may have edited.
#include "jobs/job.h"
#include "jobs/job_zip.h"
#include "tests/fuzz/fuzzer.h"

namespace orm::fuzz {
namespace {

// An archive is refused with a reason, or its files stay below their folder and come back the same
// from an archive of ours.
void Zip(std::string_view input) {
  ContenutoZip contents;
  try {
    contents = LeggiZip(input);
  } catch (const RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    return;
  }
  for (const FileDiAlbero& file : contents.files) {
    Require(file.percorso.find("..") == std::string::npos ||
                ("/" + file.percorso + "/").find("/../") == std::string::npos,
            "nessun percorso esce dalla cartella");
    Require(!file.percorso.starts_with('/'), "nessun percorso è assoluto");
  }
  const ContenutoZip again = LeggiZip(FaiZip("Lavoro", contents.files));
  Require(again.nome == (contents.files.empty() ? "" : "Lavoro"), "la cartella ha il suo nome");
  Require(again.files.size() == contents.files.size(), "i file sono quanti erano");
  for (std::size_t i = 0; i < again.files.size(); ++i)
    Require(again.files[i].percorso == contents.files[i].percorso &&
                again.files[i].contenuto == contents.files[i].contenuto,
            "ogni file è lo stesso");
}

void NettoStampato(std::string_view input) {
  for (const bool lire : {true, false})
    if (const auto netto = NettoDellaRelazione(input, lire))
      Require(std::isfinite(netto->importo) && netto->testo.size() > 3, "un netto è un numero");
  GiornoDellaRelazione(input);
}

}  // namespace

Formats JobFormats() { return {{"netto", NettoStampato}, {"zip", Zip}}; }

}  // namespace orm::fuzz
